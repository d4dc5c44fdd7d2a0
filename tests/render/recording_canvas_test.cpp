#include "render/recording_canvas.h"

#include <gtest/gtest.h>

#include <utility>

namespace mirtane {
namespace {

CanvasOp op(std::string_view name, std::initializer_list<CanvasOp::Arg> args = {})
{
    CanvasOp made;
    made.name = name;
    for (const CanvasOp::Arg& arg : args) made.args[made.count++] = arg;
    return made;
}

CanvasOp op(std::string_view name, std::initializer_list<CanvasOp::Arg> args, std::string text)
{
    CanvasOp made = op(name, args);
    made.hasText = true;
    made.text = std::move(text);
    return made;
}

void callEverything(Canvas& canvas)
{
    canvas.clear();
    canvas.setColor(0xFF0000);
    canvas.setStyle(2);
    canvas.line(0.1F, 2, -3, 4);
    canvas.circle(1, 2, 3);
    canvas.arc(1, 2, 3, 0.1, 6.2831853);
    canvas.point(7, 8);
    canvas.setScale({1, 2, 3, 4});
    canvas.setFontName("Garamond");
    canvas.setFontSize(12.5F);
    canvas.setUnderline(true);
    canvas.text(5, 6, 90, "a \"b\" ü");
    canvas.text(5, 6, -1, "");
    canvas.snapshot();
    canvas.restoreSnapshot();
    canvas.clearSnapshot();
    canvas.refresh();
}

const std::vector<CanvasOp> everything{
    op("clear"),
    op("setColor", {0xFF0000}),
    op("setStyle", {2}),
    op("line", {0.1F, 2.0F, -3.0F, 4.0F}),
    op("circle", {1.0F, 2.0F, 3.0F}),
    op("arc", {1.0F, 2.0F, 3.0F, 0.1, 6.2831853}),
    op("point", {7.0F, 8.0F}),
    op("setScale", {1.0F, 2.0F, 3.0F, 4.0F}),
    op("setFontName", {}, "Garamond"),
    op("setFontSize", {12.5F}),
    op("setUnderline", {1}),
    op("text", {5.0F, 6.0F, 90}, "a \"b\" ü"),
    op("text", {5.0F, 6.0F, -1}, ""),
    op("snapshot"),
    op("restoreSnapshot"),
    op("clearSnapshot"),
    op("refresh"),
};

TEST(RecordingCanvas, WritesDownEveryOperationInOrderWithItsArgumentsAsTyped)
{
    RecordingCanvas canvas(Size{100, 50});
    callEverything(canvas);
    EXPECT_EQ(canvas.takeOps(), everything);
    EXPECT_TRUE(canvas.takeOps().empty()) << "they are given once";
}

TEST(RecordingCanvas, PassesEveryOperationOn)
{
    RecordingCanvas inner(Size{100, 50});
    RecordingCanvas outer(&inner);
    callEverything(outer);
    EXPECT_EQ(inner.takeOps(), everything);
    EXPECT_EQ(outer.takeOps(), everything);
}

TEST(RecordingCanvas, PassesOnButWritesNothingDownWhileSwitchedOff)
{
    RecordingCanvas inner(Size{100, 50});
    RecordingCanvas outer(&inner);
    outer.point(1, 2);
    outer.record(false);
    callEverything(outer);
    outer.record(true);
    outer.refresh();
    EXPECT_EQ(outer.takeOps(), (std::vector<CanvasOp>{op("point", {1.0F, 2.0F}), op("refresh")}));
    EXPECT_EQ(inner.takeOps().size(), everything.size() + 2);
}

TEST(RecordingCanvas, QuestionsAreAnsweredAndNotWrittenDown)
{
    RecordingCanvas inner(Size{100, 50});
    inner.setScale({1, 2, 300, 400});
    inner.setFontSize(10);
    inner.takeOps();
    const RecordingCanvas outer(&inner);
    EXPECT_EQ(outer.getPixelSize().width, 100);
    EXPECT_EQ(outer.getOuterSize().height, 750);
    EXPECT_EQ(outer.getScale().left, 1);
    EXPECT_EQ(outer.getScale().top, 2);
    EXPECT_EQ(outer.getScale().width, 300);
    EXPECT_EQ(outer.getScale().height, 400);
    EXPECT_FLOAT_EQ(outer.textWidth("abcde"), 30);
    EXPECT_TRUE(inner.takeOps().empty());
}

TEST(RecordingCanvas, AloneItsFontIsSixTenthsOfItsSizeWideByCharacters)
{
    RecordingCanvas canvas(Size{100, 50});
    canvas.setFontSize(20);
    EXPECT_FLOAT_EQ(canvas.textWidth(""), 0);
    EXPECT_FLOAT_EQ(canvas.textWidth("ab"), 24);
    EXPECT_FLOAT_EQ(canvas.textWidth("äö"), 24);
}

TEST(RecordingCanvas, AloneANewSizeKeepsUnitsToThePixel)
{
    RecordingCanvas canvas(Size{100, 50});
    canvas.setScale({5, 6, 400, 200});
    canvas.resizePixels({150, 25});
    EXPECT_EQ(canvas.getPixelSize().width, 150);
    EXPECT_EQ(canvas.getScale().left, 5);
    EXPECT_EQ(canvas.getScale().width, 600);
    EXPECT_EQ(canvas.getScale().height, 100);
    canvas.setScale({0, 0, 3e38F, 2e38F});
    canvas.resizePixels({15000, 2500});
    EXPECT_EQ(canvas.getScale().width, 3e38F) << "there is none so wide";
    EXPECT_EQ(canvas.getScale().height, 2e38F);
}

} // namespace
} // namespace mirtane
