#pragma once

// A drawing and its surface for one dimension function, without the routing of events: the tests say of each
// click whether it was snapped.

#include "commands/linear_dimension.h"
#include "kind_print.h"
#include "model/session.h"
#include "ops_text.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace mirtane::fake {

inline constexpr float characterWidth = 28.8F; // on this surface, at the arrow size of 48

class DimensionDesk {
  public:
    using Routine = void (*)(Session&, Canvas&);

    DimensionDesk(const std::string& function, Routine step, Routine band) : step_(step), band_(band)
    {
        s.curFunc = s.baseFunc = s.lastFunc = function;
        pic1.setScale({0, 0, 4800, 3200});
        readViewLimits(s, pic1);
        resetLayers(s.layerTable);
        pic1.takeOps();
    }

    void click(Point at)
    {
        countStep(s);
        if (s.stepNo == 1) s.pickFirst = at;
        if (s.stepNo > 1) s.pickLast = at;
        s.mousePos = at;
        s.pointWasSnapped = false;
        step_(s, pic1);
    }
    void snap(Point at)
    {
        countStep(s);
        if (s.stepNo == 1) s.pickFirst = at;
        if (s.stepNo > 1) s.pickLast = at;
        s.mousePos = at;
        s.pointWasSnapped = true;
        step_(s, pic1);
    }
    // A typed distance counts a step and lays pickLast, and is no snap.
    void typePoint(Point at)
    {
        s.pickLast = at;
        countStep(s);
        step_(s, pic1);
    }
    void move(Point at)
    {
        s.pickLast = at;
        band_(s, pic1);
    }

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::on)
    {
        s.store.setRecord(s.store.entCount, r);
        s.store.setStat(s.store.entCount, stat);
        return s.store.entCount++;
    }

    Ops ops() { return opsOn(pic1); }
    std::string text3() const { return s.controls["Text3"_c].text; }
    EntityRecord slot(std::int32_t i) const { return s.store.record(i); }
    EntityRecord last() const { return s.store.record(s.store.entCount - 1); }
    Stat stat(std::int32_t i) const { return s.store.stat[EntityStore::at(i)]; }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{1200, 800}};

  private:
    Routine step_;
    Routine band_;
};

class LinearDesk : public DimensionDesk {
  public:
    LinearDesk() : DimensionDesk("Ortho Dimension", linearDimensionStep, linearDimensionBand) {}

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
