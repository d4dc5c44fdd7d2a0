#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QPlainTextEdit>

namespace mirtane {

// A long text that is read and not edited. The control's caret is where it is open, and what lies between
// caret and anchor is marked; where the reader scrolls to is written back.
class TextPage : public QPlainTextEdit, public ControlView {
  public:
    TextPage(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    void openAt(const Control& now);
    void scrolled();

    EventGate& gate_;
    ControlId id_;
};

} // namespace mirtane
