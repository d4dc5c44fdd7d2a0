#pragma once

#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"

#include <vector>

namespace mirtane {

// The buttons of the control table, in the groups that it gives them, each group under its name. On a low
// screen the names give way.
class ToolStrip : public QWidget {
  public:
    ToolStrip(EventGate& gate, ControlViews& views, QWidget* parent);

    QSize minimumSizeHint() const override; // without the names

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    int heightOfNames() const;

    std::vector<QWidget*> names_; // belong to the groups
};

} // namespace mirtane
