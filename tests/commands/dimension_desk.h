#pragma once

// A dimension function running, with a point in the drawing for it to be snapped to.

#include "function_desk.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane::fake {

inline constexpr float characterWidth = 28.8F; // on this surface, at the arrow size of 48

class DimensionDesk : public FunctionDesk {
  public:
    using FunctionDesk::FunctionDesk;

    std::string text3() const { return text(ids::workText); }
};

// The points that these functions measure have to be snapped to. The one that a click is snapped to stands in
// slot 1, and is seen for as long as the click takes; objects are counted from behind it.
class MeasuringDesk : public DimensionDesk {
  public:
    explicit MeasuringDesk(std::string_view function) : DimensionDesk(function) { add(point({}), Stat::off); }

    void snap(Point at, int button = 1)
    {
        s.store.setRecord(landmark, point(at));
        s.store.setStat(landmark, Stat::on);
        hold(ctrlKey);
        down(button, at);
        letGo();
        s.store.setStat(landmark, Stat::off);
    }

    std::int32_t madeCount() const { return s.store.entCount - landmark - 1; }
    EntityRecord made(std::int32_t number) const { return slot(landmark + number); } // from 1
    Stat madeStat(std::int32_t number) const { return stat(landmark + number); }

  private:
    static constexpr std::int32_t landmark = 1;
};

class LinearDesk : public MeasuringDesk {
  public:
    LinearDesk() : MeasuringDesk("Ortho Dimension") {}

    void measure(Point first, Point second, Point offset)
    {
        snap(first);
        snap(second);
        click(offset);
    }
};

// Round the turn: a line that ran backwards reads a hair past level.
inline void expectDegrees(double got, double expected, const std::string& what)
{
    EXPECT_NEAR(std::remainder(got - expected, 360), 0, 1e-3) << what;
}

inline void expectNear(Point a, Point b, const std::string& what)
{
    constexpr float room = 0.01F;
    EXPECT_NEAR(a.x, b.x, room) << what << " x";
    EXPECT_NEAR(a.y, b.y, room) << what << " y";
}

// A vector at an angle of so many degrees, counter-clockwise on the screen.
inline Point onTurn(double degrees, double length)
{
    const double a = degrees * std::acos(-1.0) / 180;
    return {static_cast<float>(length * std::cos(a)), static_cast<float>(-length * std::sin(a))};
}

} // namespace mirtane::fake
