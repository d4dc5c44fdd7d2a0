// The menus of numbers, text and dimensions, from the entry to what a drawing then says.

#include "app/menus/attribute_controls.h"
#include "desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace mirtane {
namespace {

using fake::Desk;
using fake::titleOf;
using testing::ElementsAre;

struct MenuCase {
    ControlId menu;
    std::function<bool(const Session& s)> took;
};

using MenuGroup = std::vector<MenuCase>;

bool numbersAre(const Session& s, std::string_view style, int comma)
{
    return s.numStyle == style && s.numComma == comma;
}

// The numbers of justifications and arrows don't follow the order of their entries.
const std::vector<MenuGroup>& menuGroups()
{
    static const std::vector<MenuGroup> groups = {
        {{"num2"_c, [](const Session& s) { return numbersAre(s, "2f", 0); }},
         {"num3"_c, [](const Session& s) { return numbersAre(s, "3i", 0); }},
         {"num4"_c, [](const Session& s) { return numbersAre(s, "br", 0); }},
         {"num5"_c, [](const Session& s) { return numbersAre(s, "br", 1); }},
         {"num1"_c, [](const Session& s) { return numbersAre(s, "us", 0); }}},
        {{"dtol2"_c, [](const Session& s) { return s.dimTol == 0.25F; }},
         {"dtol4"_c, [](const Session& s) { return s.dimTol == 0.0625F; }},
         {"dtol5"_c, [](const Session& s) { return s.dimTol == 0.03125F; }},
         {"dtol6"_c, [](const Session& s) { return s.dimTol == 0.015625F; }},
         {"dtol3"_c, [](const Session& s) { return s.dimTol == 0.125F; }}},
        {{"ang2"_c, [](const Session& s) { return s.angFormat == 1; }},
         {"ang1"_c, [](const Session& s) { return s.angFormat == 0; }}},
        {{"tk8"_c, [](const Session& s) { return s.textJust == 2; }},
         {"tk9"_c, [](const Session& s) { return s.textJust == 1; }},
         {"tk7"_c, [](const Session& s) { return s.textJust == 0; }}},
        {{"dim3"_c, [](const Session& s) { return s.dimStyle == 3; }},
         {"dim4"_c, [](const Session& s) { return s.dimStyle == 2; }},
         {"dim5"_c, [](const Session& s) { return s.dimStyle == 1; }}},
    };
    return groups;
}

TEST(AttributeMenu, SetsItsValueAndAloneOfItsGroupIsChecked)
{
    Desk desk;
    for (const MenuGroup& group : menuGroups()) {
        for (const MenuCase& chosen : group) {
            desk.press(chosen.menu);
            EXPECT_TRUE(chosen.took(desk.s)) << chosen.menu.row().name;
            for (const MenuCase& other : group)
                EXPECT_EQ(desk.s.controls[other.menu].checked, other.menu == chosen.menu)
                    << other.menu.row().name << " after " << chosen.menu.row().name;
        }
    }
    EXPECT_EQ(desk.settings.writes, 0) << "settings are written when the program ends";
}

TEST(AttributeMenu, LeavesARunningFunctionAtItsStep)
{
    Desk desk;
    desk.click(100, 100);
    for (const MenuGroup& group : menuGroups())
        for (const MenuCase& chosen : group) desk.press(chosen.menu);
    EXPECT_EQ(desk.title(), titleOf("Line(Enter ending point of line:)"));
    EXPECT_EQ(desk.s.stepNo, 1);
}

struct SizeCase {
    ControlId numbers;
    const char* shown; // of a size of 48
    const char* typed;
    float size;
};

constexpr SizeCase sizeCases[] = {
    {"num1"_c, "4.000", "6", 72}, // inches of 12 units
    {"num2"_c, "4.000", "1'6", 216},       {"num3"_c, "4.000", ".5", 6},
    {"num4"_c, "10.168", "10", 47.206F}, // centimetres of 4.7206 units
    {"num5"_c, "10,168", "2,5", 11.8015F},
};

struct SizeMenu {
    ControlId menu;
    float Session::*size;
    const char* front;
    const char* behind;
};

constexpr SizeMenu sizeMenus[] = {
    {"tk3"_c, &Session::textSize, "Text Size(Current text size is (", ") Enter new text size:"},
    {"dim7"_c, &Session::arrowSize, "Arrow Size(Current arrow size is (", ") Enter new arrow size:"},
};

TEST(SizeMenu, AsksWithTheSizeInForceTakesOneNumberAndReturns)
{
    for (const SizeMenu& m : sizeMenus) {
        for (const SizeCase& c : sizeCases) {
            Desk desk;
            desk.press("Command8"_c);
            desk.press(c.numbers);
            desk.press(m.menu);
            EXPECT_EQ(desk.title(), titleOf(std::string(m.front) + c.shown + m.behind));
            EXPECT_EQ(desk.focused(), "pic1");
            desk.type(c.typed);
            desk.enter();
            EXPECT_NEAR(desk.s.*m.size, c.size, 0.0005) << c.typed;
            EXPECT_EQ(desk.title(), titleOf("Point(Enter point:)"));
            EXPECT_EQ(desk.s.stepNo, 0);
            EXPECT_EQ(desk.text("entry"_c), "");
            EXPECT_EQ(desk.focused(), "pic1");
        }
    }
}

TEST(SizeMenu, IsRefusedWhileAFunctionIsUnderWay)
{
    for (const ControlId menu : {"tk3"_c, "dim7"_c, "dim11"_c}) {
        Desk desk;
        desk.click(100, 100);
        desk.press(menu);
        EXPECT_EQ(desk.s.curFunc, "Line") << menu.row().name;
        EXPECT_EQ(desk.s.stepNo, 1) << menu.row().name;
    }
}

TEST(MoveDimensionText, StartsWithThePromptThatStands)
{
    Desk desk;
    desk.press("dim11"_c);
    EXPECT_EQ(desk.title(), titleOf("Move Dimension Text(Enter beginning point of line:)"));
    desk.cancel();
    EXPECT_EQ(desk.title(), titleOf("Line(Enter beginning point of line:)"));
}

TEST(UnderlinedText, CountsAtTheMomentOfPlacing)
{
    Desk desk;
    desk.press("Command15"_c);
    desk.click(1000, 1000);
    desk.type("one");
    desk.press("tk12"_c);
    EXPECT_TRUE(desk.s.controls["tk12"_c].checked);
    desk.enter();
    desk.type("two");
    desk.press("tk12"_c);
    desk.enter();
    EXPECT_EQ(desk.slot(1).p3.x, 1);
    EXPECT_EQ(desk.slot(2).p3.x, 0);
}

// -- fonts --

class TwoFonts : public Fonts {
  public:
    std::vector<std::string> names() override { return {"Courier", "Times"}; }
};

// A desk whose screen has two fonts.
class FontDesk : public Desk {
  public:
    void press(ControlId id) { fontShell.click(id); }
    void click(float x, float y) { fontShell.mouseDown(1, {x, y}); }
    void row(int number) { fontShell.clickRow("List1"_c, number); }
    void type(std::string_view text)
    {
        for (const char c : text) fontShell.keyPress(static_cast<unsigned char>(c)); // of ASCII
    }
    void enter() { fontShell.keyPress(13); }
    void placeText(float x, float y, std::string_view text)
    {
        press("Command15"_c);
        click(x, y);
        type(text);
        enter();
    }

    TwoFonts fonts;
    Shell fontShell{*session, pic1, Ports{disk, folders, settings, fake::home, nullptr, &fonts}};
};

TEST(SelectFont, ShowsASampleAtAClickAndStoresAtEnter)
{
    FontDesk desk;
    desk.press("tk5"_c);
    EXPECT_EQ(desk.caption("Label3"_c), "Select Font");
    EXPECT_THAT(desk.s.controls["List1"_c].rows, ElementsAre("Courier", "Times"));
    desk.row(1);
    EXPECT_EQ(desk.s.controls["setts"_c].font, "Times");
    EXPECT_EQ(desk.s.textFont, "Garamond");
    desk.enter();
    EXPECT_EQ(desk.s.textFont, "Times");
    EXPECT_EQ(desk.title(), titleOf("Line(Enter beginning point of line:)"));
}

TEST(SelectFont, TakesASecondClickAsEnter)
{
    FontDesk desk;
    desk.press("tk5"_c);
    desk.fontShell.doubleClickRow("List1"_c, 0);
    EXPECT_EQ(desk.s.textFont, "Courier");
}

TEST(SelectFont, IsForTextsToCome)
{
    FontDesk desk;
    desk.placeText(1000, 1000, "old");
    desk.press("tk5"_c);
    desk.row(0);
    desk.enter();
    desk.placeText(1000, 2000, "new");
    EXPECT_EQ(desk.slot(1).t2, "Garamond");
    EXPECT_EQ(desk.slot(2).t2, "Courier");
}

TEST(ChangeSelectFont, WithNothingSelectedSaysSo)
{
    FontDesk desk;
    desk.press("tk14"_c);
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
    EXPECT_NE(desk.caption("Label3"_c), "Change Selected Font");
}

// A line, a right-justified underlined text, a leader in the slash style and an angular dimension of it.
void makeSelection(FontDesk& desk)
{
    const EntityRecord line = fake::line({}, {500, 500});
    EntityRecord text = fake::text({900, 900}, "words");
    text.p2.y = 1;
    text.p3.x = 1;
    text.p4 = {800, 900};
    text.rad = 120;
    text.a1 = 30;
    EntityRecord leader = text;
    leader.kind = Kind::leader;
    leader.s1 = 3;
    leader.s2 = 48;
    leader.a2 = 48;
    leader.p5 = {1500, 900};
    EntityRecord angle = leader;
    angle.kind = Kind::angularDimension;
    angle.style = 3;
    angle.a3 = 12.5;
    for (const EntityRecord& r : {line, text, leader, angle}) desk.add(r, Stat::sel);
}

TEST(ChangeSelectFont, CopiesTextsAndDimensionsWithTheFontOfTheRowInOneGroup)
{
    FontDesk desk;
    makeSelection(desk);
    desk.press("tk14"_c);
    EXPECT_EQ(desk.caption("Label3"_c), "Change Selected Font");
    EXPECT_EQ(desk.stat(1), Stat::on) << "a line has no font";
    EXPECT_EQ(desk.stat(2), Stat::sel);
    desk.row(1);
    EXPECT_EQ(desk.s.store.entCount, 5) << "a click only chooses";
    desk.enter();
    ASSERT_EQ(desk.s.store.entCount, 8);
    for (int i = 0; i < 3; ++i) {
        const EntityRecord was = desk.slot(2 + i);
        const EntityRecord is = desk.slot(5 + i);
        EXPECT_EQ(desk.stat(2 + i), Stat::out);
        EXPECT_EQ(desk.stat(5 + i), Stat::on);
        EXPECT_EQ(is.t2, "Times");
        EXPECT_EQ(is.kind, was.kind);
        EXPECT_EQ(is.style, was.style);
        EXPECT_EQ(is.t1, was.t1);
        EXPECT_EQ(is.p1, was.p1);
        EXPECT_EQ(is.p2, was.p2);
        EXPECT_EQ(is.p4, was.p4);
        EXPECT_EQ(is.a1, was.a1);
        EXPECT_EQ(is.a3, was.a3);
        EXPECT_EQ(is.rad, was.rad);
    }
    EXPECT_EQ(desk.caption("Label3"_c), "Edit Functions");
    EXPECT_THAT(desk.s.controls["List1"_c].rows, testing::Contains("Mirror Copy"));
    EXPECT_EQ(desk.s.textFont, "Garamond");
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.stat(4), Stat::on);
    EXPECT_EQ(desk.stat(7), Stat::out);
}

TEST(ChangeSelectFont, DoesNothingWithoutARow)
{
    FontDesk desk;
    makeSelection(desk);
    desk.press("tk14"_c);
    desk.fontShell.giveFocus("List1"_c);
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 5);
}

// -- what stands in the title and where the keys go --

struct Act {
    std::function<void(Desk& desk)> act;
    const char* prompt;
};

TEST(TextAndDimensions, ShowTheirPromptsInOrder)
{
    const auto clickAt = [](float x, float y) { return [=](Desk& d) { d.click(x, y); }; };
    const auto snapAt = [](float x, float y) {
        return [=](Desk& d) {
            d.press("Command35"_c);
            d.click(x, y);
        };
    };
    const auto start = [](ControlId id) { return [=](Desk& d) { d.press(id); }; };
    const auto typeLine = [](Desk& d) {
        d.type("ab");
        d.enter();
    };
    const std::vector<Act> acts = {
        {start("Command15"_c), "Place Text(Enter location of text line:)"},
        {clickAt(3000, 2000), "Place Text(Enter text:)"},
        {typeLine, "Place Text(Enter new location of text line:)"},
        {typeLine, "Place Text(Enter new location of text line:)"},
        {clickAt(3000, 2500), "Place Text(Enter text:)"},
        {start("Command11"_c), "Ortho Dimension(Enter first dimension point:)"},
        {clickAt(1000, 1000), "Ortho Dimension(Enter first dimension point:)"},
        {snapAt(1000, 1000), "Ortho Dimension(Enter next dimension point:)"},
        {snapAt(2000, 1000), "Ortho Dimension(Enter off-set point:)"},
        {clickAt(2000, 700), "Ortho Dimension(Enter next dimension point:)"},
        {clickAt(1500, 1000), "Ortho Dimension(Enter first dimension point:)"},
        {start("Command12"_c), "Radial Dimension(Click near circle or arc:)"},
        {clickAt(1500, 1004), "Radial Dimension(Click near circle or arc:)"},
        {start("Command13"_c), "Angular Dimension(Enter point of angle:)"},
        {snapAt(1000, 1000), "Angular Dimension(Enter first vertex:)"},
        {snapAt(2000, 1000), "Angular Dimension(Enter second vertex:)"},
        {snapAt(1000, 500), "Angular Dimension(Enter off-set point:)"},
        {clickAt(1500, 700), "Angular Dimension(Enter point of angle:)"},
        {start("Command14"_c), "Leader(Enter leader text:)"},
        {typeLine, "Leader(Enter beginning point of leader:)"},
        {clickAt(2600, 800), "Leader(Enter shoulder point:)"},
        {clickAt(2900, 600), "Leader(Enter leader text:)"},
        {start("Command16"_c), "Text Edit(Click near upper-left of text:)"},
        {clickAt(3000, 2010), "Text Edit(Edit text:)"},
        {[](Desk& d) { d.enter(); }, "Text Edit(Click near upper-left of text:)"},
    };
    Desk desk;
    desk.press("freecurs"_c);
    desk.drawLine(1000, 1000, 2000, 1000);
    desk.drawLine(1000, 500, 1500, 500);
    for (const Act& step : acts) {
        step.act(desk);
        EXPECT_EQ(desk.title(), titleOf(step.prompt));
        EXPECT_EQ(desk.focused(), "pic1") << step.prompt;
    }
    EXPECT_EQ(desk.slot(5).t1, "6'-11 3/8\"");
    EXPECT_EQ(desk.slot(6).t1, "90.000\xC2\xB0");
    EXPECT_EQ(desk.slot(7).t1, "ab");
}

TEST(DimensionText, KeepsTheNumbersItWasMadeWith)
{
    Desk desk;
    desk.press("Command2"_c);
    desk.press("freecurs"_c);
    desk.click(1000, 1000);
    desk.click(1720, 1000);
    desk.press("Command12"_c);
    desk.press("num2"_c);
    desk.click(1000, 1720);
    desk.press("num4"_c);
    desk.click(2000, 800);
    EXPECT_EQ(desk.slot(2).t1, "5.00'");
}

TEST(MeasureDistance, LeavesTheValueAloneInEntryUntilTheNextClick)
{
    const std::pair<ControlId, const char*> rows[] = {{"num1"_c, "12'-3 1/2\""},
                                                      {"num2"_c, "12.29'"}, // 12.29166...
                                                      {"num3"_c, "147.500\""},
                                                      {"num4"_c, "3m 74.938cm"}, // 374.93821...
                                                      {"num5"_c, "3m 74,938cm"}};
    for (const auto& [menu, text] : rows) {
        Desk desk;
        desk.press("freecurs"_c);
        desk.press(menu);
        desk.press("Command8"_c);
        desk.press("ut3"_c);
        EXPECT_EQ(desk.title(), titleOf("Measure Distance(Enter beginning point of line:)"));
        desk.click(1000, 1000);
        desk.click(2770, 1000);
        EXPECT_EQ(desk.text("entry"_c), text);
        EXPECT_EQ(desk.text("Text3"_c), "");
        desk.move(2800, 1100);
        EXPECT_EQ(desk.text("entry"_c), text);
        EXPECT_EQ(desk.s.stepNo, 1);
        EXPECT_EQ(desk.s.pickFirst, (Point{2770, 1000}));
        EXPECT_EQ(desk.s.store.entCount, 1);
        EXPECT_EQ(desk.s.log.undoLogCount, 0);
        desk.cancel();
        EXPECT_EQ(desk.text("entry"_c), "");
        EXPECT_EQ(desk.s.curFunc, "Point");
    }
}

TEST(ChangeSelectFont, EndsAMoveThatWasUnderWay)
{
    FontDesk desk;
    desk.placeText(500, 500, "words");
    desk.cancel();
    desk.press("Command17"_c);
    desk.cancel();
    desk.press("frmedit.Command8"_c);
    desk.click(500, 500);
    desk.press("tk14"_c);
    desk.row(0);
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.s.workAngle, 0);
}

} // namespace
} // namespace mirtane
