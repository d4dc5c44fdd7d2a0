#include "platform/qt/window/surface_widget.h"

#include "platform/qt/whole.h"
#include "platform/qt/window/typed_keys.h"

#include <QInputMethodEvent>
#include <QPainter>

#include <chrono>
#include <cmath>

namespace mirtane {
namespace {

using namespace std::chrono_literals;

// A size that has stayed the same for so long is one that the user has settled on.
constexpr auto rest = 100ms;
constexpr double wheelStep = 120; // eighths of a degree in one notch of a wheel

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
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(240, 180);
    surface_.setRefreshHook([this] { showPart(surface_.takeDirty()); });
    sizeAtRest_.setSingleShot(true);
    sizeAtRest_.setInterval(rest);
    connect(&sizeAtRest_, &QTimer::timeout, this, [this] {
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
    QPainter(this).drawImage(QPoint(0, 0), image);
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

void SurfaceWidget::mousePressEvent(QMouseEvent* event)
{
    const int button = numberOf(event->button());
    if (button == 0) return;
    gate_.send([&](Shell& shell) { shell.mouseDown(button, worldAt(event->position())); });
}

// The second of two quick clicks is a point like the first.
void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event)
{
    gate_.send([&](Shell& shell) { shell.mouseMove(worldAt(event->position())); });
}

void SurfaceWidget::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / wheelStep;
    event->accept();
    if (steps == 0) return;
    gate_.send([&](Shell& shell) { shell.wheel(steps, worldAt(event->position())); });
}

void SurfaceWidget::keyPressEvent(QKeyEvent* event)
{
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
