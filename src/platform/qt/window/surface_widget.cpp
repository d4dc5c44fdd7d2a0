#include "platform/qt/window/surface_widget.h"

#include "platform/qt/whole.h"
#include "platform/qt/window/snap_mark_painter.h"
#include "platform/qt/window/typed_keys.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QPointingDevice>

#include <chrono>
#include <cmath>
#include <utility>

namespace mirtane {
namespace {

using namespace std::chrono_literals;

// A size that has stayed the same for so long is one that the user has settled on.
constexpr auto rest = 100ms;
constexpr double wheelStep = 120; // eighths of a degree in one notch of a wheel

constexpr double pixelsOfNotch = 40;   // two fingers, where only notches are told
constexpr double sidewaysNotches = 10; // move the drawing by its width

bool isTouchpad(const QWheelEvent& event)
{
    const QPointingDevice* const device = event.pointingDevice();
    return event.phase() != Qt::NoScrollPhase ||
           (device != nullptr && device->type() == QInputDevice::DeviceType::TouchPad);
}

// 0 for a button that the drawing knows nothing of.
int numberOf(Qt::MouseButton button)
{
    if (button == Qt::LeftButton) return 1;
    if (button == Qt::RightButton) return 2;
    return button == Qt::MiddleButton ? 4 : 0;
}

// A cross with a box about its middle: the next click will be on an exact point.
QCursor snapCursor()
{
    constexpr int side = 25;
    constexpr int middle = side / 2;
    constexpr int box = 5;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QColor(90, 180, 255));
    painter.drawLine(0, middle, side - 1, middle);
    painter.drawLine(middle, 0, middle, side - 1);
    painter.drawRect(middle - box, middle - box, 2 * box, 2 * box);
    painter.end();
    return QCursor(picture, middle, middle);
}

} // namespace

SurfaceWidget::SurfaceWidget(EventGate& gate, ControlId id, Surface& surface, QWidget* parent)
    : QWidget(parent), gate_(gate), id_(id), surface_(surface)
{
    setObjectName(nameOf(id));
    setAccessibleName(QStringLiteral("Drawing"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setFocusPolicy(Qt::TabFocus); // a click brings the keys by itself, and a drag leaves them where they are
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_AcceptTouchEvents);
    surface_.setRefreshHook([this] { showPart(surface_.takeDirty()); });
    sizeAtRest_.setSingleShot(true);
    sizeAtRest_.setInterval(rest);
    connect(&sizeAtRest_, &QTimer::timeout, this, [this] {
        if (gate_.closed())
            return sizeAtRest_.start(); // a dialog of the toolkit's is up, and the event goes on
        fitSurface();
        gate_.send([](Shell& shell) {
            shell.resized(); // again, for a size that changed while the gate was closed
            shell.redraw();
        });
    });
}

SurfaceWidget::~SurfaceWidget()
{
    surface_.setRefreshHook({});
}

void SurfaceWidget::show(const Control& now)
{
    setEnabled(now.enabled);
    setCursor(now.checked ? snapCursor() : QCursor(Qt::CrossCursor));
}

void SurfaceWidget::paintEvent(QPaintEvent*)
{
    if (surface_.ratio() != devicePixelRatioF())
        sizeAtRest_.start(); // the window was taken to another screen
    QImage image = surface_.shown();
    image.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), image);
    if (mark_) paintSnapMark(painter, placeOf(mark_->at), mark_->hit.snap, markedWhat_);
}

void SurfaceWidget::showMark(const std::optional<SnapMark>& mark, QString what)
{
    if (mark == mark_ && what == markedWhat_) return;
    const QRect before = markRect();
    mark_ = mark;
    markedWhat_ = std::move(what);
    update(before.united(markRect()));
}

QRect SurfaceWidget::markRect() const
{
    return mark_ ? rectOfSnapMark(placeOf(mark_->at), markedWhat_, font()) : QRect();
}

// A part of the picture may begin within one of the widget's own units where the screen is a fine one.
void SurfaceWidget::showPart(const PixelRect& pixels)
{
    if (pixels.empty()) return;
    const double ratio = devicePixelRatioF();
    const QPointF first(pixels.left / ratio, pixels.top / ratio);
    const QPointF last(pixels.right / ratio, pixels.bottom / ratio);
    update(wholeRectRound({first, last}));
}

void SurfaceWidget::fitSurface()
{
    const QSize pixels = wholeSize(QSizeF(size()) * devicePixelRatioF());
    const Size now = surface_.getPixelSize();
    const bool fits = pixels == QSize(now.width, now.height) && surface_.ratio() == devicePixelRatioF();
    if (pixels.isEmpty() || fits) return;
    surface_.resizePixels(pixels.width(), pixels.height(), devicePixelRatioF());
    gate_.send([](Shell& shell) { shell.resized(); });
}

void SurfaceWidget::resizeEvent(QResizeEvent*)
{
    fitSurface();
    sizeAtRest_.start();
}

Point SurfaceWidget::worldAt(QPointF at) const
{
    const double ratio = devicePixelRatioF();
    return surface_.worldAt(std::floor(at.x() * ratio), std::floor(at.y() * ratio));
}

QPointF SurfaceWidget::placeOf(Point world) const
{
    const double ratio = devicePixelRatioF();
    const PixelPoint pixel = surface_.pixelAt(world);
    return {pixel.x / ratio, pixel.y / ratio};
}

// Ctrl and Shift may have gone down in a field, in the manual, or in another program.
void SurfaceWidget::takeHeld(Qt::KeyboardModifiers keys)
{
    if (gate_.closed()) return;
    gate_.shell().keysHeld(keys.testFlag(Qt::ShiftModifier), keys.testFlag(Qt::ControlModifier));
}

// The middle button is not yet known to click.
void SurfaceWidget::mousePressEvent(QMouseEvent* event)
{
    const int button = numberOf(event->button());
    if (button == 0) return;
    if (event->button() == Qt::MiddleButton) {
        middle_.press(event->position().x(), event->position().y());
        grabbed_ = worldAt(event->position());
        return;
    }
    takeHeld(event->modifiers());
    gate_.send([&](Shell& shell) { shell.mouseDown(button, worldAt(event->position())); });
}

// The second of two quick clicks is a point like the first.
void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    // A window that came in front took the release.
    if (middle_.isHeld() && !event->buttons().testFlag(Qt::MiddleButton)) {
        middle_.release();
        show(gate_.shell().session().controls[id_]);
    }
    if (!middle_.isHeld()) {
        takeHeld(event->modifiers());
        gate_.send([&](Shell& shell) { shell.mouseMove(worldAt(at)); });
    } else if (middle_.move(at.x(), at.y())) {
        setCursor(Qt::ClosedHandCursor);
        gate_.send([&](Shell& shell) { shell.drag(grabbed_, worldAt(at)); });
    }
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton || !middle_.isHeld()) return;
    show(gate_.shell().session().controls[id_]); // the pointer as it was
    if (!middle_.release()) return;
    gate_.send([&](Shell& shell) { shell.mouseDown(numberOf(Qt::MiddleButton), grabbed_); });
}

void SurfaceWidget::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    gate_.send([](Shell& shell) { shell.pointerLeft(); });
}

void SurfaceWidget::drag(QPointF from, QPointF to)
{
    if (from != to) gate_.send([&](Shell& shell) { shell.drag(worldAt(from), worldAt(to)); });
}

// A wheel zooms, and one that is turned sideways moves the drawing by as much as an arrow key for each notch.
// Two fingers on a pad move it as they move.
void SurfaceWidget::wheelEvent(QWheelEvent* event)
{
    const QPointF at = event->position();
    const QPointF turned = QPointF(event->angleDelta()) / wheelStep;
    const bool fingers = isTouchpad(*event) && !event->modifiers().testFlag(Qt::ControlModifier);
    event->accept();
    if (fingers) {
        const QPointF moved = event->hasPixelDelta() ? QPointF(event->pixelDelta()) : turned * pixelsOfNotch;
        return drag(at, at + moved);
    }
    if (turned.x() != 0) drag(at, at + QPointF(std::round(turned.x() * width() / sidewaysNotches), 0));
    if (turned.y() != 0) gate_.send([&](Shell& shell) { shell.wheel(turned.y(), worldAt(at)); });
}

bool SurfaceWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        touch(*static_cast<QTouchEvent*>(event)); // told by its type, as the next
        event->accept();                          // or the toolkit would make clicks of it
        return true;
    case QEvent::NativeGesture:
        fingersOnPad(*static_cast<QNativeGestureEvent*>(event));
        return true;
    default:
        return QWidget::event(event);
    }
}

// On a screen. Which finger of two comes first does not matter: while there may be a second one the first
// gives no point.
void SurfaceWidget::touch(const QTouchEvent& event)
{
    const QList<QEventPoint>& points = event.points();
    if (event.type() == QEvent::TouchBegin) isTap_ = true;
    if (points.size() > 1 || event.type() == QEvent::TouchCancel) isTap_ = false;
    const bool areTwo = points.size() == 2 && !event.touchPointStates().testFlag(QEventPoint::Released);
    if (areTwo) return twoFingers({points[0].position(), points[1].position()});
    fingers_.reset();
    if (isTap_ && points.size() == 1) oneFinger(event);
}

// Carries the rubber band along, and is a click where it leaves.
void SurfaceWidget::oneFinger(const QTouchEvent& event)
{
    const QPointF at = event.points()[0].position();
    gate_.send([&](Shell& shell) { shell.mouseMove(worldAt(at)); });
    if (event.type() != QEvent::TouchEnd) return;
    isTap_ = false;
    gate_.send([&](Shell& shell) { shell.mouseDown(numberOf(Qt::LeftButton), worldAt(at)); });
}

void SurfaceWidget::twoFingers(const QLineF& now)
{
    const QLineF before = std::exchange(fingers_, now).value_or(now);
    drag(before.center(), now.center());
    const double factor = now.length() / before.length();
    if (!(factor > 0) || !std::isfinite(factor) || factor == 1) return;
    gate_.send([&](Shell& shell) { shell.zoom(factor, worldAt(now.center())); });
}

void SurfaceWidget::fingersOnPad(const QNativeGestureEvent& fingers)
{
    if (fingers.gestureType() == Qt::PanNativeGesture)
        drag(fingers.position(), fingers.position() + fingers.delta());
    if (fingers.gestureType() != Qt::ZoomNativeGesture || !(fingers.value() > -1)) return;
    gate_.send([&](Shell& shell) { shell.zoom(1 + fingers.value(), worldAt(fingers.position())); });
}

void SurfaceWidget::keyPressEvent(QKeyEvent* event)
{
    if (const Shortcut* const shortcut = shortcutOnDrawing(*event)) {
        gate_.send([shortcut](Shell& shell) { shell.shortcut(*shortcut); });
        return;
    }
    gate_.send([code = codeOf(*event)](Shell& shell) { shell.keyDown(code); });
    typeAt(gate_, id_, typedBy(*event));
}

void SurfaceWidget::keyReleaseEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) return;
    gate_.send([code = codeOf(*event)](Shell& shell) { shell.keyUp(code); });
}

void SurfaceWidget::inputMethodEvent(QInputMethodEvent* event)
{
    typeAt(gate_, id_, typeable(event->commitString()));
    event->accept();
}

// A key that is let go while another widget has the keys would count as held for ever. Nothing is copied to
// the screen here: that would call the focus back from where the user has just put it.
void SurfaceWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    gate_.shell().keyUp(0);
}

void SurfaceWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

} // namespace mirtane
