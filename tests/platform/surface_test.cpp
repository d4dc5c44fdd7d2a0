#include "platform/qt/surface.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

constexpr int side = 400;

// Pixels that are not black.
QRect painted(const Surface& surface)
{
    const QImage image = surface.shown();
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xFF000000) all |= QRect(x, y, 1, 1);
        }
    }
    return all;
}

// Four world units to the pixel.
Surface surfaceAtStart()
{
    Surface surface(side, side);
    surface.setScale({0, 0, side * 4, side * 4});
    surface.setColor(white);
    return surface;
}

float widthAt(float size)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(size);
    return surface.textWidth("Mirtane");
}

QRect marksAt(float size)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(size);
    surface.text(400, 400, 0, "Mirtane");
    return painted(surface);
}

TEST(SurfaceText, SizeGoesInWholePoints)
{
    EXPECT_EQ(marksAt(48), marksAt(49.9F)) << "12 and 12.475 points";
    EXPECT_EQ(marksAt(46.1F), marksAt(48)) << "11.525 and 12 points";
    EXPECT_EQ(marksAt(50), marksAt(48)) << "12.5 points go to the even 12";
    EXPECT_EQ(marksAt(54), marksAt(56)) << "13.5 points go to the even 14";
    EXPECT_LT(marksAt(48).width(), marksAt(56).width()) << "12 and 14 points";
}

TEST(SurfaceText, WidthIsTheSameAtEveryZoomAndGrowsWithTheSize)
{
    const float width = widthAt(48);
    Surface surface = surfaceAtStart();
    surface.setFontSize(48);
    for (const float unitsPerPixel : {0.001F, 0.1F, 1.0F, 3.7F, 100.0F, 1e6F}) {
        surface.setScale({5, 6, side * unitsPerPixel, side * unitsPerPixel});
        EXPECT_EQ(surface.textWidth("Mirtane"), width) << unitsPerPixel;
    }
    EXPECT_FLOAT_EQ(widthAt(96), 2 * width);
    EXPECT_FLOAT_EQ(widthAt(49.9F), 49.9F / 48 * width);
}

TEST(SurfaceText, ManyFontsInTurnAreEachTheirOwn)
{
    const auto marksOf = [](Surface& surface, int size) {
        surface.clear();
        surface.setFontSize(static_cast<float>(size)); // whole numbers
        surface.text(400, 400, 0, "Mirtane");
        return painted(surface);
    };
    std::vector<QRect> alone;
    for (int size = 48; size < 48 + 4 * 40; size += 4) {
        Surface surface = surfaceAtStart();
        alone.push_back(marksOf(surface, size));
    }
    Surface surface = surfaceAtStart();
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 40; ++i)
            EXPECT_EQ(marksOf(surface, 48 + 4 * i), alone[static_cast<std::size_t>(i)]) << i; // not negative
    }
}

TEST(SurfaceText, LineIsAsHighAsItsPointsAt96ToTheInch)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(240);           // 60 points, 80 pixels
    surface.text(400, 400, 0, "dgjpq"); // as high and as low as letters get
    const QRect marks = painted(surface);
    EXPECT_GE(marks.top(), 98);
    EXPECT_LE(marks.bottom(), 100 + 80 + 2);
    EXPECT_GT(marks.height(), 80 / 2);
    EXPECT_GE(marks.left(), 98);
}

TEST(SurfaceText, WidthIsThatOfAFaceWhoseLineHasThatHeight)
{
    QFont font;
    font.setFamilies({"Garamond", "Junicode Two Beta"});
    font.setPixelSize(1000);
    const QFontMetricsF metrics(font);
    const double expected =
        metrics.horizontalAdvance("Mirtane") * 80 / (metrics.ascent() + metrics.descent());
    EXPECT_NEAR(widthAt(240) / 4, expected, expected * 0.02) << "60 points, 80 pixels";
}

TEST(SurfaceText, WidthIsWhereTheTextEnds)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(240);
    surface.text(40, 400, 0, "HHH");
    const float width = surface.textWidth("HHH") / 4; // pixels
    EXPECT_NEAR(painted(surface).right(), 10 + width, 6) << "an H keeps a little room on either side";
}

struct TurnRow {
    int degrees;
    QRect within; // of a line of 40 points, 53 pixels high, at pixel (200, 200)
};

TEST(SurfaceText, TurnsAboutItsUpperLeftCorner)
{
    const TurnRow rows[] = {
        {0, QRect(198, 198, 202, 58)},
        {90, QRect(198, 0, 58, 204)},
        {180, QRect(0, 144, 204, 59)},
        {270, QRect(144, 198, 59, 202)},
    };
    for (const TurnRow& row : rows) {
        Surface surface = surfaceAtStart();
        surface.setFontSize(160);
        surface.text(800, 800, row.degrees, "Hag");
        const QRect marks = painted(surface);
        EXPECT_FALSE(marks.isEmpty()) << row.degrees;
        EXPECT_TRUE(row.within.contains(marks)) << row.degrees << ": " << marks.x() << " " << marks.y() << " "
                                                << marks.width() << " " << marks.height();
    }
}

TEST(SurfaceText, UnderlineRunsUnderTheWholeText)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(240);
    surface.setUnderline(true);
    surface.text(40, 40, 0, "i i");
    const int width = static_cast<int>(surface.textWidth("i i") / 4); // pixels
    const QImage image = surface.shown();
    bool found = false;
    for (int y = 0; y < side && !found; ++y) {
        int lit = 0;
        for (int x = 10; x < 10 + width; ++x) lit += image.pixel(x, y) != 0xFF000000 ? 1 : 0;
        found = lit >= width - 2;
    }
    EXPECT_TRUE(found);
}

TEST(SurfaceText, TextTooSmallToSeeHasAWidthAndIsAStroke)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(1); // a quarter of a point
    surface.text(400, 400, 0, "Mirtane");
    EXPECT_EQ(painted(surface), QRect(100, 100, 2, 1));
    EXPECT_NEAR(surface.textWidth("Mirtane"), widthAt(400) / 400, widthAt(400) / 400 * 0.05F);
}

TEST(SurfaceText, WhatCanNotBeDrawnIsLeftOut)
{
    const float bad = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    for (const float value : {bad, endless, -endless, 3e38F}) {
        Surface surface = surfaceAtStart();
        surface.setFontSize(48);
        surface.text(value, 10, 0, "x");
        surface.text(10, value, 0, "x");
        EXPECT_TRUE(painted(surface).isEmpty()) << value;
        surface.setFontSize(value);
        surface.text(10, 10, 0, "x");
        EXPECT_TRUE(std::isfinite(surface.textWidth("x"))) << value;
    }
}

TEST(SurfaceText, LettersLargerThanTheScreenAreCutByIt)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(40000); // 10,000 points
    surface.text(-20000, -30000, 0, "H");
    EXPECT_NEAR(surface.textWidth("H"), widthAt(400) / 7 * 100, widthAt(400) * 15)
        << "letters differ in width";
}

TEST(SurfaceText, LongAndBrokenStringsAreTaken)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(48);
    EXPECT_GT(surface.textWidth(std::string(65535, 'm')), 65535);
    surface.text(0, 0, 45, std::string(65535, 'm'));
    EXPECT_FALSE(painted(surface).isEmpty());
    surface.text(0, 0, 0, "\xC3\x28\xFF\x00 x");
    EXPECT_EQ(surface.textWidth(""), 0);
}

TEST(SurfaceText, IsPartOfThePictureThatIsRestored)
{
    Surface surface = surfaceAtStart();
    surface.snapshot();
    surface.setFontSize(160);
    surface.text(800, 800, 30, "Garamond");
    const QRect marks = painted(surface);
    const PixelRect dirty = surface.takeDirty();
    EXPECT_TRUE(
        QRect(QPoint(dirty.left, dirty.top), QPoint(dirty.right - 1, dirty.bottom - 1)).contains(marks));
    surface.restoreSnapshot();
    EXPECT_TRUE(painted(surface).isEmpty());
}

// The face that stands in for Garamond, under its own name: whether that is needed here does not matter.
constexpr const char* twin = "Junicode Two Beta";

QRect marksOf(const std::string& text)
{
    Surface surface = surfaceAtStart();
    surface.setFontSize(400);
    surface.setFontName(twin);
    surface.text(400, 400, 0, text);
    return painted(surface);
}

TEST(SurfaceText, FiguresOfTheTwinAllStandOnTheLineAndAreAsHigh)
{
    const QRect one = marksOf("1");
    const int overshoot = one.height() / 16; // of round figures
    for (const char* figure : {"0", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        const QRect marks = marksOf(figure);
        EXPECT_NEAR(marks.bottom(), one.bottom(), overshoot) << figure;
        EXPECT_NEAR(marks.top(), one.top(), overshoot) << figure;
    }
}

TEST(SurfaceText, AOneOfTheTwinIsNoI)
{
    const auto picture = [](const std::string& letter) {
        Surface surface = surfaceAtStart();
        surface.setFontSize(400);
        surface.setFontName(twin);
        surface.text(400, 400, 0, letter);
        return surface.shown().copy(painted(surface));
    };
    const QImage one = picture("1");
    for (const char* other : {"I", "l"}) {
        const QImage letter = picture(other).scaled(one.size());
        int differing = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const bool differs = std::abs(qGray(one.pixel(x, y)) - qGray(letter.pixel(x, y))) > 128;
                differing += differs ? 1 : 0;
            }
        }
        EXPECT_GT(differing, one.width() * one.height() / 12) << other;
    }
}

TEST(Surface, LineShowsInItsColour)
{
    Surface surface = surfaceAtStart();
    surface.setColor(0x0080FF);
    surface.line(40, 40, 80, 40);
    EXPECT_EQ(surface.shown().pixel(15, 10), 0xFFFF8000);
    EXPECT_EQ(surface.shown().pixel(15, 11), 0xFF000000);
}

} // namespace
} // namespace mirtane
