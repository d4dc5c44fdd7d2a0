#pragma once

// A drawing and a click under way in it, as the snaps and picks find them. One world unit to the pixel, 1200
// by 800: an object is meant within 24 units, and the view is 1200 wide.

#include "drawing_desk.h"
#include "snap/snap.h"

#include <gtest/gtest.h>

namespace mirtane::fake {

inline constexpr std::int16_t shift = 1;
inline constexpr std::int16_t ctrl = 2;

// The snaps themselves are called: so a test can say where ortho has turned the click to, and which function
// is at which step. That the canvas input calls them, and when, is shown in tests/app.
class ClickDesk : public DrawingDesk {
  public:
    explicit ClickDesk(std::string_view function = "Line") : DrawingDesk({0, 0, 1200, 800})
    {
        s.curFunc = function;
        ortho(false);
    }

    void put(std::int32_t slot, const EntityRecord& r) { s.store.setRecord(slot, r); }
    std::int32_t line(Point a, Point b, Stat stat = Stat::on) { return add(fake::line(a, b), stat); }
    std::int32_t circle(Point centre, float radius, Stat stat = Stat::on)
    {
        return add(fake::circle(centre, radius), stat);
    }
    std::int32_t arc(Point centre, float radius, double a1, double a2, Stat stat = Stat::on)
    {
        return add(fake::arc(centre, radius, a1, a2), stat);
    }
    std::int32_t ellipse(Point axisEnd, Point centre, float ratio, Stat stat = Stat::on)
    {
        return add(fake::ellipse(axisEnd, centre, ratio), stat);
    }
    std::int32_t point(Point at, Stat stat = Stat::on) { return add(fake::point(at), stat); }

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
