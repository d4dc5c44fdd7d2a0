#include "plain_canvas.h"
#include "raster_probe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace mirtane {
namespace {

using probe::inked;
using probe::paper;
using probe::Pixels;
using probe::pixelsOf;
using probe::PlainCanvas;

void drawSomething(Canvas& canvas, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> at(-100, 500);
    std::uniform_real_distribution<float> size(0, 60);
    for (std::int16_t style = 0; style <= 4; ++style) {
        canvas.setStyle(style);
        canvas.line(at(random), at(random), at(random), at(random));
        canvas.circle(at(random), at(random), size(random));
        canvas.arc(at(random), at(random), size(random), 5, 1);
        canvas.point(at(random), at(random));
    }
}

TEST(RasterCanvas, ColoursComeOutInTheirPlaces)
{
    struct Row {
        const char* what;
        std::int32_t color;
        std::uint32_t pixel;
    };
    const Row rows[] = {{"blue", 0xFF0000, 0xFF0000FF},
                        {"red", 0x0000FF, 0xFFFF0000},
                        {"brown", 0x0080FF, 0xFFFF8000},
                        {"white", 0xFFFFFF, 0xFFFFFFFF},
                        {"with a byte above", 0x02FF0000, 0xFF0000FF}};
    PlainCanvas canvas(10, 10);
    for (const Row& row : rows) {
        canvas.setColor(row.color);
        canvas.point(3, 4);
        EXPECT_EQ(canvas.picture().at(3, 4), row.pixel) << row.what;
    }
}

TEST(RasterCanvas, TheWorldWindowFillsTheImage)
{
    PlainCanvas canvas(100, 50);
    canvas.setScale({1000, 2000, 400, 200});
    canvas.line(1000, 2000, 1399, 2000);
    canvas.point(1396, 2199);
    const Pixels found = inked(canvas.picture());
    EXPECT_EQ(found.size(), 101U);
    EXPECT_TRUE(found.contains({0, 0}) && found.contains({99, 0}) && found.contains({99, 49}));
}

TEST(RasterCanvas, ARadiusIsMeasuredAlongX)
{
    PlainCanvas canvas(200, 200);
    canvas.setScale({0, 0, 100, 400}); // two pixels to the unit across, half a pixel down
    canvas.circle(50, 200, 20);
    const Pixels found = inked(canvas.picture());
    EXPECT_TRUE(found.contains({140, 100}) && found.contains({100, 60}));
}

TEST(RasterCanvas, OuterSizeIsFifteenTwipsToTheLogicalPixel)
{
    const PlainCanvas plain(1200, 800);
    EXPECT_EQ(plain.getOuterSize().width, 18000);
    EXPECT_EQ(plain.getOuterSize().height, 12000);
    const PlainCanvas sharp(1200, 800, 2);
    EXPECT_EQ(sharp.getOuterSize().width, 9000);
    EXPECT_EQ(sharp.getPixelSize().width, 1200);
    const PlainCanvas wrong(1200, 800, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(wrong.getOuterSize().width, 18000);
}

TEST(RasterCanvas, DashesGrowWithTheDevicePixels)
{
    PlainCanvas canvas(100, 10, 2);
    canvas.setStyle(2);
    canvas.line(0, 5, 11, 5);
    EXPECT_EQ(inked(canvas.picture()).size(), 6U);
}

TEST(RasterCanvas, GoingBackAfterABandGivesTheCleanPictureExactly)
{
    PlainCanvas canvas(300, 200);
    canvas.setScale({0, 0, 400, 260});
    canvas.clear();
    drawSomething(canvas, 1);
    canvas.snapshot();
    const auto clean = pixelsOf(canvas);
    for (unsigned seed = 2; seed < 200; ++seed) {
        drawSomething(canvas, seed);
        ASSERT_NE(pixelsOf(canvas), clean);
        canvas.restoreSnapshot();
        ASSERT_EQ(pixelsOf(canvas), clean) << seed;
    }
    canvas.clear();
    EXPECT_TRUE(inked(canvas.picture()).empty());
    canvas.restoreSnapshot();
    EXPECT_EQ(pixelsOf(canvas), clean);
}

TEST(RasterCanvas, ASnapshotAfterABandKeepsTheBand)
{
    PlainCanvas canvas(300, 200);
    canvas.line(0, 0, 100, 100);
    canvas.snapshot();
    canvas.line(0, 100, 100, 0);
    canvas.snapshot();
    const auto both = pixelsOf(canvas);
    canvas.clear();
    canvas.restoreSnapshot();
    EXPECT_EQ(pixelsOf(canvas), both);
}

TEST(RasterCanvas, AnEmptyCleanPictureIsBlack)
{
    PlainCanvas canvas(50, 50);
    canvas.line(0, 0, 40, 40);
    canvas.snapshot();
    canvas.clearSnapshot();
    EXPECT_FALSE(inked(canvas.picture()).empty());
    canvas.restoreSnapshot();
    EXPECT_TRUE(inked(canvas.picture()).empty());
}

TEST(RasterCanvas, WhatADerivedSurfaceDrawsAndTouchesGoesToo)
{
    PlainCanvas canvas(50, 50);
    canvas.snapshot();
    canvas.takeDirty();
    canvas.image().line(10, 10, 20, 15, {probe::ink});
    canvas.touch(20, 15, 10, 10);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{10, 10, 21, 16}));
    canvas.restoreSnapshot();
    EXPECT_TRUE(inked(canvas.picture()).empty());
}

TEST(RasterCanvas, DirtyIsWhatChangedSinceItWasTaken)
{
    PlainCanvas canvas(100, 80);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{0, 0, 100, 80})) << "all at first";
    EXPECT_TRUE(canvas.takeDirty().empty());
    canvas.line(10, 20, 30, 25);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{10, 20, 31, 26}));
    canvas.line(50, 60, 55, 61);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{50, 60, 56, 62})) << "the first line was taken";
    canvas.restoreSnapshot();
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{10, 20, 56, 62})) << "both lines went away";
    canvas.line(-1000, 70, 1000, 70);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{0, 70, 100, 71})) << "no more than the image";
    canvas.clear();
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{0, 0, 100, 80}));
}

TEST(RasterCanvas, EveryChangedPixelIsInTheDirtyRectangle)
{
    PlainCanvas canvas(300, 200);
    canvas.setScale({0, 0, 400, 260});
    std::mt19937 random(5);
    std::uniform_real_distribution<float> at(-100, 500);
    for (int i = 0; i < 1000; ++i) {
        canvas.clear();
        canvas.takeDirty();
        const float x = at(random), y = at(random), z = at(random);
        if (i % 3 == 0) canvas.line(x, y, z, 100);
        if (i % 3 == 1) canvas.circle(x, y, std::abs(z) / 8);
        if (i % 3 == 2) canvas.arc(x, y, std::abs(z) / 8, 1, 0.5);
        const PixelRect dirty = canvas.takeDirty();
        for (const auto& [px, py] : inked(canvas.picture())) {
            ASSERT_TRUE(px >= dirty.left && px < dirty.right && py >= dirty.top && py < dirty.bottom);
        }
    }
}

TEST(RasterCanvas, ResizingKeepsUnitsToThePixelAndTheUpperLeft)
{
    PlainCanvas canvas(300, 200);
    canvas.setScale({12, 34, 1000.5F, 700.25F});
    canvas.line(12, 34, 900, 600);
    canvas.snapshot();
    const Pixels before = inked(canvas.picture());
    canvas.resizePixels(450, 100, 1);
    const Scale grown = canvas.getScale();
    EXPECT_EQ(grown.left, 12);
    EXPECT_EQ(grown.top, 34);
    EXPECT_FLOAT_EQ(grown.width, 1500.75F);
    EXPECT_FLOAT_EQ(grown.height, 350.125F);
    const Pixels kept = probe::through(before, {0, 0, 300, 100});
    EXPECT_EQ(inked(canvas.picture()), kept);
    EXPECT_EQ(canvas.takeDirty(), (PixelRect{0, 0, 450, 100}));
    canvas.clear();
    canvas.restoreSnapshot();
    EXPECT_EQ(inked(canvas.picture()), kept) << "the clean picture grew with the image";
}

TEST(RasterCanvas, ManySizesThereAndBackLeaveTheScaleAsItWas)
{
    PlainCanvas canvas(1200, 800);
    canvas.setScale({0, 0, 1234.567F, 765.4321F});
    for (int width = 1; width < 1200; width += 7) canvas.resizePixels(width, 2000 - width, 1);
    canvas.resizePixels(1200, 800, 1);
    EXPECT_EQ(canvas.getScale().width, 1234.567F);
    EXPECT_EQ(canvas.getScale().height, 765.4321F);
}

TEST(RasterCanvas, ALineFromAClickedPixelEndsOnIt)
{
    PlainCanvas canvas(1200, 800);
    canvas.setScale({123.4F, -567.8F, 2345.67F, 1563.78F});
    for (int x = 0; x < 1200; x += 3) {
        const Point world = canvas.worldAt(x, x / 2);
        const PixelPoint back = canvas.pixelAt(world);
        EXPECT_EQ(std::floor(back.x), x);
        EXPECT_EQ(std::floor(back.y), x / 2);
    }
}

TEST(RasterCanvas, AnyCoordinateAndAnyScaleIsHarmless)
{
    const float most = std::numeric_limits<float>::max();
    const float values[] = {0,
                            25,
                            -1,
                            most,
                            -most,
                            std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::quiet_NaN(),
                            std::numeric_limits<float>::denorm_min()};
    PlainCanvas canvas(40, 30);
    for (const float a : values) {
        for (const float b : values) {
            canvas.setScale({a, b, b, a});
            for (const float c : values) {
                canvas.line(a, b, c, b);
                canvas.circle(c, b, a);
                canvas.arc(c, b, a, c, b);
                canvas.point(a, c);
                canvas.restoreSnapshot();
                ASSERT_TRUE(inked(canvas.picture()).empty());
            }
            canvas.resizePixels(40, 30, a);
        }
    }
    canvas.resizePixels(-5, 0, 1);
    EXPECT_EQ(canvas.getPixelSize().width, 1);
    for (const float side : {1e38F, 2.9e38F, 3.4e38F}) {
        canvas.resizePixels(30, 20, 1);
        canvas.setScale({-3e38F, -1e37F, side, side});
        canvas.resizePixels(4570, 1010, 1);
        const Scale seen = canvas.getScale();
        EXPECT_TRUE(std::isfinite(seen.width) && std::isfinite(seen.height)) << side;
    }
    canvas.setScale({0, 0, 1, 1});
    canvas.point(0, 0);
    EXPECT_EQ(inked(canvas.picture()).size(), 1U);
}

TEST(RasterCanvas, RefreshCallsItsHook)
{
    PlainCanvas canvas(10, 10);
    canvas.refresh();
    int calls = 0;
    canvas.setRefreshHook([&calls] { ++calls; });
    canvas.refresh();
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace mirtane
