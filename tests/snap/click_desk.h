#pragma once

// A drawing and a click under way in it, as the snaps and picks find them. One world unit to the pixel, 1200
// by 800: an object is meant within 24 units, and the view is 1200 wide.

#include "geometry/angle.h"
#include "kind_print.h"
#include "model/session.h"
#include "render/recording_canvas.h"
#include "snap/snap.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane::fake {

inline constexpr std::int16_t shift = 1;
inline constexpr std::int16_t ctrl = 2;

// The fields of an object that are looked at, so that a test names those that matter.
struct Object {
    Point p1{}, p2{}, p3{}, p4{}, p5{};
    float rad = 0;
    double a1 = 0, a2 = 0;
    std::int32_t color = 0;
    std::int16_t layer = 0, style = 0;
    Kind kind = noKind;
};

class ClickDesk {
  public:
    explicit ClickDesk(std::string_view function = "Line")
    {
        pic1.setScale({0, 0, 1200, 800});
        s.curFunc = function;
        ortho(false);
    }

    std::int32_t add(const Object& o, Stat stat = Stat::on)
    {
        const std::int32_t slot = s.store.entCount++;
        put(slot, o);
        s.store.setStat(slot, stat);
        return slot;
    }
    void put(std::int32_t slot, const Object& o)
    {
        EntityRecord r;
        r.p1 = o.p1;
        r.p2 = o.p2;
        r.p3 = o.p3;
        r.p4 = o.p4;
        r.p5 = o.p5;
        r.rad = o.rad;
        r.a1 = o.a1;
        r.a2 = o.a2;
        r.color = o.color;
        r.layer = o.layer;
        r.style = o.style;
        r.kind = o.kind;
        s.store.setRecord(slot, r);
    }
    std::int32_t line(Point a, Point b, Stat stat = Stat::on)
    {
        return add({.p1 = a, .p2 = b, .kind = Kind::line}, stat);
    }
    std::int32_t circle(Point centre, float radius, Stat stat = Stat::on)
    {
        return add({.p1 = centre, .rad = radius, .kind = Kind::circle}, stat);
    }
    std::int32_t arc(Point centre, float radius, double a1, double a2, Stat stat = Stat::on)
    {
        Object r{.p1 = centre, .rad = radius, .a1 = a1, .a2 = a2, .kind = Kind::arc};
        r.p2 = polarPoint(centre, radius, a1);
        r.p3 = polarPoint(centre, radius, a2);
        return add(r, stat);
    }
    std::int32_t ellipse(Point axisEnd, Point centre, float ratio, Stat stat = Stat::on)
    {
        return add({.p1 = axisEnd, .p2 = centre, .p3 = {ratio, 0}, .kind = Kind::ellipse}, stat);
    }
    std::int32_t point(Point at, Stat stat = Stat::on) { return add({.p1 = at, .kind = Kind::point}, stat); }

    void ortho(bool on) { s.controls["freecurs"_c].caption = on ? "Ortho/On" : "Ortho/Off"; }

    // A first click, as it stands before the snaps.
    void firstClick(Point mouse)
    {
        s.stepNo = 1;
        s.pickFirst = mouse;
        s.mousePos = mouse;
    }
    // A later click, which ortho may have turned to confined.
    void laterClick(Point first, Point mouse, Point confined, std::int16_t step = 2)
    {
        s.stepNo = step;
        s.pickFirst = first;
        s.pickLast = confined;
        s.mousePos = mouse;
    }
    void laterClick(Point first, Point mouse) { laterClick(first, mouse, mouse); }

    void hold(std::int16_t key)
    {
        s.snapKey = key;
        holdSnap(s, pic1);
    }
    void shoot(const char* code)
    {
        setText(s.controls["snapbox"_c], code);
        oneShotSnap(s, pic1);
    }
    const std::string& armed() const { return s.controls["snapbox"_c].text; }

    // Where a first click near mouse lands by the snap of that code.
    Point snapped(const char* code, Point mouse)
    {
        firstClick(mouse);
        shoot(code);
        return s.pickFirst;
    }
    // The same for a second click of a leg that begins at first.
    Point snappedSecond(const char* code, Point first, Point mouse)
    {
        laterClick(first, mouse);
        shoot(code);
        return s.pickLast;
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{1200, 800}};
};

inline void expectPoint(Point found, Point wanted, const char* what, float within = 0.001f)
{
    EXPECT_NEAR(found.x, wanted.x, within) << what;
    EXPECT_NEAR(found.y, wanted.y, within) << what;
}

} // namespace mirtane::fake

namespace mirtane {

inline void PrintTo(const Point& p, std::ostream* out)
{
    *out << '(' << p.x << ", " << p.y << ')';
}

} // namespace mirtane
