// The manual's chapters, its find line, and where it opens.

#include "app/dialogs/manual.h"

#include "desk.h"
#include "tables/functions.h"

#include <gtest/gtest.h>

#include <fstream>

namespace mirtane {
namespace {

using fake::Desk;

Bytes fileOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

// The one that is sent out with the program.
std::string wholeManual()
{
    std::ifstream file(std::string(MIRTANE_SOURCE_DIR) + "/data/mirtanehelp.txt", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return joinedLines(fileOf(text));
}

std::string lineOfManual(const std::string& text, std::size_t place)
{
    return text.substr(place, text.find("\r\n", place) - place);
}

std::string chosenLine(const Desk& desk)
{
    const std::string& text = desk.text("frmhelp.Text1"_c);
    return lineOfManual(text, byteAt(text, desk.s.controls["frmhelp.Text1"_c].anchor));
}

struct Reader : Desk {
    explicit Reader(const std::string& text = wholeManual())
    {
        disk.files["/home/user/mirtanehelp.txt"] = fileOf(text);
    }

    Control& page() { return s.controls["frmhelp.Text1"_c]; }
    std::string marked()
    {
        const std::size_t from = byteAt(page().text, page().anchor);
        return page().text.substr(from, byteAt(page().text, page().caret) - from);
    }
};

TEST(Manual, HasItsChaptersInTheContents)
{
    Reader reader;
    reader.press("hlp3"_c);
    const std::vector<std::string>& rows = reader.rows("frmhelp.List1"_c);
    ASSERT_EQ(rows.size(), 24U);
    EXPECT_EQ(rows[0], "1  The idea: functions, steps and prompts");
    EXPECT_EQ(rows[8], "9  Dimensions and leaders");
    EXPECT_EQ(rows[23], "24  Where each menu is explained");
}

TEST(Manual, OpensAtTheChapterThatIsClicked)
{
    Reader reader;
    reader.press("hlp3"_c);
    for (const int row : {20, 0, 23, 11}) {
        reader.shell.clickRow("frmhelp.List1"_c, row);
        EXPECT_EQ(chosenLine(reader).substr(0, 3), (std::to_string(row + 1) + "  ").substr(0, 3)) << row;
        EXPECT_EQ(reader.s.controls["frmhelp.List1"_c].row, row);
        EXPECT_EQ(reader.marked(), "");
    }
}

TEST(Manual, TellsOfEachFunctionWhereItsRowSays)
{
    const std::string text = wholeManual();
    for (const FunctionRow& row : vocabulary()) {
        const InManual& told = row.inManual;
        EXPECT_EQ(lineOfManual(text, placeInManual(text, told.chapter, told.heading)), told.heading)
            << row.name;
    }
}

TEST(Manual, OpensWhereItTellsOfTheRunningFunction)
{
    struct Row {
        const char* what;
        ControlId starter;
        const char* heading;
        int chapter; // counted from 0
    };
    const Row rows[] = {
        {"a curve", "Command6"_c, "Curve", 6},
        {"a leader", "Command14"_c, "Leader", 8},
        {"a window", "Command18"_c, "Window Select Filtered", 9},
        {"an area", "ut4"_c, "Utilities > Measure Area", 14},
        {"the text size", "tk3"_c, "Settings for text to come, in the menu Text", 7},
        {"the construction line", "blank"_c, "The construction line (\"blank line\")", 4},
    };
    for (const Row& row : rows) {
        Reader reader;
        reader.press(row.starter);
        reader.press("hlp3"_c);
        EXPECT_EQ(chosenLine(reader), row.heading) << row.what;
        EXPECT_EQ(reader.s.controls["frmhelp.List1"_c].row, row.chapter) << row.what;
    }
}

TEST(Manual, OpensAtItsBeginningForWhoHasDrawnNothing)
{
    Reader reader;
    reader.press("hlp3"_c);
    EXPECT_EQ(chosenLine(reader), "MIRTANE 4.00");
    EXPECT_EQ(reader.s.controls["frmhelp.List1"_c].row, -1);
    reader.shell.closeForm("frmhelp"_c);
    reader.drawLine(1203, -400, 1790, -811);
    reader.press("hlp3"_c);
    EXPECT_EQ(chosenLine(reader), "Line");
}

TEST(Manual, WithoutChaptersOpensAtItsBeginning)
{
    for (const char* text : {"", "no chapters", "7  NO DASHES\nLine\n", "----------\n----------\n"}) {
        Reader reader(text);
        reader.press("Command6"_c);
        reader.press("hlp3"_c);
        EXPECT_TRUE(reader.rows("frmhelp.List1"_c).empty()) << text;
        EXPECT_EQ(reader.page().caret, 0) << text;
    }
}

TEST(Manual, FindsAWordInUpperOrLowerCaseAndThenTheNext)
{
    Reader reader("One here\r\ntwo HERE and\r\n\xE9 here");
    reader.press("hlp3"_c);
    reader.shell.giveFocus("frmhelp.Text2"_c);
    const auto places = [&] { return std::pair(reader.page().anchor, reader.page().caret); };
    reader.type("hE");
    EXPECT_EQ(reader.marked(), "he");
    reader.type("re");
    EXPECT_EQ(places(), std::pair(4, 8)) << "the one that was found grows";
    reader.enter();
    EXPECT_EQ(reader.marked(), "HERE");
    reader.enter();
    EXPECT_EQ(places(), std::pair(26, 30));
    reader.enter();
    EXPECT_EQ(places(), std::pair(4, 8)) << "round to the first";
    EXPECT_EQ(reader.text("frmhelp.Text2"_c), "hEre");
}

TEST(Manual, AWordThatIsNotThereIsSoCalledAndMovesNothing)
{
    Reader reader("abc abd abe");
    reader.press("hlp3"_c);
    reader.shell.giveFocus("frmhelp.Text2"_c);
    reader.type("abd");
    reader.type("x");
    EXPECT_EQ(reader.caption("frmhelp.Label1"_c), "Not found");
    EXPECT_EQ(reader.marked(), "abd");
    reader.backspace();
    EXPECT_EQ(reader.caption("frmhelp.Label1"_c), "Find");
    for (int i = 0; i < 3; ++i) reader.backspace();
    EXPECT_EQ(reader.caption("frmhelp.Label1"_c), "Find");
}

} // namespace
} // namespace mirtane
