// What the program proposes in a box is selected as a whole, so that it is typed over.

#include "desk.h"
#include "text/utf8.h"

#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LayerDesk;

constexpr ControlId fileName = "frmfile.Text1"_c;

void expectSelected(const LayerDesk& desk, ControlId box, const std::string& text, const char* what)
{
    const Control& control = desk.s.controls[box];
    EXPECT_EQ(control.text, text) << what;
    EXPECT_EQ(control.anchor, 0) << what;
    EXPECT_EQ(control.caret, static_cast<int>(utf8Length(text))) << what; // short
    EXPECT_EQ(desk.s.controls.focus, box) << what;
}

struct ProposedNameRow {
    const char* what;
    void (*ask)(LayerDesk& desk);
    const char* proposed;
};

void nameTheDrawing(LayerDesk& desk)
{
    desk.saveAs("\xC3\xA9t\xC3\xA9");
    desk.drawLine(100, 400, 700, 250);
    desk.s.store.setStat(1, Stat::sel);
}

// The roads that lead to the file dialog with a name.
const ProposedNameRow nameRows[] = {
    {"save", [](LayerDesk& d) { d.press("fil7"_c); }, "\xC3\xA9t\xC3\xA9.mtd"},
    {"selected", [](LayerDesk& d) { d.press("fil9"_c); }, "selected.mtd"},
    {"close", [](LayerDesk& d) { d.press("fil5"_c); }, "\xC3\xA9t\xC3\xA9.mtd"},
    {"exit", [](LayerDesk& d) { d.shell.closeForm("frmMain"_c); }, "\xC3\xA9t\xC3\xA9.mtd"},
    {"DXF", [](LayerDesk& d) { d.press("dd4"_c); }, "\xC3\xA9t\xC3\xA9.dxf"},
    {"layer", [](LayerDesk& d) { d.menuRow("ly15"_c, 1); }, "1.mtd"},
    {"what can't be opened", [](LayerDesk& d) { d.shell.openDrawing("/home/user/lost.mtd"); }, "lost.mtd"},
};

TEST(ProposedName, IsSelectedAsAWholeWithTheCaretBehindIt)
{
    for (const ProposedNameRow& row : nameRows) {
        LayerDesk desk;
        nameTheDrawing(desk);
        row.ask(desk);
        expectSelected(desk, fileName, row.proposed, row.what);
    }
}

TEST(ProposedName, IsTypedOverAndTakenAwayWhole)
{
    for (const ProposedNameRow& row : nameRows) {
        LayerDesk desk;
        nameTheDrawing(desk);
        row.ask(desk);
        desk.type("plan");
        EXPECT_EQ(desk.text(fileName), "plan") << row.what;
        desk.shell.closeForm("frmfile"_c);
        row.ask(desk);
        desk.backspace();
        EXPECT_EQ(desk.text(fileName), "") << row.what;
    }
}

TEST(ProposedName, TypedOverLeavesTheOldDrawingAsItWas)
{
    LayerDesk desk;
    desk.drawLine(100, 400, 700, 250);
    desk.saveAs("house");
    const Bytes before = desk.disk.files["/home/user/house.mtd"];
    desk.drawLine(100, 500, 700, 350);
    desk.press("fil7"_c);
    desk.type("plan");
    desk.enter();
    EXPECT_EQ(desk.disk.files["/home/user/house.mtd"], before);
    EXPECT_TRUE(desk.disk.files.contains("/home/user/plan.mtd"));
}

TEST(ProposedName, IsAddedToAfterAClickIntoTheBox)
{
    LayerDesk desk;
    nameTheDrawing(desk);
    desk.press("fil9"_c);
    desk.press(fileName);
    EXPECT_EQ(desk.s.controls[fileName].anchor, desk.s.controls[fileName].caret);
    desk.backspace();
    EXPECT_EQ(desk.text(fileName), "selected.mt");
}

TEST(ProposedName, ThatWasAClickedRowIsNotSelected)
{
    LayerDesk desk;
    nameTheDrawing(desk);
    desk.press("fil9"_c);
    desk.shell.clickRow("frmfile.File1"_c, 0);
    EXPECT_EQ(desk.s.controls[fileName].anchor, desk.s.controls[fileName].caret);
}

TEST(ProposedLayerRow, IsSelectedWhenALayerIsToBeNamed)
{
    for (const int row : {0, 4, 15}) {
        LayerDesk desk;
        desk.menuRow("ly3"_c, 9);
        desk.menuRow("ly9"_c, row);
        expectSelected(desk, "Combo3"_c, "No :Wk :9", "a row");
        desk.type("W\xC3\xA4nde");
        EXPECT_EQ(desk.text("Combo3"_c), "W\xC3\xA4nde");
        desk.enter();
        EXPECT_EQ(desk.layer(row).layerName, "W\xC3\xA4nde");
    }
}

TEST(ProposedLayerRow, IsSelectedAnewForEachRow)
{
    LayerDesk desk;
    desk.menuRow("ly9"_c, 4);
    desk.type("half a na");
    desk.pick(6);
    expectSelected(desk, "Combo3"_c, "No :Wk :1", "another row");
    desk.pick(6);
    expectSelected(desk, "Combo3"_c, "No :Wk :1", "the same row");
    desk.backspace();
    EXPECT_EQ(desk.text("Combo3"_c), "");
}

} // namespace
} // namespace mirtane
