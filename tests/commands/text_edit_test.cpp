#include "commands/live_text.h"
#include "commands/text_edit.h"

#include "text_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Ops;

// With something in the fields that no text has.
EntityRecord textAt(Point at, const std::string& words)
{
    EntityRecord r = fake::text(at, words, 20, "Courier");
    r.p2.y = 1;
    r.p3 = {1, 77};
    r.p4 = {at.x - 60, at.y};
    r.p5 = {8, 9};
    r.s1 = 3;
    r.s2 = 4;
    r.rad = 72;
    r.a1 = 15.25;
    r.a2 = 2;
    return fake::ofLooks(r, 255, 4, 3); // a copy drops the style
}

EntityRecord dimensionOf(Kind kind, Point textAt)
{
    const EntityRecord points =
        fake::record(kind, {100, 2000}, {700, 2000}, {700, 1900}, {100, 1900}, textAt);
    EntityRecord r = fake::dimension(points, "50'-0\"", 2, 48);
    r.rad = 50;
    r.a1 = 90;
    r.a2 = 48;
    r.a3 = 30;
    r.style = 2;
    return r;
}

struct TextEdit : testing::Test, fake::TextDesk {
    TextEdit() : TextDesk("Text Edit") {}
};

TEST_F(TextEdit, ClickHidesTheTextAndShowsItAsAPreview)
{
    add(textAt({1000, 1000}, "Level 1"));
    add(textAt({1000, 3000}, "Level 2"));
    click(1000, 1000);
    EXPECT_EQ(s.stepNo, 1);
    EXPECT_EQ(s.promptText, "(Edit text:)");
    EXPECT_EQ(s.pickedIndex, 1);
    EXPECT_EQ(stat(1), Stat::sel);
    EXPECT_EQ(text3(), "Level 1");
    EXPECT_EQ(s.textLength, 7);
    EXPECT_EQ(s.ptA, (Point{1000, 1000}));
    const Ops all = ops();
    const Ops expected = {"text 940 3000 15 Level 2", "text 940 1000 15 Level 1"};
    EXPECT_EQ(fake::only(all, "text"), expected);
    EXPECT_LT(std::ranges::find(all, "snapshot"), std::ranges::find(all, expected[1]))
        << "the clean picture lacks it";
}

TEST_F(TextEdit, KeysEditInThePlaceSizeAndFontOfTheText)
{
    add(textAt({1000, 1000}, "Level 1"));
    s.textFont = "Garamond";
    click(1000, 1000);
    backspace();
    ops();
    type("2");
    const Ops expected = {"restoreSnapshot", "setUnderline 1", "setFontName Courier",
                          "setFontSize 20",  "setStyle 0",     "text 940 1000 15 Level 2",
                          "setStyle 2"};
    EXPECT_EQ(ops(), expected);
    EXPECT_EQ(s.textFont, "Garamond") << "what new text takes is left alone";
}

TEST_F(TextEdit, EnterPutsANewObjectInThePlaceOfTheOld)
{
    add(textAt({1000, 1000}, "Level 1"));
    click(1000, 1000);
    type("00");
    s.controls.focus = "entry"_c;
    enter();
    EXPECT_EQ(s.store.entCount, 3);
    EXPECT_EQ(stat(1), Stat::out);
    EXPECT_EQ(stat(2), Stat::on);
    EntityRecord expected = textAt({1000, 1000}, "Level 100");
    expected.style = 0;
    EXPECT_FLOAT_EQ(slot(2).rad, 1.2F * 0.6F * 20 * 9);
    expected.rad = slot(2).rad;
    EXPECT_EQ(slot(2), expected);
    EXPECT_EQ(slot(1), textAt({1000, 1000}, "Level 1"));
    EXPECT_EQ(s.stepNo, 0);
    EXPECT_EQ(s.promptText, "(Click near upper-left of text:)");
    EXPECT_EQ(text3(), "");
    EXPECT_EQ(s.textLength, 0);
    EXPECT_EQ(s.controls.focus, "pic1"_c);
    EXPECT_EQ(s.layerTable.find(4)->layerUsed, "Yes:");
}

TEST_F(TextEdit, IsOneUndo)
{
    add(textAt({1000, 1000}, "Level 1"));
    click(1000, 1000);
    type("0");
    enter();
    undo(s.store, s.log);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::out);
    redo(s.store, s.log);
    EXPECT_EQ(stat(1), Stat::out);
    EXPECT_EQ(stat(2), Stat::on);
}

TEST_F(TextEdit, EnterShowsTheNewTextInItsOwnColour)
{
    add(textAt({1000, 1000}, "Level 1"));
    click(1000, 1000);
    type("0");
    ops();
    enter();
    const Ops shown = ops();
    const Ops expected = {"text 940 1000 15 Level 10"};
    EXPECT_EQ(fake::only(shown, "text"), expected);
    EXPECT_EQ(fake::only(shown, "setColor")[0], "setColor 255");
}

struct DimensionRow {
    Kind kind;
    Point click; // where the kind is picked
    std::int16_t styleAfter;
    const char* preview;
};

TEST_F(TextEdit, TakesTheTextOfEveryDimension)
{
    const DimensionRow rows[] = {
        {Kind::linearDimension, {3000, 1000}, 0, "text 3000 1000 90 50'-0\"x"},
        {Kind::radialDimension, {3000, 1000}, 0, "text 3000 1000 90 50'-0\"x"},
        {Kind::leader, {700, 2000}, 0, "text 3000 1000 90 50'-0\"x"},
        {Kind::angularDimension, {3000, 1000}, 2, "text 3000 1000 30 50'-0\"x"},
    };
    for (const DimensionRow& row : rows) {
        s.store.entCount = 1;
        const EntityRecord old = dimensionOf(row.kind, {3000, 1000});
        add(old);
        click(row.click.x, row.click.y);
        ASSERT_EQ(s.pickedIndex, 1) << numberOf(row.kind);
        ops();
        type("x");
        const Ops preview = {row.preview};
        EXPECT_EQ(texts(), preview);
        enter();
        EntityRecord expected = old;
        expected.t1 = "50'-0\"x";
        expected.style = row.styleAfter;
        EXPECT_EQ(slot(2), expected) << numberOf(row.kind);
        EXPECT_EQ(stat(1), Stat::out);
    }
}

TEST_F(TextEdit, LinesOfADimensionInEditStay)
{
    add(dimensionOf(Kind::linearDimension, {3000, 1000}));
    click(3000, 1000);
    EXPECT_EQ(fake::only(ops(), "line").size(), 7U);
}

TEST_F(TextEdit, ClickOnNothingBeginsAnew)
{
    add(fake::line({1000, 1000}, {1100, 1000}));
    click(1000, 1000);
    EXPECT_EQ(s.stepNo, 0);
    EXPECT_EQ(s.promptText, "(Click near upper-left of text:)");
    EXPECT_EQ(s.textLength, 0);
    type("A\r");
    EXPECT_EQ(s.store.entCount, 2);
}

TEST_F(TextEdit, ClickOnAnotherTextGoesOverToIt)
{
    add(textAt({1000, 1000}, "Level 1"));
    add(textAt({1000, 3000}, "Level 2"));
    click(1000, 1000);
    type("0");
    click(1000, 3000);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::sel);
    EXPECT_EQ(text3(), "Level 2");
    type("x");
    enter();
    EXPECT_EQ(slot(3).t1, "Level 2x");
    EXPECT_EQ(stat(1), Stat::on) << "what was typed before is given up";
}

TEST_F(TextEdit, ClickTurnsWhatWasSelectedOn)
{
    add(textAt({1000, 3000}, "Level 2"), Stat::sel);
    click(100, 100);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(texts().size(), 1U) << "and shows it";
}

TEST_F(TextEdit, EmptyTextIsStoredAsItIs)
{
    add(textAt({1000, 1000}, "ab"));
    click(1000, 1000);
    type("\b\b\r");
    EXPECT_EQ(slot(2).t1, "");
    EXPECT_EQ(slot(2).rad, 0);
    EXPECT_EQ(stat(1), Stat::out);
}

TEST_F(TextEdit, LongTextThatIsNotTouchedKeepsAllItsCharacters)
{
    add(textAt({1000, 1000}, std::string(150, 'x')));
    click(1000, 1000);
    enter();
    EXPECT_EQ(slot(2).t1, std::string(150, 'x'));
}

// So many letters that no two beside each other are one; every seventh takes two bytes.
std::string longText(int letters)
{
    std::string text;
    for (int i = 0; i < letters; ++i)
        text += i % 7 == 3 ? "\u00E9" : std::string(1, static_cast<char>('a' + i % 26)); // a letter
    return text;
}

// Only files of other programs hold such.
TEST_F(TextEdit, LongTextLosesNothingToAKeyThatItHasNoRoomFor)
{
    for (const int letters : {101, 107, 150, 264, 1000}) {
        const Point at{1000, static_cast<float>(letters)}; // a whole number
        add(textAt(at, longText(letters)));
        click(at);
        type("X");
        EXPECT_EQ(text3(), longText(letters)) << letters;
        enter();
        EXPECT_EQ(slot(s.store.entCount - 1).t1, longText(letters)) << letters;
    }
}

TEST_F(TextEdit, LongTextIsTakenBackLetterByLetter)
{
    for (const int letters : {101, 103, 128, 300}) {
        const Point at{1000, static_cast<float>(letters)}; // a whole number
        add(textAt(at, longText(letters)));
        click(at);
        for (int left = letters - 1; left >= 97; --left) {
            backspace();
            ASSERT_EQ(text3(), longText(left)) << letters;
        }
        type("XYZ");
        EXPECT_EQ(text3(), longText(97) + "XYZ");
        type("U");
        EXPECT_EQ(text3(), longText(97) + "XYZ") << "the hundredth is the last";
        enter();
        EXPECT_EQ(slot(s.store.entCount - 1).t1, longText(97) + "XYZ") << letters;
    }
}

// As at a hundred letters: what was not taken is what Backspace takes back first.
TEST_F(TextEdit, LongTextCountsTheKeysThatItRefused)
{
    add(textAt({1000, 1000}, longText(140)));
    click(1000, 1000);
    type("XY");
    type("\b\b");
    EXPECT_EQ(text3(), longText(140));
    type("\b");
    EXPECT_EQ(text3(), longText(139));
}

TEST_F(TextEdit, AfterALongOneAShortOneHasNoneOfIt)
{
    add(textAt({1000, 1000}, longText(140)));
    add(textAt({1000, 3000}, "Level 2"));
    click(1000, 1000);
    type("\b");
    click(1000, 3000);
    type("x");
    EXPECT_EQ(text3(), "Level 2x");
}

// The middle button counts no step, and a text would be picked that takes no key.
TEST_F(TextEdit, MiddleButtonBeforeTheFirstClickPicksNothing)
{
    add(textAt({1000, 1000}, "Level 1"));
    add(textAt({2000, 2000}, "Level 2"), Stat::sel);
    down(4, {1000, 1000});
    EXPECT_EQ(s.stepNo, 0);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::sel);
    EXPECT_TRUE(texts().empty());
}

// Its layer was hidden while it was typed.
TEST_F(TextEdit, OfAHiddenTextIsHidden)
{
    add(textAt({1000, 1000}, "Level 1"));
    click(1000, 1000);
    type("0");
    s.store.setStat(1, Stat::off);
    enter();
    EXPECT_EQ(slot(2).t1, "Level 10");
    EXPECT_EQ(stat(2), Stat::off);
    EXPECT_EQ(stat(1), Stat::out);
    undo(s.store, s.log);
    EXPECT_EQ(stat(2), Stat::out);
}

TEST_F(TextEdit, OfAnObjectThatHasGoneChangesNothing)
{
    add(textAt({1000, 1000}, "ab"));
    click(1000, 1000);
    s.store.setStat(1, Stat::out); // by an undo
    type("c\r");
    EXPECT_EQ(s.store.entCount, 2);
    EXPECT_EQ(s.stepNo, 0);
    add(textAt({1000, 1000}, "ab"));
    click(1000, 1000);
    s.store.entCount = 1; // another drawing
    type("c\r");
    EXPECT_EQ(s.store.entCount, 1);
}

TEST_F(TextEdit, PreviewComesBackAfterAZoom)
{
    add(textAt({1000, 1000}, "ab"));
    click(1000, 1000);
    redrawAll(s, pic1);
    ops();
    repaintTextPreview(s, pic1);
    const Ops expected = {"text 940 1000 15 ab"};
    EXPECT_EQ(texts(), expected);
}

} // namespace
} // namespace mirtane
