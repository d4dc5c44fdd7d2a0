// What the surface makes of wheels, pads and fingers, as the toolkit tells of them.

#include "platform/qt/window/surface_widget.h"
#include "window_desk.h"

#include <QNativeGestureEvent>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::WindowDesk;

struct Fingers : testing::Test {
    Fingers() { desk.press(ids::drawLine); }

    Scale scale() const { return desk.surface.getScale(); }
    // World units to one of the widget's own.
    double unit() const { return scale().width / double(drawing->width()); }

    WindowDesk desk;
    QWidget* drawing = WindowDesk::widget(ids::drawing);
};

// Turned or moved by so much at a point, with what is told of it.
struct Turn {
    const char* what;
    QPoint pixels, angle;
    Qt::KeyboardModifiers held = Qt::NoModifier;
    Qt::ScrollPhase phase = Qt::NoScrollPhase;
    QInputDevice::DeviceType device = QInputDevice::DeviceType::Mouse;
    QPoint moved; // by which the drawing then lies elsewhere, in pixels
    double zoomed = 1;
};

TEST_F(Fingers, OnAPadMoveTheDrawingAndAWheelZooms)
{
    const int side = drawing->width();
    const auto pad = QInputDevice::DeviceType::TouchPad;
    const auto mouse = QInputDevice::DeviceType::Mouse;
    const Turn turns[] = {
        {"two fingers", {17, -31}, {34, -62}, {}, Qt::ScrollUpdate, pad, {17, -31}},
        {"fingers whose device is not told", {-5, 8}, {-10, 16}, {}, Qt::ScrollUpdate, mouse, {-5, 8}},
        {"fingers that have left, and the pad goes on", {0, 3}, {0, 6}, {}, Qt::ScrollMomentum, pad, {0, 3}},
        {"a pad that tells of notches alone", {}, {60, -240}, {}, Qt::NoScrollPhase, pad, {20, -80}},
        {"fingers with Ctrl", {0, 30}, {0, 120}, Qt::ControlModifier, Qt::ScrollUpdate, pad, {}, 1.25},
        {"a notch forward", {}, {0, 120}, {}, Qt::NoScrollPhase, mouse, {}, 1.25},
        {"two notches back", {}, {0, -240}, {}, Qt::NoScrollPhase, mouse, {}, 0.64},
        {"half a notch", {}, {0, 60}, {}, Qt::NoScrollPhase, mouse, {}, 1.1180339887},
        {"a wheel that counts pixels", {0, 15}, {0, 120}, {}, Qt::NoScrollPhase, mouse, {}, 1.25},
        {"sideways", {}, {-120, 0}, {}, Qt::NoScrollPhase, mouse, {-qRound(side / 10.0), 0}},
    };
    for (const Turn& turn : turns) {
        const Scale before = scale();
        const double unitBefore = unit();
        const QPointF at(211, 97);
        const Point under =
            desk.surface.worldAt(at.x() * 2, at.y() * 2); // two pixels to a unit of the widget
        const QPointingDevice device(QStringLiteral("hand"), 1, turn.device,
                                     QPointingDevice::PointerType::Generic, QInputDevice::Capability::Scroll,
                                     2, 3);
        QWheelEvent event(at, drawing->mapToGlobal(at), turn.pixels, turn.angle, Qt::NoButton, turn.held,
                          turn.phase, false, Qt::MouseEventNotSynthesized, &device);
        QApplication::sendEvent(drawing, &event);
        EXPECT_TRUE(event.isAccepted()) << turn.what;
        EXPECT_NEAR(before.width / scale().width, turn.zoomed, 1e-4) << turn.what;
        if (turn.zoomed == 1) {
            EXPECT_NEAR((before.left - scale().left) / unitBefore, turn.moved.x(), 0.1) << turn.what;
            EXPECT_NEAR((before.top - scale().top) / unitBefore, turn.moved.y(), 0.1) << turn.what;
        } else {
            const Point now = desk.surface.worldAt(at.x() * 2, at.y() * 2);
            EXPECT_NEAR(now.x, under.x, unitBefore) << turn.what;
            EXPECT_NEAR(now.y, under.y, unitBefore) << turn.what;
        }
    }
    EXPECT_EQ(desk.session->stepNo, 0);
}

TEST_F(Fingers, OnAPadPinchAndMoveAsTheSystemTellsIt)
{
    struct Row {
        Qt::NativeGestureType type;
        double value;
        QPointF delta;
        double zoomed;
        QPointF moved;
    };
    const Row rows[] = {
        {Qt::BeginNativeGesture, 0, {}, 1, {}},
        {Qt::ZoomNativeGesture, 0.25, {}, 1.25, {}},
        {Qt::ZoomNativeGesture, -0.2, {}, 0.8, {}},
        {Qt::ZoomNativeGesture, -1, {}, 1, {}}, // nothing would be left
        {Qt::PanNativeGesture, 0, {12, -7}, 1, {12, -7}},
        {Qt::RotateNativeGesture, 30, {}, 1, {}},
        {Qt::EndNativeGesture, 0, {}, 1, {}},
    };
    for (const Row& row : rows) {
        const Scale before = scale();
        const double unitBefore = unit();
        const QPointF at(303, 151);
        QNativeGestureEvent event(row.type, QPointingDevice::primaryPointingDevice(), 2, at,
                                  drawing->mapTo(desk.window.get(), at), drawing->mapToGlobal(at), row.value,
                                  row.delta);
        QApplication::sendEvent(drawing, &event);
        EXPECT_NEAR(before.width / scale().width, row.zoomed, 1e-4) << row.type;
        if (row.zoomed != 1) continue;
        EXPECT_NEAR((before.left - scale().left) / unitBefore, row.moved.x(), 0.1) << row.type;
        EXPECT_NEAR((before.top - scale().top) / unitBefore, row.moved.y(), 0.1) << row.type;
    }
}

struct TouchedScreen : Fingers {
    void press(QPoint first, QPoint second)
    {
        QTest::touchEvent(drawing, screen).press(1, first, drawing);
        QTest::touchEvent(drawing, screen).stationary(1).press(2, second, drawing);
    }
    void move(QPoint first, QPoint second)
    {
        QTest::touchEvent(drawing, screen).move(1, first, drawing).move(2, second, drawing);
        WindowDesk::settle();
    }
    void release(QPoint first, QPoint second)
    {
        QTest::touchEvent(drawing, screen).release(1, first, drawing).release(2, second, drawing);
        WindowDesk::settle();
    }

    static QPointingDevice* theScreen()
    {
        static QPointingDevice* const device = QTest::createTouchDevice(); // the toolkit keeps it
        return device;
    }

    QPointingDevice* screen = theScreen();
};

// The point that lay between the fingers stays there, and lines grow as the fingers part.
TEST_F(TouchedScreen, IsZoomedByAsMuchAsTwoFingersPart)
{
    press({200, 150}, {300, 150});
    move({199, 150}, {301, 150}); // by now they are known to be two
    const Scale before = scale();
    const Point between = desk.surface.worldAt(250 * 2, 150 * 2);
    move({180, 150}, {320, 150});
    move({148, 150}, {352, 150});
    EXPECT_NEAR(before.width / scale().width, 2, 0.02);
    release({148, 150}, {352, 150});
    EXPECT_NEAR(before.width / scale().width, 2, 0.02) << "the fingers have left";
    const Point now = desk.surface.worldAt(250 * 2, 150 * 2);
    EXPECT_NEAR(now.x, between.x, 2 * unit());
    EXPECT_NEAR(now.y, between.y, 2 * unit());
}

TEST_F(TouchedScreen, MovesWithTwoFingers)
{
    press({200, 150}, {300, 150});
    move({201, 150}, {301, 150});
    const Scale before = scale();
    move({231, 113}, {331, 113});
    move({241, 103}, {341, 103});
    release({241, 103}, {341, 103});
    EXPECT_NEAR((before.left - scale().left) / unit(), 40, 1);
    EXPECT_NEAR((before.top - scale().top) / unit(), -47, 1);
    EXPECT_NEAR(before.width, scale().width, before.width / 100);
}

TEST_F(TouchedScreen, TakesNoPointFromFingersThatPinch)
{
    press({200, 150}, {300, 150});
    move({190, 150}, {310, 150});
    move({180, 150}, {320, 150});
    release({180, 150}, {320, 150});
    EXPECT_EQ(desk.session->stepNo, 0);
    EXPECT_EQ(desk.session->store.entCount, 1);
}

// It may be pushed to where it is to give its point.
TEST_F(TouchedScreen, TakesAPointFromOneFingerWhereItLeaves)
{
    QTest::touchEvent(drawing, screen).press(1, {203, 91}, drawing);
    QTest::touchEvent(drawing, screen).move(1, {211, 97}, drawing);
    EXPECT_EQ(desk.session->stepNo, 0);
    QTest::touchEvent(drawing, screen).release(1, {211, 97}, drawing);
    WindowDesk::settle();
    EXPECT_EQ(desk.session->stepNo, 1);
    EXPECT_EQ(desk.session->pickFirst, desk.surface.worldAt(211 * 2, 97 * 2));
    EXPECT_EQ(desk.session->store.entCount, 1);
}

// They leave one after the other.
TEST_F(TouchedScreen, TakesNoPointFromTheLastOfTwoFingers)
{
    press({200, 150}, {300, 150});
    move({190, 150}, {310, 150});
    QTest::touchEvent(drawing, screen).stationary(1).release(2, {310, 150}, drawing);
    QTest::touchEvent(drawing, screen).move(1, {260, 190}, drawing);
    const Scale before = scale();
    QTest::touchEvent(drawing, screen).release(1, {260, 190}, drawing);
    WindowDesk::settle();
    EXPECT_EQ(desk.session->stepNo, 0);
    EXPECT_EQ(scale().left, before.left);
}

} // namespace
} // namespace mirtane
