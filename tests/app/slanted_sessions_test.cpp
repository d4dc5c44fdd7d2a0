// Sessions by chance over drawings of lines that are parallel, as ortho, copies and breaks make them, or
// plainly aslant to one another. MIRTANE_SLANTED_SESSIONS says how many there are.

#include "edits_desk.h"
#include "geometry/angle.h"
#include "slanted.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mirtane {
namespace {

using fake::Desk;
using fake::Segment;
using fake::Slanted;

constexpr int everyday = 400;
constexpr int breakRow = 0;
constexpr int trimRow = 1;
constexpr int copyRow = 3;
constexpr int filletRow = 11;

int sessionsWanted()
{
    const char* const wanted = std::getenv("MIRTANE_SLANTED_SESSIONS");
    return wanted == nullptr ? everyday : std::atoi(wanted);
}

class Draughtsman {
  public:
    Draughtsman(Desk& desk, std::uint32_t seed) : desk_(desk), dice_(seed)
    {
        middle_ = dice_.pointWithin({0, 0}, dice_.chance() ? 1000 : 100000);
        reach_ = dice_.between(300, 1000);
        for (std::int32_t i = 1; i <= desk_.s.store.entCount; ++i) desk_.s.store.setRecord(i, {});
        desk_.s.store.entCount = 1;
        clearRecords(desk_.s.log);
        desk_.pic1.setScale({middle_.x - 2400, middle_.y - 1600, 4800, 3200});
        desk_.shell.resized();
    }

    void draw()
    {
        const double turned = dice_.between(0, 60);
        for (const double degrees : {turned, turned + dice_.between(25, 29)}) {
            setOrthoAngle(degrees);
            for (int i = 2 + dice_.below(3); i > 0; --i) drawLeg();
        }
        for (int i = dice_.below(3); i > 0; --i) copyOne();
        for (int i = dice_.below(3); i > 0; --i) breakOne();
    }

    void edit()
    {
        constexpr void (Draughtsman::*ways[])() = {&Draughtsman::fillet, &Draughtsman::trim,
                                                   &Draughtsman::snap};
        (this->*ways[dice_.below(3)])();
        if (dice_.chance()) desk_.press("undu"_c);
    }

    // How far the drawing goes from its middle, in sizes of it.
    double extent() const
    {
        double most = 0;
        for (std::int32_t i = 1; i < desk_.s.store.end(); ++i) {
            const EntityRecord r = desk_.slot(i);
            most = std::max({most, away(r.p1), away(r.p2)});
            if (r.kind == Kind::arc) most = std::max({most, away(r.p3), away(r.p4), double{r.rad}});
        }
        return most / (2 * reach_);
    }

  private:
    Point somewhere() { return dice_.pointWithin(middle_, reach_); }
    double away(Point p) const
    {
        return std::max(std::abs(double{p.x} - middle_.x), std::abs(double{p.y} - middle_.y));
    }
    void click(Point p) { desk_.click(p.x, p.y); }

    void setOrthoAngle(double degrees)
    {
        desk_.press("angle"_c);
        desk_.type(std::to_string(degrees));
        desk_.enter();
    }

    void drawLeg()
    {
        const Point from = somewhere();
        Point to = somewhere();
        while (distance(from, to) < reach_ / 3) to = somewhere();
        desk_.press("Command1"_c);
        click(from);
        click(to);
        desk_.cancel();
    }

    // On one of the lines that are shown, away from its ends.
    Point onSomeLine()
    {
        std::vector<Segment> lines;
        for (std::int32_t i = 1; i < desk_.s.store.end(); ++i) {
            const EntityRecord r = desk_.slot(i);
            if (desk_.s.store.isShown(i) && r.kind == Kind::line) lines.push_back({r.p1, r.p2});
        }
        return lines[static_cast<std::size_t>(dice_.below(static_cast<int>(lines.size())))].at( // a few lines
            dice_.between(0.2, 0.8));
    }

    void select(int lines)
    {
        desk_.press("Command20"_c);
        for (int i = 0; i < lines; ++i) click(onSomeLine());
    }

    void begin(int row, int lines)
    {
        select(lines);
        desk_.shell.clickRow(fake::list, row);
    }

    void copyOne()
    {
        begin(copyRow, 1);
        const Point from = somewhere();
        click(from);
        click(dice_.pointWithin(from, reach_ / 2));
    }

    void breakOne()
    {
        begin(breakRow, 1);
        const Point at = onSomeLine();
        click(at);
        click({at.x + 3, at.y + 2});
    }

    void fillet()
    {
        begin(filletRow, 2);
        if (dice_.chance()) {
            desk_.type(std::to_string(dice_.below(9)));
            desk_.enter();
        }
        click(somewhere());
    }

    void trim()
    {
        begin(trimRow, 1 + dice_.below(2));
        click(onSomeLine());
        desk_.cancel();
    }

    void snap()
    {
        desk_.press("Command1"_c);
        click(somewhere());
        desk_.press("Command36"_c);
        click(onSomeLine());
        desk_.cancel();
    }

    Desk& desk_;
    Slanted dice_;
    Point middle_;
    double reach_;
};

TEST(SlantedSessions, NoFilletTrimOrSnapGoesBeyondTenTimesTheDrawing)
{
    Desk desk;
    int rounded = 0;
    for (int i = 0; i < sessionsWanted(); ++i) {
        Draughtsman man(desk, static_cast<std::uint32_t>(i)); // above 0
        man.draw();
        for (int edits = 0; edits < 4; ++edits) {
            man.edit();
            EXPECT_LT(man.extent(), 10) << "session " << i << ", edit " << edits;
        }
        for (std::int32_t slot = 1; slot < desk.s.store.end(); ++slot)
            if (desk.slot(slot).kind == Kind::arc) ++rounded;
    }
    EXPECT_GT(rounded, sessionsWanted() / 4);
}

} // namespace
} // namespace mirtane
