#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QPushButton>
#include <QToolButton>

namespace mirtane {

// A button of the tool strip: an icon, or its caption where it has none. It looks pressed while its control
// is checked.
class StripButton : public QToolButton, public ControlView {
  public:
    StripButton(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void nextCheckState() override {} // the control alone says whether it is checked

  private:
    void showCaption(const Control& now);

    EventGate& gate_;
    ControlId id_;
};

// A button of a form, with a caption.
class FormButton : public QPushButton, public ControlView {
  public:
    FormButton(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    EventGate& gate_;
    ControlId id_;
};

} // namespace mirtane
