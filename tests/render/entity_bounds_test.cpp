// Which points make the box round a drawing, and the view that shows it.

#include "render/entity_bounds.h"

#include "records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using fake::record;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

IntegerBox boxOf(const EntityRecord& r, float textWidth = 0)
{
    static EntityStore store;
    store.setRecord(1, r);
    IntegerBox box;
    feedBounds(box, store, 1, textWidth);
    return box;
}

IntegerBox box(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom)
{
    return {{left, right, true}, {top, bottom, true}};
}

// Each point that a kind might feed lies in its own direction, so that a missing or a surplus one shows.
const Point west{-100, 1}, north{2, -200}, east{300, 3}, south{4, 400}, farAway{9000, 9000};

TEST(EntityBounds, EachKindFeedsItsReferencePoints)
{
    struct Row {
        const char* what;
        EntityRecord r;
        IntegerBox expected;
    };
    const Row rows[] = {
        {"line", record(Kind::line, west, south, farAway, farAway, farAway), box(-100, 1, 4, 400)},
        {"arc without its centre", record(Kind::arc, farAway, west, north, east, farAway),
         box(-100, -200, 300, 3)},
        {"point", record(Kind::point, west, farAway, farAway, farAway, farAway), box(-100, 1, -100, 1)},
        {"linear dimension without p4", record(Kind::linearDimension, west, north, east, farAway, south),
         box(-100, -200, 300, 400)},
        {"radial dimension", record(Kind::radialDimension, west, farAway, farAway, farAway, south),
         box(-100, 1, 4, 400)},
        {"leader", record(Kind::leader, north, farAway, east, farAway, farAway), box(2, -200, 300, 3)},
        {"angular dimension without p4", record(Kind::angularDimension, west, north, east, farAway, south),
         box(-100, -200, 300, 400)},
    };
    for (const Row& row : rows) EXPECT_EQ(boxOf(row.r), row.expected) << row.what;
}

TEST(EntityBounds, ACircleFeedsItsRadiusBothWays)
{
    EntityRecord r = record(Kind::circle, {10, 20}, farAway);
    r.rad = 5;
    EXPECT_EQ(boxOf(r), box(5, 15, 15, 25));
}

TEST(EntityBounds, AnEllipseFeedsTheEndsOfBothAxes)
{
    EXPECT_EQ(boxOf(record(Kind::ellipse, {110, 50}, {10, 50}, {0.5F, 9000})), box(-90, 0, 110, 100))
        << "level";
    EXPECT_EQ(boxOf(record(Kind::ellipse, {10, 150}, {10, 50}, {0.25F, 0})), box(-15, -50, 35, 150))
        << "upright";
    // First axis (30, 40) from the centre, the second (-20, 15) and its opposite: not the box of the curve.
    EXPECT_EQ(boxOf(record(Kind::ellipse, {30, 40}, {0, 0}, {0.5F, 0})), box(-30, -40, 30, 40)) << "turned";
    EXPECT_EQ(boxOf(record(Kind::ellipse, {30, 40}, {0, 0}, {2, 0})), box(-80, -60, 80, 60))
        << "second axis the longer";
    EXPECT_EQ(boxOf(record(Kind::ellipse, {7, 8}, {7, 8}, {0.5F, 0})), box(7, 8, 7, 8)) << "no first axis";
}

TEST(EntityBounds, ATextFeedsTheCornersOfItsBox)
{
    EntityRecord r = record(Kind::text, {100, 200}, {48, 0}, {}, farAway);
    EXPECT_EQ(boxOf(r, 300), box(100, 200, 400, 248)) << "level";
    r.p2.y = 1;
    EXPECT_EQ(boxOf(r, 300), box(100, 200, 400, 248)) << "justification does not matter";
    r.a1 = 45;
    EXPECT_EQ(boxOf(r, 300), box(100, -12, 346, 234)) << "slanted";
    r.a1 = 90;
    EXPECT_EQ(boxOf(r, 300), box(100, -100, 148, 200)) << "upward";
    r.a1 = 180;
    EXPECT_EQ(boxOf(r, 300), box(-200, 152, 100, 200)) << "upside down";
    EXPECT_EQ(boxOf(r, nan), box(100, 152, 100, 200)) << "a width that is none";
}

TEST(EntityBounds, OtherKindsFeedNothing)
{
    constexpr std::int16_t others[] = {-32768, -1, 0, 11, 12, 16, 20, 24, 25, 30, 35, 32767};
    for (const std::int16_t kind : others)
        EXPECT_FALSE(boxOf(record(Kind{kind}, west, north, east, south)).fed()) << kind;
}

TEST(EntityBounds, CoordinatesAreRoundedToTheNearestTiesToEven)
{
    EXPECT_EQ(boxOf(record(Kind::line, {0.5F, 1.5F}, {2.5F, 3.5F})), box(0, 2, 2, 4));
    EXPECT_EQ(boxOf(record(Kind::line, {-0.5F, -1.5F}, {-2.6F, -2.4F})), box(-3, -2, 0, -2));
}

TEST(EntityBounds, ACoordinateThatDoesNotFitIsSkipped)
{
    EXPECT_EQ(boxOf(record(Kind::line, {nan, 7}, {5, infinite})), box(5, 7, 5, 7));
    EXPECT_EQ(boxOf(record(Kind::line, {3e9F, -1e30F}, {5, 6})), box(5, 6, 5, 6));
    EXPECT_FALSE(boxOf(record(Kind::line, {nan, 7}, {-infinite, 8})).fed()) << "no x at all";
    EntityRecord circle = record(Kind::circle, {10, 20});
    circle.rad = infinite;
    EXPECT_FALSE(boxOf(circle).fed());
}

TEST(EntityBounds, SlotsThatDoNotExistFeedNothing)
{
    const EntityStore store;
    IntegerBox fed;
    feedBounds(fed, store, -1, 0);
    feedBounds(fed, store, EntityStore::slotCount, 0);
    EXPECT_FALSE(fed.fed());
}

TEST(DrawingBounds, OnlyWhatIsShownCounts)
{
    EntityStore store;
    const Stat stats[] = {Stat::none, Stat::on, Stat::sel, Stat::off, Stat::out, Stat::on};
    for (std::int32_t i = 0; i < 6; ++i) {
        const auto at = static_cast<float>(i * 10);
        store.setRecord(i, record(Kind::point, {at, at}));
        store.setStat(i, stats[i]);
    }
    store.entCount = 5; // the last one lies beyond the drawing
    EXPECT_EQ(drawingBounds(store, nullptr), box(10, 10, 20, 20));
}

TEST(DrawingBounds, OnlyTextsAreMeasured)
{
    EntityStore store;
    EntityRecord text = record(Kind::text, {0, 0}, {10, 0});
    text.t1 = "wide";
    store.setRecord(1, record(Kind::point, {0, 0}));
    store.setRecord(2, text);
    store.setStat(1, Stat::on);
    store.setStat(2, Stat::on);
    store.entCount = 3;
    int asked = 0;
    const IntegerBox found = drawingBounds(store, [&asked](const EntityRecord& r) {
        ++asked;
        return r.t1 == "wide" ? 70.0F : 0.0F;
    });
    EXPECT_EQ(found, box(0, 0, 70, 10));
    EXPECT_EQ(asked, 1);
}

TEST(DrawingBounds, AnEmptyDrawingHasNone)
{
    EXPECT_FALSE(drawingBounds(EntityStore(), nullptr).fed());
}

const Scale before{1, 2, 3, 4};

void expectScale(const Scale& scale, float left, float top, float width, float height, const char* what)
{
    EXPECT_FLOAT_EQ(scale.left, left) << what;
    EXPECT_FLOAT_EQ(scale.top, top) << what;
    EXPECT_FLOAT_EQ(scale.width, width) << what;
    EXPECT_FLOAT_EQ(scale.height, height) << what;
}

TEST(FitScale, TheBoxStandsAtTheLeftUpperCornerWithATwentiethToSpare)
{
    struct Row {
        const char* what;
        IntegerBox box;
        double aspect;
        Scale expected;
    };
    const Row rows[] = {
        {"wide box, height follows", box(0, 0, 200, 100), 1, {-5, -5, 210, 210}},
        {"high box, width follows", box(0, 0, 100, 200), 1, {-5, -5, 210, 210}},
        {"high box in a wide window", box(1000, -50, 1010, 50), 2, {995, -52.5F, 210, 105}},
        {"wide box in a wide window", box(-400, 7, 0, 17), 2, {-410, 2, 420, 210}},
        {"level line", box(10, 20, 110, 20), 2, {7.5F, 18.75F, 105, 52.5F}},
        {"upright line", box(10, 20, 10, 120), 2, {5, 17.5F, 210, 105}},
        {"as large as can be",
         box(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX),
         1,
         {-2254857830.0F, -2254857830.0F, 4509715660.0F, 4509715660.0F}},
    };
    for (const Row& row : rows) {
        Scale zoomed = before;
        Scale loaded = before;
        EXPECT_TRUE(fitScale(row.box, row.aspect, zoomed)) << row.what;
        EXPECT_TRUE(fitScaleOrMove(row.box, row.aspect, loaded)) << row.what;
        const Scale& e = row.expected;
        expectScale(zoomed, e.left, e.top, e.width, e.height, row.what);
        expectScale(loaded, e.left, e.top, e.width, e.height, row.what);
    }
}

TEST(FitScale, ABoxThatWasNotFedChangesNothing)
{
    for (const IntegerBox& none :
         {IntegerBox{}, IntegerBox{{0, 9, true}, {}}, IntegerBox{{}, {0, 9, true}}}) {
        Scale scale = before;
        EXPECT_FALSE(fitScale(none, 1, scale));
        EXPECT_FALSE(fitScaleOrMove(none, 1, scale));
        expectScale(scale, 1, 2, 3, 4, "as before");
    }
}

TEST(FitScale, OnePointLeavesTheSizeOfTheWindow)
{
    Scale zoomed = before;
    EXPECT_FALSE(fitScale(box(50, 60, 50, 60), 1, zoomed));
    expectScale(zoomed, 1, 2, 3, 4, "zoomed: nothing changes");
    Scale loaded = before;
    EXPECT_TRUE(fitScaleOrMove(box(50, 60, 50, 60), 1, loaded));
    expectScale(loaded, 50, 60, 3, 4, "opened: the corner goes there");
}

TEST(FitScale, AWindowWithoutAShapeChangesNothing)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const double aspect : {0.0, -1.0, none, std::numeric_limits<double>::infinity()}) {
        Scale scale = before;
        EXPECT_FALSE(fitScale(box(0, 0, 10, 10), aspect, scale)) << aspect;
        EXPECT_FALSE(fitScaleOrMove(box(0, 0, 10, 10), aspect, scale)) << aspect;
        expectScale(scale, 1, 2, 3, 4, "as before");
    }
}

TEST(FitScale, AWindowTooNarrowToHaveAWidthChangesNothing)
{
    Scale scale = before;
    EXPECT_FALSE(fitScale(box(0, 0, 0, 10), 1e-60, scale));
    expectScale(scale, 1, 2, 3, 4, "as before");
}

} // namespace
} // namespace mirtane
