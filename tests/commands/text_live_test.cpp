#include "commands/live_text.h"
#include "commands/typed_text.h"

#include "commands/text.h"
#include "text_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Ops;
using fake::TextDesk;

struct LiveText : testing::Test, TextDesk {
    LiveText() : TextDesk("Place Text")
    {
        click(100, 200);
        ops();
    }
};

TEST_F(LiveText, BackspaceTakesTheLastCharacterBack)
{
    type("Abc");
    ops();
    backspace();
    EXPECT_EQ(text3(), "Ab");
    EXPECT_EQ(s.textLength, 2);
    const Ops expected = {"text 100 200 0 Ab"};
    EXPECT_EQ(texts(), expected);
    type("d");
    EXPECT_EQ(text3(), "Abd");
}

TEST_F(LiveText, BackspaceOnTheLastCharacterClearsAllAndStays)
{
    type("A");
    s.controls.focus = "entry"_c;
    ops();
    backspace();
    EXPECT_EQ(s.textLength, 0);
    EXPECT_EQ(text3(), "");
    EXPECT_EQ(s.controls.focus, "pic1"_c);
    const Ops expected = {"clear", "restoreSnapshot"};
    EXPECT_EQ(ops(), expected);
    EXPECT_EQ(s.stepNo, 1);
}

TEST_F(LiveText, BackspaceOnNothingIsHarmless)
{
    backspace();
    backspace();
    EXPECT_EQ(s.textLength, 0);
    type("A");
    EXPECT_EQ(text3(), "A");
}

TEST_F(LiveText, CharactersOutsideAsciiAreOneEach)
{
    type("\u00C4\u00E9\u20ACz");
    EXPECT_EQ(s.textLength, 4);
    backspace();
    backspace();
    EXPECT_EQ(text3(), "\u00C4\u00E9");
    enter();
    EXPECT_EQ(slot(1).t1, "\u00C4\u00E9");
}

TEST_F(LiveText, EveryPrintableKeyIsText)
{
    const std::string all = " !\"#$%&'()*+,-./09:;<=>?@AZ[\\]^_`az{|}~";
    type(all);
    EXPECT_EQ(text3(), all);
    EXPECT_TRUE(s.controls["entry"_c].text.empty());
}

TEST_F(LiveText, OtherControlCharactersAreDropped)
{
    type("A");
    ops();
    for (const char32_t code : {0, 1, 3, 9, 10, 22, 27, 31, 127, 128, 159}) key(code);
    EXPECT_EQ(text3(), "A");
    EXPECT_EQ(s.textLength, 1);
    EXPECT_TRUE(ops().empty());
}

TEST_F(LiveText, KeepsAHundredCharactersAndGoesOnCounting)
{
    type(std::string(99, 'a') + "bcd");
    EXPECT_EQ(s.textLength, 102);
    EXPECT_EQ(text3(), std::string(99, 'a') + "b");
    backspace();
    backspace();
    EXPECT_EQ(s.textLength, 100);
    EXPECT_EQ(text3(), std::string(99, 'a') + "b") << "what was never kept is taken back first";
    backspace();
    EXPECT_EQ(text3(), std::string(99, 'a'));
    type("e");
    enter();
    EXPECT_EQ(slot(1).t1, std::string(99, 'a') + "e");
}

TEST_F(LiveText, IsNothingToOtherFunctions)
{
    for (const char* function : {"Line", "Move Dimension Text", "Blank Line", "no function", ""}) {
        s.curFunc = function;
        type("A\r\b");
        repaintTextPreview(s, pic1);
    }
    EXPECT_EQ(s.textLength, 0);
    EXPECT_TRUE(ops().empty());
}

TEST_F(LiveText, PreviewCanBePutBackOnAFreshPicture)
{
    repaintTextPreview(s, pic1);
    EXPECT_TRUE(ops().empty()) << "nothing typed";
    type("Ab");
    ops();
    repaintTextPreview(s, pic1);
    const Ops again = ops();
    const Ops expected = {"text 100 200 0 Ab"};
    EXPECT_EQ(fake::only(again, "text"), expected);
    EXPECT_TRUE(fake::only(again, "restoreSnapshot").empty());
    s.stepNo = 0;
    repaintTextPreview(s, pic1);
    EXPECT_TRUE(ops().empty()) << "no place yet";
}

TEST(LeaderText, IsTypedBeforeTheFirstPoint)
{
    TextDesk desk("Leader");
    desk.s.mousePos = {300, 400};
    desk.type("Oak");
    EXPECT_EQ(desk.text3(), "Oak");
    EXPECT_EQ(desk.texts().size(), 3U);
    desk.s.controls.focus = "entry"_c;
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of leader:)");
    EXPECT_EQ(desk.s.controls.focus, "pic1"_c);
    EXPECT_EQ(desk.text3(), "Oak") << "it is stored with the last point";
    desk.type("x\r");
    EXPECT_EQ(desk.text3(), "Oak") << "typing is over";
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(LeaderText, MayBeEmpty)
{
    TextDesk desk("Leader");
    desk.s.controls["Text3"_c].text = "left by another";
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.text3(), "");
}

TEST(LeaderText, TakenBackWholeIsEmpty)
{
    TextDesk desk("Leader");
    desk.type("O\b\r");
    EXPECT_EQ(desk.text3(), "");
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(TypedText, LoadsAndShowsAllCharactersOfATextLongerThanTheBuffer)
{
    TextDesk desk("Text Edit");
    const std::string text = "\u00E9" + std::string(149, 'x');
    loadTypedText(desk.s, text);
    EXPECT_EQ(desk.s.textLength, 150);
    EXPECT_EQ(desk.text3(), text);
    EXPECT_EQ(typedText(desk.s), text);
    clearTypedText(desk.s);
    EXPECT_EQ(typedText(desk.s), "");
    EXPECT_EQ(desk.text3(), "");
}

} // namespace
} // namespace mirtane
