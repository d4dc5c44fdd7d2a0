#include "geometry/rounding.h"

#include "slanted.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Slanted;

TEST(Rounding, HalfAStepIsTheMostThatStoringChanges)
{
    Slanted dice(31);
    for (int i = 0; i < 20000; ++i) {
        const double number = dice.anySize(1e-3, 4e6);
        const auto held = static_cast<float>(number); // as stored
        ASSERT_LE(std::abs(held - number), halfStepOf(number)) << number;
    }
}

TEST(Rounding, PointsAFewStepsApartAreOneAndOthersAreNot)
{
    Slanted dice(32);
    for (int i = 0; i < 20000; ++i) {
        const double reach = dice.anySize(1, 3000000);
        const Point p = dice.pointWithin({0, 0}, reach);
        Point beside = p;
        for (int step = dice.below(3); step > 0; --step) beside.x = std::nextafter(beside.x, 1e9F);
        for (int step = dice.below(3); step > 0; --step) beside.y = std::nextafter(beside.y, -1e9F);
        ASSERT_TRUE(areOnePoint(p, beside)) << i;
        ASSERT_TRUE(areOnePoint(beside, p)) << i;
        const auto off = static_cast<float>(reach / 100000);
        ASSERT_FALSE(areOnePoint(p, {p.x, p.y + off})) << i;
        ASSERT_FALSE(areOnePoint({p.x - off, p.y}, p)) << i;
    }
    EXPECT_TRUE(areOnePoint({}, {}));
    EXPECT_FALSE(areOnePoint({}, {1e-6F, 0}));
}

} // namespace
} // namespace mirtane
