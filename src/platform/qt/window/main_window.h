#pragma once

#include "platform/qt/surface.h"
#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"
#include "platform/qt/window/surface_widget.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace mirtane {

// The window of the program: it shows what the controls hold, hands the user's events to the shell, and ends
// the event loop when the shell has ended.
class MainWindow : public QMainWindow, public ControlView {
  public:
    // The shell has been started; it and the surface must outlive the window.
    MainWindow(Shell& shell, Surface& surface);
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    // The size that the program starts with, or what the screen has room for.
    void takeFirstSize();
    // Opens the drawing at an absolute path once the window stands on the screen at the size that the desktop
    // gives it, so that the drawing fits.
    void openWhenShown(const std::string& path);

    // Shows what the controls hold, as after an event.
    void refresh();

    using QMainWindow::show;
    void show(const Control& now) override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void lay(Surface& surface);
    void copyControls();
    void showSnapMark();
    void takeShortcuts();
    void waitForRest();
    void rest();
    void begin(const std::string& path);
    void fitScreen();
    void showWhetherDrawingHasKeys(const QWidget* focused);

    EventGate gate_;
    ControlViews views_;
    Surface& surface_;
    SurfaceWidget* drawing_ = nullptr; // belongs to the window
    QTimer rest_;
    QTimer restAgain_;
    QElapsedTimer sinceRest_;       // since the first event that no rest has followed
    bool isBegun_ = false;          // the window has been on the screen
    std::string toOpen_;            // when it is; empty if nothing is
    QWidget* status_ = nullptr;     // the line under the drawing; belongs to the window
    std::unique_ptr<QWidget> help_; // which stands by itself
};

} // namespace mirtane
