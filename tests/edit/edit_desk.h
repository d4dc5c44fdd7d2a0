#pragma once

// A drawing with one object of each kind, its selection, and the edits on it, without the rest of the
// program.

#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "kind_print.h"
#include "ops_text.h"
#include "render/redraw.h"
#include "render/view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace mirtane::fake {

using Step = void (*)(Session&, Canvas&);

// Width of a string on this surface: 0.6 of its size a character.
class EditDesk {
  public:
    EditDesk()
    {
        resetLayers(s.layerTable);
        pic1.setScale({-600, -400, 1200, 800});
        readViewLimits(s, pic1);
        s.curFunc = s.baseFunc = s.lastFunc = "Object Select";
        pic1.takeOps();
    }

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel)
    {
        const std::int32_t slot = s.store.entCount;
        s.store.setRecord(slot, r);
        commitSlot(s);
        s.store.setStat(slot, stat);
        return slot;
    }

    void begin(const char* name)
    {
        s.curFunc = name;
        s.stepNo = 0;
        s.editPending = 1;
    }
    void click(Step step, float x, float y)
    {
        ++s.stepNo;
        (s.stepNo == 1 ? s.pickFirst : s.pickLast) = {x, y};
        step(s, pic1);
    }
    void run(Step step, std::int16_t at)
    {
        s.stepNo = at;
        step(s, pic1);
    }

    EntityRecord slot(std::int32_t number) const { return s.store.record(number); }
    Stat stat(std::int32_t number) const { return s.store.stat[EntityStore::at(number)]; }
    Ops ops() { return opsOn(pic1); }

    // Curves of the objects that are shown, in slot order: what the picture is made of.
    std::vector<EntityRecord> shown() const
    {
        std::vector<EntityRecord> all;
        for (std::int32_t i = 1; i < s.store.end(); ++i) {
            if (s.store.isShown(i)) all.push_back(s.store.record(i));
        }
        return all;
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{1200, 800}};
};

inline constexpr float halfRoot = 35.355339F; // of a radius of 50, along each axis at 45 degrees

inline EntityRecord plain(Kind kind)
{
    EntityRecord r;
    r.kind = kind;
    r.layer = 3;
    r.color = 0x00FF00;
    r.style = kind < Kind::text ? std::int16_t{1} : std::int16_t{0};
    return r;
}

inline EntityRecord withWords(EntityRecord r, const char* words)
{
    r.t1 = words;
    r.t2 = "Garamond";
    return r;
}

inline EntityRecord dimension(Kind kind, const char* words)
{
    EntityRecord r = withWords(plain(kind), words);
    r.s1 = 2;
    r.s2 = 10;
    r.a2 = 8;
    return r;
}

// One object of the kind, with every field that the kind has and no other.
inline EntityRecord sample(Kind kind)
{
    EntityRecord r = plain(kind);
    switch (kind) {
    case Kind::line:
        r.p1 = {10, 20};
        r.p2 = {40, 60};
        break;
    case Kind::circle:
        r.p1 = {100, 100};
        r.rad = 30;
        break;
    case Kind::arc: // a quarter, from the right to the top
        r.p1 = {200, 100};
        r.p2 = {250, 100};
        r.p3 = {200, 50};
        r.p4 = {200 + halfRoot, 100 - halfRoot};
        r.rad = 50;
        r.a1 = 0;
        r.a2 = quarterTurn;
        break;
    case Kind::ellipse:
        r.p1 = {140, 100};
        r.p2 = {100, 100};
        r.p3.x = 0.5F;
        break;
    case Kind::point:
        r.p1 = {7, 9};
        break;
    case Kind::text: // 30 wide
        r = withWords(r, "Hallo");
        r.p1 = {50, 50};
        r.p2 = {10, 0};
        r.p3.x = 1;
        r.p4 = {50, 50};
        r.rad = 36;
        break;
    case Kind::linearDimension: // its text is 6 wide
        r = dimension(kind, "9");
        r.p2 = {100, 0};
        r.p3 = {100, 40};
        r.p4 = {0, 40};
        r.p5 = {30, 30};
        break;
    case Kind::radialDimension: // 12
        r = dimension(kind, "R5");
        r.p2 = {80, 0};
        r.p3 = {90, 0};
        r.p4 = {50, 0};
        r.p5 = {95, 0};
        break;
    case Kind::leader: // 24; it has no fourth pair, yet something stands there
        r = dimension(kind, "note");
        r.p2 = {10, 10};
        r.p3 = {20, 10};
        r.p4 = {1, 2};
        r.p5 = {25, 10};
        break;
    case Kind::angularDimension: // 12; a quarter, from the right to the top
        r = dimension(kind, "90");
        r.style = 2;
        r.s1 = 8;
        r.p2 = {60, 0};
        r.p3 = {0, -60};
        r.p4 = {50, 0};
        r.p5 = {40, -40};
        r.rad = 50;
        r.a1 = 0;
        r.a2 = quarterTurn;
        break;
    default:
        break;
    }
    return r;
}

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
