// What becomes of numbers on their way to the toolkit, which counts in whole ones.

#include "platform/qt/whole.h"

#include "platform/qt/page_painter.h"
#include "platform/qt/surface.h"

#include <QImage>

#include <gtest/gtest.h>

#include <limits>

namespace mirtane {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();
constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

TEST(Whole, IsTheNearestWithinTheLimits)
{
    const struct {
        const char* what;
        double value;
        int low, high, whole;
    } rows[] = {
        {"between", 2.4, -10, 10, 2},
        {"half goes away from nought", 2.5, -10, 10, 3},
        {"below nought", -2.5, -10, 10, -3},
        {"too high", 10.6, -10, 10, 10},
        {"too low", -1e300, -10, 10, -10},
        {"endless", endless, 1, 7, 7},
        {"endlessly low", -endless, 1, 7, 1},
        {"none", nan, 1, 7, 1},
        {"the greatest", 1e10, least, most, most},
        {"the least", -2147483648.0, least, most, least},
    };
    for (const auto& row : rows) EXPECT_EQ(wholeWithin(row.value, row.low, row.high), row.whole) << row.what;
}

TEST(Whole, SizesAndPointsAreWithinWhatTheToolkitCounts)
{
    EXPECT_EQ(wholeSize({3.6, 1e30}), QSize(4, largestWholeSide));
    EXPECT_EQ(wholeSize({nan, -5}), QSize(0, 0));
    EXPECT_EQ(wholePoint({-3.6, 1e30}), QPoint(-4, largestWholeSide));
    EXPECT_EQ(wholePoint({-endless, nan}), QPoint(-largestWholeSide, -largestWholeSide));
    for (const QRectF& rect : {QRectF(-1.5, 2, 4.25, 7), QRectF(3, 4.01, 0.5, 8), QRectF(0, 0, 120, 80)})
        EXPECT_EQ(wholeRectRound(rect), rect.toAlignedRect());
}

TEST(Whole, NumbersBecome32BitsOrNothing)
{
    EXPECT_EQ(singleOf(0.1), 0.1F);
    for (const double value : {nan, endless, -endless, 1e39, -4e38}) EXPECT_EQ(singleOf(value), 0) << value;
}

TEST(Whole, AnglesOfAnySizeTurnATextOnThePage)
{
    QImage page(100, 140, QImage::Format_RGB32);
    PicturePrinter printer(page, 1000, 1400, 0.1);
    ASSERT_TRUE(printer.beginPage({}));
    printer.font("Serif", 12);
    for (const int degrees : {least, least + 1, -360, 0, 7, most})
        printer.rotatedText(500, 700, 240, degrees, true, "wall");
    for (const double angle : {nan, endless, -1e300, -7.0, 0.0, 4e9, 1e300}) {
        printer.arc(500, 700, 300, angle, 1);
        printer.arc(500, 700, 300, -3, angle);
    }
    EXPECT_TRUE(printer.endPage());
}

TEST(Whole, AnglesOfAnySizeTurnATextOnTheSurface)
{
    Surface surface(120, 80);
    surface.setFontSize(24);
    for (const int degrees : {least, least + 1, -33, 0, most}) surface.text(60, 40, degrees, "wall");
    EXPECT_FALSE(surface.takeDirty().empty());
}

} // namespace
} // namespace mirtane
