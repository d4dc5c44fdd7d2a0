// What of an ellipse is seen: of a small one as many chords as its size on the screen needs, of a great one
// those that it was cut into.

#include "geometry/angle.h"
#include "hostile_numbers.h"
#include "ops_text.h"
#include "plain_canvas.h"
#include "raster_probe.h"
#include "render/chords.h"
#include "render/painters.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using probe::inked;
using probe::Pixels;
using probe::PlainCanvas;

constexpr int wide = 400;
constexpr int high = 300;

struct Ellipse {
    Point axisEnd, centre;
    float ratio;
};

// Its first axis so long, at an angle to the level.
Ellipse ellipseAt(Point centre, double axis, double angle, double ratio)
{
    return {polarPoint(centre, axis, angle), centre, static_cast<float>(ratio)}; // as a slot keeps it
}

struct Sight {
    explicit Sight(const Scale& scale)
    {
        canvas.setScale(scale);
        canvas.setColor(white);
        readViewLimits(view, canvas);
    }

    Pixels painted(const Ellipse& e, std::int16_t style = pen::solid)
    {
        canvas.clear();
        canvas.setStyle(style);
        paintEllipse(canvas, view, e.axisEnd, e.centre, e.ratio);
        return inked(canvas.picture());
    }

    // How far a pixel's middle is from the ellipse, in pixels: from the nearest of many places on it.
    double distanceTo(const Ellipse& e, int x, int y) const
    {
        double nearest = 1e9;
        for (int k = 0; k < 720; ++k) {
            const PixelPoint on = placeOn(e, k * fullTurn / 720);
            nearest = std::min(nearest, std::hypot(on.x - x - 0.5, on.y - y - 0.5));
        }
        return nearest;
    }

    PixelPoint placeOn(const Ellipse& e, double angle) const
    {
        const double dx = e.axisEnd.x - e.centre.x;
        const double dy = e.axisEnd.y - e.centre.y;
        const double along = std::cos(angle);
        const double across = std::sin(angle) * e.ratio;
        return canvas.pixelAt({static_cast<float>(e.centre.x + along * dx + across * dy),
                               static_cast<float>(e.centre.y + along * dy - across * dx)}); // of the world
    }

    PlainCanvas canvas{wide, high};
    View view;
};

// Aslant, far from the origin, at the corner of the window and over it.
constexpr Scale windows[] = {
    {0, 0, wide, high},
    {-37, 4011, 1600, 1200},
    {51200, -73000, 40, 30},
};

TEST(EllipsePictures, OfAnySizeLieOnTheirCurve)
{
    fake::HostileNumbers numbers(5);
    for (const Scale& scale : windows) {
        Sight sight(scale);
        const double unit = scale.width / wide;
        for (int round = 0; round < 60; ++round) {
            const Point centre{static_cast<float>(scale.left + unit * numbers.between(60, 340)),
                               static_cast<float>(scale.top + unit * numbers.between(60, 240))};
            const Ellipse e = ellipseAt(centre, unit * std::exp(numbers.between(-0.5, 4)),
                                        numbers.between(0, fullTurn), numbers.between(0.05, 1));
            const Pixels found = sight.painted(e);
            ASSERT_FALSE(found.empty());
            for (const auto& [x, y] : found) EXPECT_LE(sight.distanceTo(e, x, y), 1.4) << round;
            for (int k = 0; k < 90; ++k) {
                const PixelPoint on = sight.placeOn(e, k * fullTurn / 90);
                const bool near = std::ranges::any_of(found, [on](const auto& pixel) {
                    return std::hypot(on.x - pixel.first - 0.5, on.y - pixel.second - 0.5) < 1.4;
                });
                EXPECT_TRUE(near) << round << " at " << k;
            }
        }
    }
}

// Dashes begin anew with each chord, so those of two pixels have no gap between them.
TEST(EllipsePictures, OfSmallEllipsesHaveChordsLongEnoughForTheirDots)
{
    for (const Scale& scale : windows) {
        Sight sight(scale);
        const double unit = scale.width / wide;
        const Point centre{scale.left + scale.width / 3, scale.top + scale.height / 2};
        for (const double axis : {6.0, 9.0, 14.0, 17.0}) {
            for (const double ratio : {0.8, 1.0}) {
                const Ellipse e = ellipseAt(centre, unit * axis, 0.7, ratio);
                const auto solid = static_cast<double>(sight.painted(e).size());
                EXPECT_LT(static_cast<double>(sight.painted(e, pen::dot).size()), 0.85 * solid) << axis;
            }
        }
    }
}

TEST(EllipsePictures, OfGreatEllipsesAreThoseOfTheirChords)
{
    Sight sight({-37, 4011, 1600, 1200});
    for (const double axis : {600.0, 900.0, 4000.0, 70000.0}) {
        for (const double angle : {0.0, 0.4, 2.9, 4.4}) {
            const Ellipse e = ellipseAt({700, 4600}, axis, angle, 0.6);
            const Pixels found = sight.painted(e);
            RecordingCanvas all({wide, high});
            all.setScale(sight.canvas.getScale());
            all.takeOps();
            paintEllipse(all, sight.view, e.axisEnd, e.centre, e.ratio);
            sight.canvas.clear();
            for (const CanvasOp& op : all.takeOps()) {
                const auto at = [&op](std::size_t i) { return std::get<float>(op.args[i]); };
                sight.canvas.line(at(0), at(1), at(2), at(3));
            }
            EXPECT_EQ(inked(sight.canvas.picture()), found) << axis << " at " << angle;
        }
    }
}

TEST(EllipsePictures, AreWrittenDownAsLinesAndDrawnOnce)
{
    Sight sight(windows[1]);
    for (const double axis : {3.0, 80.0, 500.0, 3000.0}) {
        const Ellipse e = ellipseAt({500, 4500}, axis, 1.1, 0.4);
        const Pixels alone = sight.painted(e);
        sight.canvas.clear();
        RecordingCanvas written(&sight.canvas);
        paintEllipse(written, sight.view, e.axisEnd, e.centre, e.ratio);
        EXPECT_EQ(inked(sight.canvas.picture()), alone) << axis;
        RecordingCanvas nothingBehind({wide, high});
        nothingBehind.setScale(windows[1]);
        nothingBehind.takeOps();
        paintEllipse(nothingBehind, sight.view, e.axisEnd, e.centre, e.ratio);
        const fake::Ops expected = fake::opsOn(nothingBehind);
        EXPECT_FALSE(expected.empty()) << axis;
        EXPECT_EQ(fake::opsOn(written), expected) << axis;
    }
}

TEST(EllipsePictures, LieInTheRectangleThatIsShownAnew)
{
    Sight sight(windows[1]);
    fake::HostileNumbers numbers(8);
    for (int round = 0; round < 300; ++round) {
        sight.canvas.clear();
        sight.canvas.snapshot();
        sight.canvas.takeDirty();
        const Point centre{static_cast<float>(numbers.between(-100, 1600)),
                           static_cast<float>(numbers.between(3950, 5250))};
        const Ellipse e = ellipseAt(centre, numbers.between(1, 300), numbers.between(0, fullTurn),
                                    numbers.between(0.01, 3));
        paintEllipse(sight.canvas, sight.view, e.axisEnd, e.centre, e.ratio);
        const PixelRect dirty = sight.canvas.takeDirty();
        for (const auto& [x, y] : inked(sight.canvas.picture()))
            EXPECT_TRUE(x >= dirty.left && x < dirty.right && y >= dirty.top && y < dirty.bottom) << round;
    }
}

TEST(EllipsePictures, OfAnyNumbersAreHarmless)
{
    fake::HostileNumbers numbers(21);
    for (int round = 0; round < 500; ++round) {
        const float side = std::abs(numbers.anyFloat());
        Sight sight({numbers.anyFloat(), numbers.anyFloat(), side, side * 0.75F});
        paintEllipse(sight.canvas, sight.view, {numbers.anyFloat(), numbers.anyFloat()},
                     {numbers.anyFloat(), numbers.anyFloat()}, numbers.anyFloat());
    }
}

} // namespace
} // namespace mirtane
