#pragma once

#include "platform/qt/window/control_maker.h"

#include <memory>

namespace mirtane {

// A form besides the main one, as a window over it. It is on the screen while its control is visible, with
// the control's caption as title.
class FormWindow : public QWidget, public ControlView {
  public:
    // The main window must outlive it.
    FormWindow(EventGate& gate, ControlId form, QWidget& mainWindow);

    void show(const Control& now) override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void moveOverMain();

    EventGate& gate_;
    ControlId form_;
    QWidget& main_;
    bool placed_ = false; // it has been on the screen
};

// Makes all forms, hidden, and enters them and what stands on them into the views. They belong to the main
// window, but for the manual, which stands by itself, so that it can go behind the drawing.
std::unique_ptr<QWidget> makeForms(const ControlMaker& maker, QWidget& mainWindow);

} // namespace mirtane
