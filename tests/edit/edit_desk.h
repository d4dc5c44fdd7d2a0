#pragma once

// An edit running on the selection.

#include "app/drawing/dispatch.h"
#include "edit/selection_run.h"
#include "function_desk.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane::fake {

class EditDesk : public FunctionDesk {
  public:
    EditDesk() : FunctionDesk("Object Select", {-600, -400, 1200, 800}) {}

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel) { return draw(r, stat); }

    // As a row of the edit list begins it.
    void begin(std::string_view edit)
    {
        start(edit);
        s.editPending = 1;
    }
    // As entry runs it, once it has read the numbers that are put into the session here.
    void run(std::int16_t step)
    {
        s.stepNo = step;
        callStep(s, pic1);
    }
};

inline void expectNear(Point a, Point b, double room, const std::string& what)
{
    EXPECT_NEAR(a.x, b.x, room) << what << " x";
    EXPECT_NEAR(a.y, b.y, room) << what << " y";
}

// All fields, coordinates within room.
inline void expectRecord(const EntityRecord& got, const EntityRecord& expected, double room,
                         const std::string& who)
{
    const std::string what = who + ", kind " + std::to_string(numberOf(expected.kind));
    expectNear(got.p1, expected.p1, room, what + " p1");
    expectNear(got.p2, expected.p2, room, what + " p2");
    expectNear(got.p3, expected.p3, room, what + " p3");
    expectNear(got.p4, expected.p4, room, what + " p4");
    expectNear(got.p5, expected.p5, room, what + " p5");
    EXPECT_FLOAT_EQ(got.s1, expected.s1) << what;
    EXPECT_FLOAT_EQ(got.s2, expected.s2) << what;
    EXPECT_NEAR(got.rad, expected.rad, room) << what;
    // Angles of arcs are compared round the turn: just below a whole one is just below 0.
    const bool sweeps = got.kind == Kind::arc || got.kind == Kind::angularDimension;
    const double whole = sweeps ? fullTurn : 360;
    const double angleRoom = sweeps ? 1e-5 : 1e-3;
    EXPECT_NEAR(std::remainder(got.a1 - expected.a1, whole), 0, angleRoom) << what;
    EXPECT_NEAR(std::remainder(got.a2 - expected.a2, whole), 0, angleRoom) << what;
    EXPECT_NEAR(std::remainder(got.a3 - expected.a3, 360), 0, 1e-3) << what;
    EXPECT_EQ(got.color, expected.color) << what;
    EXPECT_EQ(got.layer, expected.layer) << what;
    EXPECT_EQ(got.style, expected.style) << what;
    EXPECT_EQ(got.kind, expected.kind) << what;
    EXPECT_EQ(got.t1, expected.t1) << what;
    EXPECT_EQ(got.t2, expected.t2) << what;
}

} // namespace mirtane::fake
