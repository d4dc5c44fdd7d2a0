#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QListView>
#include <QStringListModel>

namespace mirtane {

// A list of texts with a current row.
class ListBox : public QListView, public ControlView {
  public:
    ListBox(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showRows(const std::vector<std::string>& rows);
    void showRow(int row);

    EventGate& gate_;
    ControlId id_;
    QStringListModel model_;
};

} // namespace mirtane
