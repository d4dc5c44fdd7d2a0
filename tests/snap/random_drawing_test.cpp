// Random drawings, the same at each run, searched by the program and by the rules as plainly said.

#include "click_desk.h"
#include "plain_search.h"
#include "snap/pick.h"
#include "snap/window_selection.h"

#include <algorithm>
#include <random>

namespace mirtane {
namespace {

using fake::ClickDesk;
using plain::Arcs;

constexpr float radius = 24;

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    int below(int limit)
    {
        return static_cast<int>(engine_() % static_cast<unsigned>(limit));
    } // limit is small
    float between(float low, float high)
    {
        return low + (high - low) * static_cast<float>(engine_()) / 4294967296.0f; // 24 bits will do
    }

  private:
    std::mt19937 engine_;
};

Stat throwStat(Dice& dice)
{
    constexpr Stat stats[] = {Stat::on, Stat::on, Stat::on, Stat::sel, Stat::off, Stat::out};
    return stats[dice.below(6)];
}

Kind throwKind(Dice& dice)
{
    // Lines, circles and arcs more often than the others, and some that are no objects.
    constexpr Kind more[] = {Kind::line,          Kind::line,    Kind::circle,       Kind::arc,
                             pieceOf(Kind::line), layerNameKind, polylineSegmentKind};
    const std::size_t thrown =
        static_cast<std::size_t>(dice.below(static_cast<int>(drawnKinds + std::size(more)))); // small
    return thrown < drawnKinds ? everyKind[thrown] : more[thrown - drawnKinds];
}

// Whole numbers, lines along the axes, circles right over or beside the click: every distance is exact, and
// ties are common.
EntityRecord throwOnGrid(Dice& dice, Point click)
{
    const auto point = [&] {
        return Point{static_cast<float>(dice.below(40)), static_cast<float>(dice.below(40))}; // small numbers
    };
    EntityRecord o;
    for (Point* p : {&o.p1, &o.p2, &o.p3, &o.p4, &o.p5}) *p = point();
    o.kind = throwKind(dice);
    o.rad = static_cast<float>(dice.below(20)); // small numbers
    if (o.kind == Kind::line) (dice.below(2) ? o.p2.x = o.p1.x : o.p2.y = o.p1.y);
    if (isRound(o.kind)) (dice.below(2) ? o.p1.x = click.x : o.p1.y = click.y);
    o.a1 = 0.1 + 1.5707963 * dice.below(4);
    o.a2 = 0.1 + 1.5707963 * dice.below(4);
    if (o.kind == Kind::ellipse) {
        o.p1 = {o.p2.x + static_cast<float>(1 + dice.below(12)), o.p2.y}; // small numbers
        o.p3.x = 0.5f * static_cast<float>(1 + dice.below(4));            // small numbers
    }
    return o;
}

void drawOnGrid(ClickDesk& desk, Dice& dice, Point click)
{
    desk.s.store.entCount = 1;
    for (int i = 0; i < 40; ++i) desk.add(throwOnGrid(dice, click), throwStat(dice));
}

Point throwClick(Dice& dice)
{
    return {static_cast<float>(dice.below(40)), static_cast<float>(dice.below(40))}; // small numbers
}

TEST(RandomDrawing, PickTakesTheNearestAndOfEqualsTheLast)
{
    Dice dice(1);
    ClickDesk desk("Object Select");
    int picked = 0;
    for (int run = 0; run < 1500; ++run) {
        const Point click = throwClick(dice);
        drawOnGrid(desk, dice, click);
        desk.s.mousePos = click;
        const bool textEdit = run % 3 == 0;
        desk.s.curFunc = textEdit ? "Text Edit" : "Object Select";
        const std::int32_t wanted = plain::search(
            desk.s.store, {click, radius, textEdit ? std::span<const Kind>(plain::worded) : everyKind,
                           Arcs::onSweepAndABit, -1, true});
        ASSERT_EQ(pickObject(desk.s, desk.pic1), wanted) << run;
        picked += wanted >= 0;
    }
    EXPECT_GT(picked, 1000);
}

TEST(RandomDrawing, SnapObjectGivesTheNearestPointOfTheNearestObject)
{
    Dice dice(2);
    ClickDesk desk;
    for (int run = 0; run < 1500; ++run) {
        const Point click = throwClick(dice);
        drawOnGrid(desk, dice, click);
        const Point found = desk.snapped("so", click);
        const std::int32_t wanted = plain::search(desk.s.store, {click, radius, plain::shapes, Arcs::whole});
        ASSERT_EQ(desk.s.snapBestIndex, wanted) << run;
        if (wanted < 0) {
            ASSERT_EQ(found, click) << run;
        } else {
            const auto near = plain::nearestOf(desk.s.store, EntityStore::at(wanted), click, Arcs::whole);
            fake::expectPoint(found, near->at, "the nearest point", 1e-5f);
        }
    }
}

TEST(RandomDrawing, SnapIntersectionTakesTheTwoNearest)
{
    Dice dice(3);
    ClickDesk desk;
    for (int run = 0; run < 1500; ++run) {
        const Point click = throwClick(dice);
        drawOnGrid(desk, dice, click);
        desk.snapped("si", click);
        const plain::Rule rule{click, radius, plain::crossing, Arcs::onSweep};
        const std::int32_t first = plain::search(desk.s.store, rule);
        ASSERT_EQ(desk.s.snapBestIndex, first) << run;
        plain::Rule again = rule;
        again.skipped = first;
        ASSERT_EQ(desk.s.snapSecondIndex, first < 0 ? -1 : plain::search(desk.s.store, again)) << run;
    }
}

TEST(RandomDrawing, SnapPercentageAndMidpointGoByTheNearestObject)
{
    Dice dice(4);
    ClickDesk desk;
    for (int run = 0; run < 1000; ++run) {
        const Point click = throwClick(dice);
        drawOnGrid(desk, dice, click);
        desk.snapped("sf", click);
        ASSERT_EQ(desk.s.snapBestIndex,
                  plain::search(desk.s.store, {click, radius, plain::crossing, Arcs::onSweep}))
            << run;
        desk.snapped("sm", click);
        ASSERT_EQ(desk.s.snapBestIndex,
                  plain::search(desk.s.store, {click, 1200, plain::crossing, Arcs::whole}))
            << run;
    }
}

TEST(RandomDrawing, SnapPointTakesTheNearestPointAndOfEqualsTheFirst)
{
    Dice dice(5);
    ClickDesk desk;
    for (int run = 0; run < 1500; ++run) {
        const Point click = throwClick(dice);
        drawOnGrid(desk, dice, click);
        if (run % 10 == 0) desk.s.store.entCount = 1 + dice.below(3);
        Point wanted;
        auto least = static_cast<float>(1200); // as wide as the view
        for (std::size_t i = 1; i < EntityStore::at(desk.s.store.entCount); ++i) {
            for (const Point p : plain::offeredPoints(desk.s.store, i)) {
                const auto d = static_cast<float>(distance(click, p)); // distances are compared so
                if (d >= least) continue;
                wanted = p;
                least = d;
            }
        }
        ASSERT_EQ(desk.snapped("sp", click), wanted) << run;
    }
}

TEST(RandomDrawing, AWindowMarksWhatLiesWhollyInIt)
{
    Dice dice(6);
    ClickDesk desk;
    int marked = 0;
    for (int run = 0; run < 1000; ++run) {
        drawOnGrid(desk, dice, {20, 20});
        const Point a = throwClick(dice);
        const Point b = throwClick(dice);
        const std::vector<Stat> before = desk.s.store.stat;
        desk.s.window1 = a;
        desk.s.window2 = b;
        selectInWindow(desk.s, false);
        for (std::size_t i = 1; i < EntityStore::at(desk.s.store.entCount); ++i) {
            const auto points = plain::windowPoints(desk.s.store, i);
            const bool within = !points.empty() && std::ranges::all_of(points, [&](Point p) {
                return p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) &&
                       p.y <= std::max(a.y, b.y);
            });
            const bool turns = within && before[i] == Stat::on;
            ASSERT_EQ(desk.s.store.stat[i], turns ? Stat::sel : before[i]) << run << ", slot " << i;
            marked += turns;
        }
    }
    EXPECT_GT(marked, 500);
}

// Any coordinates, near the origin and far off: there are no ties, but two objects may be too close to call.
EntityRecord throwAnywhere(Dice& dice, Point about)
{
    const auto point = [&] {
        return Point{about.x + dice.between(-300, 300), about.y + dice.between(-300, 300)};
    };
    EntityRecord o;
    for (Point* p : {&o.p1, &o.p2, &o.p3, &o.p4, &o.p5}) *p = point();
    o.kind = throwKind(dice);
    o.rad = dice.between(0, 300);
    o.a1 = dice.between(0, 6.28f);
    o.a2 = dice.between(0, 6.28f);
    if (o.kind == Kind::ellipse) o.p3.x = dice.between(0.1f, 2);
    return o;
}

float distanceTo(const EntityStore& store, std::int32_t slot, Point click, Arcs arcs)
{
    if (slot < 0) return radius;
    const auto near = plain::nearestOf(store, EntityStore::at(slot), click, arcs);
    return near ? near->distance : radius;
}

TEST(RandomDrawing, NothingNearerIsEverPassedOver)
{
    Dice dice(7);
    ClickDesk desk("Object Select");
    for (int run = 0; run < 2000; ++run) {
        const float away = run % 2 == 0 ? 0 : 30000;
        const Point click{away + dice.between(-50, 50), away + dice.between(-50, 50)};
        desk.s.store.entCount = 1;
        for (int i = 0; i < 30; ++i) desk.add(throwAnywhere(dice, {away, away}), throwStat(dice));
        desk.s.mousePos = click;
        const auto compare = [&](std::int32_t found, std::span<const Kind> kinds, Arcs arcs) {
            const std::int32_t wanted = plain::search(desk.s.store, {click, radius, kinds, arcs});
            EXPECT_NEAR(distanceTo(desk.s.store, found, click, arcs),
                        distanceTo(desk.s.store, wanted, click, arcs), 0.01)
                << run;
        };
        compare(pickObject(desk.s, desk.pic1), everyKind, Arcs::onSweepAndABit);
        desk.snapped("so", click);
        compare(desk.s.snapBestIndex, plain::shapes, Arcs::whole);
    }
}

} // namespace
} // namespace mirtane
