// Letters that are kept: written as if each were made anew, asked for once, and no more than there is room
// for.

#include "render/type_case.h"

#include "hostile_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <numbers>
#include <tuple>

namespace mirtane {
namespace {

constexpr std::uint32_t ink = 0xFFFFFFFF;

using Asked = std::map<std::tuple<std::uint32_t, int, int, int>, int>;

// Letters are bars on the base line, each a little longer than the one before, of pixels whose middles lie in
// them.
class Bars {
  public:
    Coverage operator()(const TypeCase::Order& order)
    {
        ++(*asked)[{order.letter, order.em, order.degrees, order.quarter}];
        const int reach = order.em + 1;
        Coverage found({-reach, -reach, reach, reach}, order.imageWidth);
        for (int row = 0; row < 2 * reach; ++row) {
            for (int column = 0; column < 2 * reach; ++column) {
                const double x = column - reach + 0.5 - order.quarter / 4.0;
                if (isIn(order, x, row - reach + 0.5)) found.ink(column, row, 255);
            }
        }
        return found;
    }

    std::shared_ptr<Asked> asked = std::make_shared<Asked>();

  private:
    static bool isIn(const TypeCase::Order& order, double x, double y)
    {
        const double angle = order.degrees * std::numbers::pi / 180;
        const double along = x * std::cos(angle) - y * std::sin(angle);
        const double below = x * std::sin(angle) + y * std::cos(angle);
        return along > 0 && along < order.em * (0.3 + 0.05 * (order.letter % 8)) && below < 0 &&
               below > -0.7 * order.em;
    }
};

std::vector<SetLetter> someLine(fake::HostileNumbers& numbers, std::uint32_t letters)
{
    std::vector<SetLetter> line;
    for (int i = 0; i < 9; ++i)
        line.push_back({numbers.below(letters), 0.6F * static_cast<float>(i), 0}); // small numbers
    return line;
}

LinePlace somePlace(fake::HostileNumbers& numbers)
{
    const auto whole = [&numbers](std::uint32_t below) { return static_cast<int>(numbers.below(below)); };
    return {{numbers.between(-30, 230), numbers.between(-30, 230)}, 9.5, 1 + whole(30), whole(720) - 360};
}

TEST(TypeCase, AsksOnceForEachLetterOfASizeAnAngleAndAQuarterOfAPixel)
{
    Bars bars;
    TypeCase letters(bars);
    Raster image(200, 200);
    fake::HostileNumbers numbers(3);
    for (int round = 0; round < 400; ++round) {
        LinePlace place = somePlace(numbers);
        place.em = 8 + static_cast<int>(numbers.below(2)); // 8 or 9
        place.degrees = 37 * static_cast<int>(numbers.below(3)) - 360;
        letters.write(image, someLine(numbers, 5), place, ink);
    }
    EXPECT_EQ(bars.asked->size(), 5U * 2 * 3 * 4);
    for (const auto& [order, times] : *bars.asked) EXPECT_EQ(times, 1);
    EXPECT_TRUE(bars.asked->contains({4, 9, 0, 3}));
    EXPECT_TRUE(bars.asked->contains({0, 8, 74, 0}));
}

TEST(TypeCase, WritesFromWhatIsKeptAsAnew)
{
    TypeCase kept{Bars{}};
    fake::HostileNumbers numbers(4);
    for (int round = 0; round < 100; ++round) {
        const auto line = someLine(numbers, 20);
        const LinePlace place = somePlace(numbers);
        Raster first(200, 200), second(200, 200);
        kept.write(first, line, place, ink);
        TypeCase anew{Bars{}};
        anew.write(second, line, place, ink);
        ASSERT_TRUE(std::ranges::equal(first.pixels(), second.pixels())) << round;
    }
}

TEST(TypeCase, WritesIntoImagesOfOtherWidthsToo)
{
    TypeCase kept{Bars{}};
    fake::HostileNumbers numbers(6);
    for (const int width : {200, 70, 333, 70, 200}) {
        const auto line = someLine(numbers, 20);
        const LinePlace place{{10, 10}, 9.5, 20, 30};
        Raster first(width, 200), second(width, 200);
        kept.write(first, line, place, ink);
        TypeCase anew{Bars{}};
        anew.write(second, line, place, ink);
        EXPECT_TRUE(std::ranges::equal(first.pixels(), second.pixels())) << width;
        EXPECT_GT(std::ranges::count(first.pixels(), ink), 100) << width;
    }
}

// A few of the sizes and angles have room in it, and a single one may have too many letters.
TEST(TypeCase, TakesNoMoreThanItsBound)
{
    constexpr std::size_t bounds[] = {20'000, 200'000, 2'000'000};
    for (const std::size_t bound : bounds) {
        TypeCase kept{Bars{}, bound};
        fake::HostileNumbers numbers(5);
        for (int round = 0; round < 150; ++round) {
            const auto line = someLine(numbers, round % 50 == 0 ? 2000 : 20);
            const LinePlace place = somePlace(numbers);
            Raster first(200, 200), second(200, 200);
            kept.write(first, line, place, ink);
            EXPECT_LE(kept.bytes(), std::max<std::size_t>(bound, 40'000))
                << "the last letter has its room in any case";
            TypeCase anew{Bars{}};
            anew.write(second, line, place, ink);
            ASSERT_TRUE(std::ranges::equal(first.pixels(), second.pixels())) << bound << " " << round;
        }
    }
}

TEST(TypeCase, LetsTheOldestSizesGo)
{
    Bars bars;
    TypeCase kept{bars, 300'000};
    Raster image(200, 200);
    const std::vector<SetLetter> line{{1, 0, 0}, {2, 0.5F, 0}};
    const LinePlace used{{20, 20}, 9, 20, 0};
    const std::size_t before = kept.bytes();
    EXPECT_EQ(before, 0U);
    for (int size = 21; size < 90; ++size) {
        kept.write(image, line, {{20, 20}, 9, size, 33}, ink);
        kept.write(image, line, used, ink);
    }
    EXPECT_LE(kept.bytes(), 300'000U);
    const std::size_t now = kept.bytes();
    kept.write(image, line, used, ink);
    EXPECT_EQ(kept.bytes(), now) << "what is written all the time is still there";
    kept.write(image, line, {{20, 20}, 9, 21, 33}, ink);
    EXPECT_GT(kept.bytes(), now) << "what was written once has gone";
}

struct TurnRow {
    int degrees;
    PixelRect inked; // of a box 6 wide and 14 high whose line begins at (50, 50), 20 above the base line
};

TEST(TypeCase, TurnsALineAboutItsUpperLeftCorner)
{
    const TurnRow rows[] = {
        {0, {50, 56, 56, 70}},    {90, {56, 44, 70, 50}},  {180, {44, 30, 50, 44}},  {270, {30, 50, 44, 56}},
        {-270, {56, 44, 70, 50}}, {450, {56, 44, 70, 50}}, {-180, {44, 30, 50, 44}}, {720, {50, 56, 56, 70}},
    };
    for (const TurnRow& row : rows) {
        TypeCase letters{Bars{}};
        Raster image(100, 100);
        letters.write(image, std::vector<SetLetter>{{0, 0, 0}}, {{50, 50}, 20, 20, row.degrees}, ink);
        PixelRect found;
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                if (image.at(x, y) == ink) found.unite({x, y, x + 1, y + 1});
            }
        }
        EXPECT_EQ(found, row.inked) << row.degrees;
    }
}

} // namespace
} // namespace mirtane
