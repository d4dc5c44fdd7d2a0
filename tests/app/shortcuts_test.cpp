// Keys that do what controls do, and letters that open menus.

#include "desk.h"

#include "print/recording_printer.h"
#include "tables/shortcuts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace mirtane {
namespace {

using namespace fake;

const Shortcut& named(std::string_view keys)
{
    const auto* const row = std::ranges::find(shortcuts, keys, &Shortcut::keys);
    EXPECT_NE(row, std::end(shortcuts)) << keys;
    return *row;
}

void strike(Desk& desk, std::string_view keys)
{
    desk.shell.shortcut(named(keys));
}

TEST(Shortcut, PressesTheControlThatMenusShowItAt)
{
    struct Row {
        std::string_view keys;
        ControlId form;
        std::string_view caption;
    };
    const Row rows[] = {{"Ctrl+S", "frmfile"_c, "Save File"},
                        {"Ctrl+O", "frmfile"_c, "Save Changes"},
                        {"Ctrl+P", "frmprintset"_c, "Print"},
                        {"F1", "frmhelp"_c, "Mirtane 4.00 Help"}};
    for (const Row& row : rows) {
        RecordingPrinter printer{12240, 15840};
        Desk desk({}, {}, &printer);
        desk.drawLine(100, 200, 700, 500);
        desk.press("Command17"_c);
        strike(desk, row.keys);
        EXPECT_TRUE(desk.visible(row.form)) << row.keys;
        EXPECT_EQ(desk.caption(row.form), row.caption) << row.keys;
    }
}

TEST(Shortcut, TakesBackAndDoesAgain)
{
    Desk desk;
    desk.drawLine(100, 200, 700, 500);
    for (const std::string_view again : {"Ctrl+Y", "Ctrl+Shift+Z"}) {
        strike(desk, "Ctrl+Z");
        EXPECT_EQ(desk.stat(1), Stat::out) << again;
        strike(desk, again);
        EXPECT_EQ(desk.stat(1), Stat::on) << again;
    }
}

TEST(Shortcut, ShowsAllAndDrawsAnew)
{
    Desk desk;
    desk.add(fake::line({-9000, -7000}, {12000, 8000}));
    strike(desk, "Home");
    EXPECT_LE(desk.pic1.getScale().left, -9000);
    desk.ops();
    strike(desk, "F5");
    EXPECT_EQ(fake::only(desk.ops(), "line").size(), 1U);
}

TEST(Shortcut, NeverLeavesASnapArmedByTheKeyThatWasHeldForIt)
{
    for (const Shortcut& row : shortcuts) {
        Desk desk;
        desk.drawLine(100, 200, 700, 500);
        desk.shell.keyDown(ctrlKey);
        EXPECT_EQ(desk.s.snapKey, 2);
        desk.shell.shortcut(row);
        EXPECT_EQ(desk.s.snapKey, 0) << row.keys;
        EXPECT_FALSE(desk.s.controls["pic1"_c].checked) << row.keys;
    }
    Desk desk;
    desk.shell.keyDown(ctrlKey);
    desk.shell.choose("ly3"_c); // by its menu
    EXPECT_EQ(desk.s.snapKey, 0);
}

TEST(Shortcut, DeletesWhatIsSelectedAsTheEditsFormDoes)
{
    Desk desk;
    desk.drawLine(100, 200, 700, 500);
    desk.drawLine(150, 900, 700, 950);
    strike(desk, "Del");
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
    desk.press("Command17"_c);
    desk.cancel(50, 50);
    EXPECT_TRUE(desk.visible("frmedit"_c));
    desk.shell.giveFocus("pic1"_c);
    strike(desk, "Del");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(Shortcut, OfTheDrawingIsNoneInAFieldOrTheList)
{
    for (const ControlId elsewhere : {"angle"_c, "List1"_c, "Combo3"_c}) {
        Desk desk;
        desk.drawLine(100, 200, 700, 500);
        desk.press("Command17"_c);
        const float left = desk.pic1.getScale().left;
        desk.shell.giveFocus(elsewhere);
        for (const std::string_view keys : {"Del", "Home", "Ctrl+A"}) strike(desk, keys);
        EXPECT_EQ(desk.stat(1), Stat::sel) << elsewhere.row().name;
        EXPECT_EQ(desk.pic1.getScale().left, left) << elsewhere.row().name;
        EXPECT_EQ(desk.focused(), elsewhere.row().name);
    }
}

TEST(Shortcut, OfTheDrawingIsNoneWhileATextIsTypedThere)
{
    struct Row {
        ControlId function;
        bool wantsPlace;
    };
    for (const auto& [function, wantsPlace] : {Row{"Command15"_c, true}, {"Command14"_c, false}}) {
        Desk desk;
        desk.add(fake::line({-9000, -7000}, {12000, 8000}));
        const float left = desk.pic1.getScale().left;
        desk.press(function);
        if (wantsPlace) desk.click(311, 702);
        desk.type("Hall");
        strike(desk, "Home");
        EXPECT_EQ(desk.pic1.getScale().left, left) << function.row().tip;
        desk.type("s");
        EXPECT_EQ(desk.text("Text3"_c), "Halls");
        for (int i = 0; i < 5; ++i) desk.backspace();
        strike(desk, "Home");
        EXPECT_LE(desk.pic1.getScale().left, -9000) << function.row().tip << " with nothing typed";
    }
    Desk desk;
    desk.add(fake::line({-9000, -7000}, {12000, 8000}));
    desk.add(fake::text({500, 500}, "w"));
    desk.press("Command16"_c);
    desk.click(505, 505);
    desk.backspace();
    strike(desk, "Home");
    EXPECT_GT(desk.pic1.getScale().left, -9000) << "a text under edit that has lost its last letter";
}

// The form stands for the drawing, and has nothing on it that a key could be typed into.
TEST(Shortcut, OfTheDrawingIsOneOnTheEditsFormToo)
{
    const auto edits = [](Desk& desk, ControlId button) {
        desk.add(fake::circle({-9000, 300}, 411));
        desk.drawLine(100, 200, 700, 533);
        desk.press("Command17"_c);
        desk.cancel(50, 50);
        desk.shell.giveFocus(button);
        ASSERT_EQ(desk.focused(), button.row().name);
    };
    for (const ControlId button : {"frmedit.Command3"_c, "frmedit.Command15"_c}) {
        Desk desk;
        edits(desk, button);
        strike(desk, "Home");
        EXPECT_LE(desk.pic1.getScale().left, -9000);
        strike(desk, "Ctrl+A");
        EXPECT_EQ(desk.stat(1), Stat::sel);
        strike(desk, "Del");
        EXPECT_EQ(desk.stat(1), Stat::out);
        EXPECT_EQ(desk.stat(2), Stat::out);
    }
}

TEST(Shortcut, DoesNotDeleteATextUnderEdit)
{
    Desk desk;
    desk.add(fake::text({500, 500}, "words"));
    desk.press("Command16"_c);
    desk.click(505, 505);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.caption("countlab"_c), "");
    strike(desk, "Del");
    EXPECT_NE(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(Shortcut, SelectsAllThatIsShownInTheFunctionsThatSelect)
{
    const auto fill = [](Desk& desk) {
        desk.add(fake::line({100, 200}, {90000, -500}));
        desk.add(fake::circle({100, 200}, 50));
        desk.add(fake::point({100, 200}), Stat::off);
        desk.add(fake::text({100, 200}, "words"), Stat::out);
        desk.add(fake::record(layerNameKind));
        desk.add(fake::record(pieceOf(Kind::line), {100, 200}, {200, 200}));
    };
    const Stat after[] = {Stat::sel, Stat::sel, Stat::off, Stat::out, Stat::on, Stat::on};
    for (const ControlId function : {"Command18"_c, "Command19"_c, "Command20"_c}) {
        Desk desk;
        fill(desk);
        desk.press(function);
        desk.down(1, 3000, 3000); // a corner of a window, which is then given up
        strike(desk, "Ctrl+A");
        for (std::int32_t slot = 1; slot <= 6; ++slot)
            EXPECT_EQ(desk.stat(slot), after[slot - 1]) << function.row().tip << slot;
        EXPECT_EQ(desk.caption("countlab"_c), "2 objects selected");
        EXPECT_EQ(desk.s.windowStep, 0);
        desk.cancel(3000, 3000);
        EXPECT_TRUE(desk.visible("frmedit"_c)) << function.row().tip;
    }
    Desk desk;
    fill(desk);
    strike(desk, "Ctrl+A"); // "Line"
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(Shortcut, SelectsWhatTheFilterLetsPassInTheFilteredFunction)
{
    Desk desk;
    desk.add(fake::line({100, 200}, {900, 500}));
    desk.add(fake::circle({100, 200}, 50));
    desk.press("Command18"_c);
    desk.s.filterKind = numberOf(Kind::circle);
    strike(desk, "Ctrl+A");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::sel);
}

TEST(Shortcut, DoesNothingBehindAFormThatHasToBeAnswered)
{
    Desk desk;
    desk.drawLine(100, 200, 700, 500);
    strike(desk, "Ctrl+S");
    for (const Shortcut& row : shortcuts) {
        desk.shell.shortcut(row);
        EXPECT_EQ(desk.caption("frmfile"_c), "Save File") << row.keys;
        EXPECT_EQ(desk.stat(1), Stat::on) << row.keys;
        EXPECT_FALSE(desk.visible("frmhelp"_c)) << row.keys;
    }
}

TEST(MenuLetter, EachMenuOfAFormHasOneOfItsOwn)
{
    std::set<std::pair<std::string_view, char>> taken;
    for (const ControlRow& row : controlTable) {
        const bool onBar = row.kind == ControlKind::menu || row.kind == ControlKind::entry;
        if (!onBar || !row.parent.empty()) continue;
        const auto* const letter = std::ranges::find(menuLetters, ControlId(row.id), &MenuLetter::menu);
        ASSERT_NE(letter, std::end(menuLetters)) << row.name;
        EXPECT_NE(row.caption.find(letter->letter), std::string_view::npos) << row.name;
        const char lower = static_cast<char>(letter->letter | 0x20); // a letter
        EXPECT_TRUE(taken.insert({formOf(row.id).row().name, lower}).second) << row.name;
    }
}

} // namespace
} // namespace mirtane
