#include "commands/leader.h"

#include "commands/live_text.h"
#include "dimension_desk.h"
#include "model/undo_log.h"
#include "text/utf8.h"

#include <random>

namespace mirtane {
namespace {

using fake::expectNear;
using fake::only;
using fake::Ops;

class LeaderDesk : public fake::DimensionDesk {
  public:
    LeaderDesk() : DimensionDesk("Leader") {}

    void place(std::string_view text, Point tip, Point elbow)
    {
        type(text);
        key(13);
        click(tip);
        click(elbow);
    }
};

TEST(Leader, TextThenTipThenElbowFillItsSlot)
{
    struct Row {
        const char* what;
        Point tip, elbow;
    };
    const Row rows[] = {
        {"elbow up to the right", {1000, 1000}, {1300, 600}},
        {"elbow up to the left", {1000, 1000}, {700, 600}},
        {"elbow down to the left", {1000, 1000}, {700, 1400}},
        {"elbow down to the right", {1000, 1000}, {1300, 1400}},
        {"level", {1000, 1000}, {1300, 1000}},
        {"on the tip", {1000, 1000}, {1000, 1000}},
    };
    for (const Row& row : rows) {
        LeaderDesk desk;
        desk.place("oak", row.tip, row.elbow);
        ASSERT_EQ(desk.s.store.entCount, 2) << row.what;
        const EntityRecord r = desk.slot(1);
        EXPECT_EQ(r.kind, Kind::leader) << row.what;
        EXPECT_EQ(r.p1, row.tip) << row.what;
        EXPECT_EQ(r.p2, row.elbow) << row.what;
        expectNear(r.p3, {row.elbow.x + 48, row.elbow.y}, row.what); // always to the right
        expectNear(r.p5, {row.elbow.x + 57.6F, row.elbow.y - 30}, row.what);
        EXPECT_EQ(r.t1, "oak") << row.what;
        EXPECT_EQ(r.a1, 0) << row.what;
    }
}

TEST(Leader, AsksForEachPartInTurnAndIsReadyForTheNext)
{
    LeaderDesk desk;
    desk.type("oak");
    EXPECT_EQ(desk.s.stepNo, 0);
    desk.key(13);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of leader:)");
    desk.click({1000, 1000});
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.s.promptText, "(Enter shoulder point:)");
    desk.click({1300, 600});
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter leader text:)");
    EXPECT_EQ(desk.text3(), "");
    EXPECT_EQ(desk.s.textLength, 0);
    EXPECT_EQ(desk.s.curFunc, "Leader");
    desk.place("elm", {2000, 1000}, {2300, 600});
    EXPECT_EQ(desk.slot(2).t1, "elm");
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(2), Stat::out);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(Leader, TakesTheArrowsOfItsMoment)
{
    LeaderDesk desk;
    desk.s.dimStyle = 3;
    desk.s.arrowSize = 32;
    desk.s.textSize = 500;
    desk.s.curStyle = 2;
    desk.s.textFont = "Courier";
    desk.place("oak", {1000, 1000}, {1300, 600});
    desk.s.dimStyle = 1;
    desk.s.arrowSize = 48;
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.s1, 3);
    EXPECT_EQ(r.s2, 32);
    EXPECT_EQ(r.a2, 32);
    EXPECT_EQ(r.style, 0);
    EXPECT_EQ(r.t2, "Courier");
    expectNear(r.p3, {1332, 600}, "shoulder");
    expectNear(r.p5, {1338.4F, 580}, "text");
}

TEST(Leader, MayHaveNoText)
{
    LeaderDesk desk;
    setText(desk.s.controls["Text3"_c], "12"); // from another function
    desk.place("", {1000, 1000}, {1300, 600});
    ASSERT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).t1, "");
}

TEST(Leader, ClickInPlaceOfTextEndsTheTypingAndIsNoTip)
{
    LeaderDesk desk;
    setText(desk.s.controls["Text3"_c], "12"); // from another function
    desk.click({500, 500});
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of leader:)");
    desk.type("lost"); // the time for text is over
    desk.click({1000, 1000});
    desk.click({1300, 600});
    EXPECT_EQ(desk.slot(1).p1, (Point{1000, 1000}));
    EXPECT_EQ(desk.slot(1).t1, "");
}

TEST(Leader, ClickBehindTextEndsTheTypingTooAndKeepsIt)
{
    LeaderDesk desk;
    desk.type("oak");
    desk.ops();
    desk.click({500, 500});
    EXPECT_EQ(only(desk.ops(), "restoreSnapshot").size(), 1U); // the preview goes
    desk.click({1000, 1000});
    desk.click({1300, 600});
    EXPECT_EQ(desk.slot(1).t1, "oak");
}

TEST(Leader, PreviewStandsAtTheLastClickSizedByTheArrows)
{
    LeaderDesk desk;
    desk.s.mousePos = {700, 650};
    desk.s.arrowSize = 24;
    desk.s.textRotation = 30;
    desk.s.textFont = "Courier";
    desk.type("o");
    desk.ops();
    desk.type("a");
    const Ops ops = desk.ops();
    EXPECT_EQ(only(ops, "text"), (Ops{"text 700 650 0 oa"}));
    EXPECT_EQ(only(ops, "setFontSize"), (Ops{"setFontSize 24"}));
    EXPECT_EQ(only(ops, "setFontName"), (Ops{"setFontName Courier"}));
}

TEST(Leader, BandIsTheArrowThatTheClickMakes)
{
    for (const std::int16_t style : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
        LeaderDesk desk;
        desk.s.dimStyle = style;
        desk.type("oak");
        desk.key(13);
        desk.ops();
        desk.move({900, 900});
        EXPECT_TRUE(desk.ops().empty()); // none before the tip
        desk.click({1000, 1000});
        desk.ops();
        desk.move({1300, 600});
        const Ops band = desk.ops();
        desk.click({1300, 600});
        const Ops made = desk.ops();
        EXPECT_EQ(band.front(), "restoreSnapshot") << style;
        EXPECT_EQ(only(band, "line").size(), style == 1 ? 5U : 4U) << style;
        EXPECT_EQ(only(band, "line"), only(made, "line")) << style;
        EXPECT_EQ(only(made, "text"), (Ops{"text 1357.6 570 0 oak"})) << style;
    }
}

TEST(Leader, IsPaintedSolidAndKept)
{
    LeaderDesk desk;
    desk.s.curStyle = 3;
    desk.s.curColor = 0x0000FF;
    desk.type("oak");
    desk.key(13);
    desk.click({1000, 1000});
    desk.ops();
    desk.click({1300, 600});
    const Ops ops = desk.ops();
    const Ops begin(ops.begin(), ops.begin() + 3);
    EXPECT_EQ(begin, (Ops{"setStyle 0", "setColor 255", "restoreSnapshot"}));
    const Ops end(ops.end() - 3, ops.end());
    EXPECT_EQ(end, (Ops{"snapshot", "setColor 16777215", "setStyle 2"}));
}

TEST(Leader, MiddleButtonBeforeTheTextDoesNothing)
{
    LeaderDesk desk;
    desk.down(4, {1000, 1000});
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_TRUE(desk.ops().empty());
}

TEST(Leader, AnyTwoPointsAreKeptAndTheTextStandsRightOfTheElbow)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<float> anywhere(0, 4000);
    LeaderDesk desk;
    for (std::int32_t i = 1; i <= 200; ++i) {
        const Point tip{anywhere(random), anywhere(random)};
        const Point elbow{anywhere(random), anywhere(random)};
        desk.place("n", tip, elbow);
        const EntityRecord r = desk.slot(i);
        EXPECT_EQ(r.p1, tip) << i;
        EXPECT_EQ(r.p2, elbow) << i;
        expectNear(r.p3, {elbow.x + 48, elbow.y}, "shoulder");
        expectNear(r.p5, {elbow.x + 57.6F, elbow.y - 30}, "text");
    }
}

} // namespace
} // namespace mirtane
