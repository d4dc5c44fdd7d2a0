// The form with the manual.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

const std::string helpFile = "/home/user/mirtanehelp.txt";

Bytes helpBytes(const std::string& text)
{
    return {text.begin(), text.end()};
}

TEST(Help, ShowsTheFileInTheProgramsFolder)
{
    Desk desk;
    desk.disk.files[helpFile] = helpBytes("First\r\nSecond\r\n");
    desk.press("hlp3"_c);
    EXPECT_TRUE(desk.visible("frmhelp"_c));
    EXPECT_EQ(desk.caption("frmhelp"_c), "Mirtane 4.00 Help");
    EXPECT_EQ(desk.text("frmhelp.Text1"_c).substr(0, 13), "First\r\nSecond");
    EXPECT_EQ(desk.text("entry"_c), "");
}

TEST(Help, JoinsTheLinesWithCarriageReturnAndLineFeed)
{
    const std::pair<const char*, const char*> rows[] = {
        {"a\r\nb", "a\r\nb"}, {"a\nb", "a\r\nb"},           {"a\n\nb", "a\r\n\r\nb"},
        {"a", "a"},           {"\r\na\r\nb", "\r\na\r\nb"}, {"a\r\n\r\nb\nc", "a\r\n\r\nb\r\nc"}};
    for (const auto& [file, shown] : rows) {
        Desk desk;
        desk.disk.files[helpFile] = helpBytes(file);
        desk.press("hlp3"_c);
        EXPECT_EQ(desk.text("frmhelp.Text1"_c), shown) << file;
    }
}

TEST(Help, IsReadInTheWesternCodePage)
{
    Desk desk;
    desk.disk.files[helpFile] = helpBytes("caf\xE9 \x80 \x93quoted\x94 90\xB0");
    desk.press("hlp3"_c);
    EXPECT_EQ(desk.text("frmhelp.Text1"_c),
              "caf\xC3\xA9 \xE2\x82\xAC \xE2\x80\x9Cquoted\xE2\x80\x9D 90\xC2\xB0");
}

TEST(Help, ThatIsMissingLeavesItsTextEmptyAndSaysSo)
{
    Desk desk;
    desk.disk.files[helpFile] = helpBytes("old");
    desk.press("hlp3"_c);
    desk.disk.files.clear();
    desk.press("hlp3"_c);
    EXPECT_TRUE(desk.visible("frmhelp"_c));
    EXPECT_EQ(desk.text("frmhelp.Text1"_c), "");
    EXPECT_EQ(desk.text("entry"_c), "Help file not found!");
}

TEST(Help, OfAnEmptyFileIsEmptyAndNotMissing)
{
    Desk desk;
    desk.disk.files[helpFile] = {};
    desk.press("hlp3"_c);
    EXPECT_EQ(desk.text("frmhelp.Text1"_c), "");
    EXPECT_EQ(desk.text("entry"_c), "");
}

TEST(Help, IsLookedForInTheProgramsFolderWhateverTheLastPathIs)
{
    Desk desk({{"wkp", "/plans"}, {"wkd", "/plans"}});
    desk.folders.folders.insert("/plans");
    desk.disk.files[helpFile] = helpBytes("manual");
    desk.press("fil4"_c);
    desk.press("frmfile.Command2"_c);
    desk.press("hlp3"_c);
    EXPECT_EQ(desk.text("frmhelp.Text1"_c), "manual");
}

TEST(Help, CannotBeEdited)
{
    Desk desk;
    desk.disk.files[helpFile] = helpBytes("manual");
    desk.press("hlp3"_c);
    desk.shell.giveFocus("frmhelp.Text1"_c);
    desk.type("xyz");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.text("frmhelp.Text1"_c), "manual");
}

TEST(Help, ClosedByItsFrameLeavesTheProgramAndTheDrawing)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.press("hlp3"_c);
    desk.shell.closeForm("frmhelp"_c);
    EXPECT_FALSE(desk.visible("frmhelp"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_FALSE(desk.shell.ended());
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(Help, DoesNotDisturbTheRunningFunction)
{
    Desk desk;
    desk.click(100, 100);
    desk.press("hlp3"_c);
    EXPECT_EQ(desk.s.stepNo, 1);
    desk.shell.closeForm("frmhelp"_c);
    desk.click(400, 100);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

} // namespace
} // namespace mirtane
