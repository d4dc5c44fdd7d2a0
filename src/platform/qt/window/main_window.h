#pragma once

#include "platform/qt/surface.h"
#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"

#include <QMainWindow>

namespace mirtane {

// The window of the program: it shows what the controls hold, hands the user's events to the shell, and ends
// the event loop when the shell has ended.
class MainWindow : public QMainWindow, public ControlView {
  public:
    // The shell has been started; it and the surface must outlive the window.
    MainWindow(Shell& shell, Surface& surface);

    using QMainWindow::show;
    void show(const Control& now) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void lay(Surface& surface);
    void copyControls();

    EventGate gate_;
    ControlViews views_;
    Surface& surface_;
};

} // namespace mirtane
