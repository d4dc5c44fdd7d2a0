#pragma once

#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QLineEdit>

namespace mirtane {

// A text box. What is typed goes to the shell, which filters it and changes the control; the box itself only
// moves its caret and selection.
class TextBox : public QLineEdit, public ControlView {
  public:
    TextBox(EventGate& gate, ControlId id, QWidget* parent);

    void show(const Control& now) override;
    QWidget* focusWidget() override { return this; }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void type(const QString& characters);
    void edit(const QKeyEvent& event);
    void deleteForward();
    bool completes(const QKeyEvent& event);
    void showColor(std::int32_t bgr);
    void caretMoved();

    EventGate& gate_;
    ControlId id_;
    QAction* swatch_ = nullptr; // belongs to the box; only one that shows a colour has it
    std::int32_t color_ = -1;
};

} // namespace mirtane
