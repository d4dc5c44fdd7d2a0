#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// A form besides the main one, as a window over it. It is on the screen while its control is visible, with
// the control's caption as title.
class FormWindow : public QWidget, public ControlView {
  public:
    FormWindow(EventGate& gate, ControlId form, QWidget* parent);

    void show(const Control& now) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void moveOverParent();

    EventGate& gate_;
    ControlId form_;
};

// Makes all forms, hidden, and enters them and what stands on them into the views. They belong to the parent.
void makeForms(const ControlMaker& maker, QWidget& parent);

} // namespace mirtane
