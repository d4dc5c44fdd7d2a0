// Shapes that cover pixels in part, laid over what is there.

#include "render/coverage.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

constexpr int columns = 10;

// Three columns and two rows about the place that it is laid at; the last column is covered by half.
Coverage shape()
{
    Coverage found({-1, -1, 2, 1}, columns);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) found.ink(column, row, column == 2 ? 127 : 255);
    }
    return found;
}

struct LaidRow {
    const char* what;
    std::int64_t x, y;
    int pixels; // that have changed
};

TEST(RasterShapes, AreCutByTheEdgesOfTheImage)
{
    constexpr std::int64_t farthest = 1'000'000'000'000;
    const LaidRow rows[] = {
        {"in the middle", 5, 4, 6},
        {"at the upper left", 0, 0, 2},
        {"at the lower right", 9, 7, 4},
        {"just within", 1, 1, 6},
        {"its last column at the left", -1, 3, 2},
        {"beyond the left", -2, 3, 0},
        {"its first row at the foot", 4, 8, 3},
        {"below", 4, 9, 0},
        {"its first column at the right", 10, 3, 2},
        {"beyond the right", 11, 3, 0},
        {"far away", farthest, -farthest, 0},
    };
    for (const LaidRow& row : rows) {
        Raster image(columns, 8);
        image.lay(shape(), row.x, row.y, 0xFFFF8040);
        int changed = 0;
        for (const std::uint32_t pixel : image.pixels()) changed += pixel != 0xFF000000 ? 1 : 0;
        EXPECT_EQ(changed, row.pixels) << row.what;
    }
}

TEST(RasterShapes, MixTheirColourWithWhatIsThereAsFarAsTheyCover)
{
    Raster image(columns, 8);
    image.fill(0xFF204080);
    image.lay(shape(), 5, 4, 0xFFFF8000);
    EXPECT_EQ(image.at(4, 3), 0xFFFF8000) << "whole";
    EXPECT_EQ(image.at(5, 4), 0xFFFF8000) << "whole";
    EXPECT_EQ(image.at(6, 4), 0xFF8F6040) << "half of either";
    EXPECT_EQ(image.at(7, 4), 0xFF204080) << "beside it";
}

} // namespace
} // namespace mirtane
