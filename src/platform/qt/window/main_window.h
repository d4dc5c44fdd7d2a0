#pragma once

#include "platform/qt/surface.h"
#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"
#include "platform/qt/window/surface_widget.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

namespace mirtane {

// The window of the program: it shows what the controls hold, hands the user's events to the shell, and ends
// the event loop when the shell has ended.
class MainWindow : public QMainWindow, public ControlView {
  public:
    // The shell has been started; it and the surface must outlive the window.
    MainWindow(Shell& shell, Surface& surface);

    // Opens the drawing at an absolute path once the window stands on the screen at the size that the desktop
    // gives it, so that the drawing fits.
    void openWhenShown(const std::string& path);

    using QMainWindow::show;
    void show(const Control& now) override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void lay(Surface& surface);
    void copyControls();
    void showSnapMark();
    void takeShortcuts();
    void waitForRest();
    void rest();

    EventGate gate_;
    ControlViews views_;
    Surface& surface_;
    SurfaceWidget* drawing_ = nullptr; // belongs to the window
    QTimer rest_;
    QElapsedTimer sinceRest_; // since the first event that no rest has followed
    std::string toOpen_;      // when the window is shown; empty if nothing is
};

} // namespace mirtane
