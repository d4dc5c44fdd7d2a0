#pragma once

#include "app/drawing/middle_drag.h"
#include "platform/qt/surface.h"
#include "platform/qt/window/control_view.h"
#include "platform/qt/window/event_gate.h"

#include <QLineF>
#include <QNativeGestureEvent>
#include <QTimer>
#include <QTouchEvent>

#include <optional>

namespace mirtane {

// The drawing on the screen: shows the picture of a Surface, one of its pixels on one of the screen's, and
// reports what the user does on it in world coordinates.
class SurfaceWidget : public QWidget, public ControlView {
  public:
    // The surface must outlive the widget, and shows itself through it from now on.
    SurfaceWidget(EventGate& gate, ControlId id, Surface& surface, QWidget* parent);
    ~SurfaceWidget() override;
    SurfaceWidget(const SurfaceWidget&) = delete;
    SurfaceWidget& operator=(const SurfaceWidget&) = delete;

    void show(const Control& now) override;
    // Where a click would land, over the picture; what it would land on has a name.
    void showMark(const std::optional<SnapMark>& mark, QString what);
    QWidget* focusWidget() override { return this; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void takeHeld(Qt::KeyboardModifiers keys);
    Point worldAt(QPointF at) const;
    QPointF placeOf(Point world) const;
    QRect markRect() const;
    void drag(QPointF from, QPointF to);
    void touch(const QTouchEvent& event);
    void oneFinger(const QTouchEvent& event);
    void twoFingers(const QLineF& now);
    void fingersOnPad(const QNativeGestureEvent& fingers);
    void showPart(const PixelRect& pixels);
    void fitSurface();

    EventGate& gate_;
    ControlId id_;
    Surface& surface_;
    QTimer sizeAtRest_;
    MiddleDrag middle_;
    Point grabbed_;                 // the point of the drawing that the hand holds
    std::optional<QLineF> fingers_; // from one of two on the screen to the other
    bool isTap_ = false;            // the one finger there has been alone
    std::optional<SnapMark> mark_;
    QString markedWhat_;
};

} // namespace mirtane
