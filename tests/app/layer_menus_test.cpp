#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LayerDesk;
using fake::LayerMenu;
using fake::listingMenus;
using fake::rowsOfANewDrawing;

TEST(LayerMenus, SetTheModeFillTheListAndChangeNothingElse)
{
    for (const LayerMenu& menu : listingMenus) {
        LayerDesk desk;
        desk.press("Command20"_c); // the list shows the edit functions now
        desk.press("Command1"_c);
        desk.click(100, 100);
        desk.shell.giveFocus("entry"_c);
        desk.ops();
        desk.press(menu.menu);
        EXPECT_EQ(desk.mode(), menu.caption);
        EXPECT_EQ(desk.rows(), rowsOfANewDrawing()) << menu.caption;
        EXPECT_EQ(desk.s.curFunc, "Line") << menu.caption;
        EXPECT_EQ(desk.s.stepNo, 1) << menu.caption;
        EXPECT_EQ(desk.focused(), "entry") << menu.caption;
        EXPECT_TRUE(fake::marks(desk.ops()).empty()) << menu.caption;
        EXPECT_EQ(desk.s.workLayer, 1) << menu.caption;
    }
}

TEST(LayerMenus, ModeLastsUntilAnotherMenuChangesIt)
{
    LayerDesk desk;
    desk.press("ly7"_c);
    desk.drawLine(100, 100, 600, 100);
    desk.press("Command42"_c);
    desk.press("Command2"_c);
    desk.pick(4);
    EXPECT_EQ(desk.layer(4).layerShown, "Off:");
}

TEST(SetWorkingLayer, IsTheModeAtTheStart)
{
    LayerDesk desk;
    desk.pick(3);
    EXPECT_EQ(desk.s.workLayer, 3);
}

TEST(SetWorkingLayer, ChangesTwoRowsTheBoxAndWhereNewObjectsGo)
{
    LayerDesk desk;
    desk.press("ly3"_c);
    desk.shell.giveFocus("entry"_c);
    desk.ops();
    desk.pick(3);
    EXPECT_EQ(desk.row(1), "No :On :1");
    EXPECT_EQ(desk.row(3), "No :Wk :3");
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :3");
    EXPECT_EQ(desk.mode(), "Set Working Layer");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_TRUE(desk.redrawn());
    desk.drawLine(100, 100, 600, 100);
    EXPECT_EQ(desk.slot(1).layer, 3);
    EXPECT_EQ(desk.layer(3).layerUsed, "Yes:");
}

TEST(SetWorkingLayer, OfTheWorkingLayerKeepsItsMark)
{
    LayerDesk desk;
    desk.menuRow("ly3"_c, 1);
    EXPECT_EQ(desk.rows(), rowsOfANewDrawing());
    EXPECT_EQ(desk.s.workLayer, 1);
}

TEST(SetWorkingLayer, TurnsAllOfItsObjectsOnButTheDeleted)
{
    LayerDesk desk;
    const std::int32_t hidden = desk.add(5, Stat::off);
    const std::int32_t selected = desk.add(5, Stat::sel);
    const std::int32_t deleted = desk.add(5, Stat::out);
    const std::int32_t name = desk.add(5, Stat::off, layerNameKind);
    const std::int32_t elsewhere = desk.add(6, Stat::off);
    const std::int32_t alsoElsewhere = desk.add(6, Stat::sel);
    desk.layer(5).layerShown = "Off:";
    desk.menuRow("ly3"_c, 5);
    EXPECT_EQ(desk.layer(5).layerShown, "Wk :");
    EXPECT_EQ(desk.stat(hidden), Stat::on);
    EXPECT_EQ(desk.stat(selected), Stat::on);
    EXPECT_EQ(desk.stat(deleted), Stat::out);
    EXPECT_EQ(desk.stat(name), Stat::on);
    EXPECT_EQ(desk.stat(elsewhere), Stat::off);
    EXPECT_EQ(desk.stat(alsoElsewhere), Stat::sel);
}

TEST(HideLayer, TurnsAllOfItsObjectsOffButTheDeletedAndShowsThemAtTheSecondClick)
{
    LayerDesk desk;
    const std::int32_t shown = desk.add(5);
    const std::int32_t selected = desk.add(5, Stat::sel);
    const std::int32_t deleted = desk.add(5, Stat::out);
    const std::int32_t name = desk.add(5, Stat::on, layerNameKind);
    const std::int32_t elsewhere = desk.add(6);
    const std::int32_t log = desk.s.log.undoLogCount;
    desk.press("ly7"_c);
    desk.ops();
    desk.pick(5);
    EXPECT_EQ(desk.row(5), "Yes:Off:5");
    EXPECT_EQ(desk.focused(), "pic1");
    for (const std::int32_t slot : {shown, selected, name}) EXPECT_EQ(desk.stat(slot), Stat::off) << slot;
    EXPECT_EQ(desk.stat(deleted), Stat::out);
    EXPECT_EQ(desk.stat(elsewhere), Stat::on);
    EXPECT_EQ(fake::marks(desk.ops()).size(), 1U); // the line elsewhere alone is drawn
    desk.pick(5);
    EXPECT_EQ(desk.row(5), "Yes:On :5");
    for (const std::int32_t slot : {shown, selected, name}) EXPECT_EQ(desk.stat(slot), Stat::on) << slot;
    EXPECT_EQ(desk.stat(deleted), Stat::out);
    EXPECT_EQ(fake::marks(desk.ops()).size(), 3U);
    EXPECT_EQ(desk.s.log.undoLogCount, log); // no action
}

TEST(HideLayer, LeavesTheWorkingLayerAndGivesTheFocusBack)
{
    LayerDesk desk;
    desk.add(1);
    desk.press("ly7"_c);
    desk.shell.giveFocus("entry"_c);
    desk.ops();
    desk.pick(1);
    EXPECT_EQ(desk.row(1), "Yes:Wk :1");
    EXPECT_EQ(desk.layer(1).layerShown, "Wk :");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_FALSE(desk.redrawn());
}

TEST(HideAll, TurnsOffAllThatIsShownButTheWorkingLayer)
{
    LayerDesk desk;
    const std::int32_t shown = desk.add(5);
    const std::int32_t selected = desk.add(0, Stat::sel);
    const std::int32_t deleted = desk.add(5, Stat::out);
    const std::int32_t working = desk.add(1);
    const std::int32_t chosen = desk.add(1, Stat::sel);
    desk.ops();
    desk.press("ly5"_c);
    EXPECT_TRUE(desk.redrawn());
    EXPECT_EQ(desk.stat(shown), Stat::off);
    EXPECT_EQ(desk.stat(selected), Stat::off);
    EXPECT_EQ(desk.stat(deleted), Stat::out);
    EXPECT_EQ(desk.stat(working), Stat::on);
    EXPECT_EQ(desk.stat(chosen), Stat::sel);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(desk.layer(i).layerShown, i == 1 ? "Wk :" : "Off:") << i;
    EXPECT_EQ(desk.mode(), "Set Working Layer");
}

TEST(DisplayAll, TurnsOnAllThatIsHiddenButTheWorkingLayer)
{
    LayerDesk desk;
    const std::int32_t hidden = desk.add(5, Stat::off);
    const std::int32_t selected = desk.add(5, Stat::sel);
    const std::int32_t deleted = desk.add(5, Stat::out);
    const std::int32_t working = desk.add(1, Stat::off);
    desk.press("ly5"_c);
    desk.s.store.setStat(selected, Stat::sel);
    desk.s.store.setStat(working, Stat::off);
    desk.ops();
    desk.press("ly6"_c);
    EXPECT_TRUE(desk.redrawn());
    EXPECT_EQ(desk.stat(hidden), Stat::on);
    EXPECT_EQ(desk.stat(selected), Stat::sel);
    EXPECT_EQ(desk.stat(deleted), Stat::out);
    EXPECT_EQ(desk.stat(working), Stat::off);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(desk.layer(i).layerShown, i == 1 ? "Wk :" : "On :") << i;
}

TEST(HideAll, ReachesTheRowBehindTheLastWhichANewLayerTakesShownAllTheSame)
{
    LayerDesk desk;
    desk.press("ly5"_c);
    EXPECT_EQ(desk.layer(16).layerShown, "Off:");
    EXPECT_NE(desk.layer(17).layerShown, "Off:");
    desk.addLayer("roof");
    EXPECT_EQ(desk.row(16), "No :On :roof");
    EXPECT_EQ(desk.row(15), "No :Off:15");
}

TEST(HideAll, RefillsTheListInFiveModesAlone)
{
    for (const LayerMenu& menu : listingMenus) {
        for (const ControlId all : {"ly5"_c, "ly6"_c}) {
            LayerDesk desk;
            if (all == "ly6"_c) desk.press("ly5"_c);
            desk.press(menu.menu);
            desk.press(all);
            const bool before = (all == "ly6"_c) == (desk.row(7) == "No :Off:7");
            EXPECT_EQ(before, std::string_view(menu.caption) == "Un-name Layer") << menu.caption;
            EXPECT_EQ(desk.mode(), menu.caption);
        }
    }
    LayerDesk desk;
    desk.press("Command20"_c);
    desk.press("ly5"_c);
    EXPECT_EQ(desk.row(7), "Move"); // the edit functions stay
}

TEST(NameLayer, GoesIntoTheTableTheListAndTheDrawing)
{
    LayerDesk desk;
    desk.add(4);
    desk.press("ly9"_c);
    desk.pick(4);
    EXPECT_EQ(desk.focused(), "Combo3");
    EXPECT_EQ(desk.s.chosenLayer, 4);
    const std::int32_t log = desk.s.log.undoLogCount;
    const std::int32_t group = desk.s.log.undoGroupNext;
    const std::string gauge = desk.text("memy"_c);
    desk.press("Combo3"_c);
    desk.type("W\xC3\xA4nde 1");
    desk.enter();
    EXPECT_EQ(desk.row(4), "Yes:On :W\xC3\xA4nde 1");
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).kind, layerNameKind);
    EXPECT_EQ(desk.slot(2).p1.x, 6);
    EXPECT_EQ(desk.slot(2).t1, "W\xC3\xA4nde 1");
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.s.log.undoLogCount, log);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
    EXPECT_EQ(desk.text("memy"_c), gauge);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.mode(), "Name Layer");
}

TEST(NameLayer, LeavesTheOtherFieldsAsTheSlotHeldThemAndMarksNoLayerUsed)
{
    LayerDesk desk;
    EntityRecord old;
    old.p1 = {1, 2};
    old.p2 = {3, 4};
    old.layer = 9;
    old.color = 77;
    old.t2 = "left";
    desk.s.store.setRecord(1, old);
    desk.nameLayer(4, "walls");
    old.kind = layerNameKind;
    old.p1.x = 6;
    old.t1 = "walls";
    EXPECT_EQ(desk.slot(1), old);
    EXPECT_EQ(desk.layer(9).layerUsed, "No :");
    EXPECT_EQ(desk.layer(4).layerUsed, "No :");
}

TEST(NameLayer, OfNoTextWaits)
{
    LayerDesk desk;
    desk.nameLayer(4, "");
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.row(4), "No :On :4");
    EXPECT_EQ(desk.focused(), "Combo3");
}

TEST(NameLayer, TakesTheTextAsItStandsWhenTheBoxIsNotClicked)
{
    LayerDesk desk;
    desk.menuRow("ly9"_c, 4);
    desk.enter();
    EXPECT_EQ(desk.layer(4).layerName, "No :Wk :1");
    EXPECT_EQ(desk.row(4), "No :On :No :Wk :1");
}

TEST(NameLayer, WithoutAClickOnARowNamesTheLayerChosenLast)
{
    LayerDesk desk;
    desk.press("ly9"_c);
    desk.press("Combo3"_c);
    desk.type("ground");
    desk.enter();
    EXPECT_EQ(desk.row(0), "No :On :ground");
    desk.menuRow("ly13"_c, 6); // to load a layer chooses it too
    desk.press("frmfile.Command2"_c);
    desk.press("ly9"_c);
    desk.press("Combo3"_c);
    desk.type("roof");
    desk.enter();
    EXPECT_EQ(desk.row(6), "No :On :roof");
}

TEST(NameLayer, AgainWritesASecondRecord)
{
    LayerDesk desk;
    desk.nameLayer(4, "walls");
    desk.nameLayer(4, "doors");
    EXPECT_EQ(desk.row(4), "No :On :doors");
    EXPECT_EQ(desk.slot(1).t1, "walls");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.slot(2).t1, "doors");
    EXPECT_EQ(desk.s.store.entCount, 3);
}

TEST(LayerBox, TakesEnterInTwoModesAlone)
{
    for (const LayerMenu& menu : listingMenus) {
        if (std::string_view(menu.caption) == "Name Layer") continue;
        LayerDesk desk;
        desk.press(menu.menu);
        desk.press("Combo3"_c);
        desk.type("walls");
        desk.enter();
        EXPECT_EQ(desk.s.store.entCount, 1) << menu.caption;
        EXPECT_EQ(desk.s.layerTable.layerCount, 16) << menu.caption;
        EXPECT_EQ(desk.rows(), rowsOfANewDrawing()) << menu.caption;
        EXPECT_EQ(desk.mode(), menu.caption);
        EXPECT_EQ(desk.text("Combo3"_c), "walls") << menu.caption;
    }
}

struct BoxRow {
    const char* what;
    void (*act)(LayerDesk& desk);
    const char* shown;
};

TEST(LayerBox, ShowsTheWorkingLayerAgainAfterItsNameWasTaken)
{
    const BoxRow rows[] = {
        {"another layer named", [](LayerDesk& d) { d.nameLayer(4, "walls"); }, "No :Wk :7"},
        {"the working layer named", [](LayerDesk& d) { d.nameLayer(7, "walls"); }, "No :Wk :walls"},
        {"a layer added", [](LayerDesk& d) { d.addLayer("roof"); }, "No :Wk :7"},
        {"none added", [](LayerDesk& d) { d.addLayer(""); }, "No :Wk :7"},
        {"the working layer un-named",
         [](LayerDesk& d) {
             d.nameLayer(7, "walls");
             d.menuRow("ly9a"_c, 7);
         },
         "No :Wk :7"},
        {"a layer un-named while something is typed",
         [](LayerDesk& d) {
             d.press("ly11"_c);
             d.type("ro");
             d.menuRow("ly9a"_c, 4);
         },
         "No :Wk :7"},
    };
    for (const BoxRow& row : rows) {
        LayerDesk desk;
        desk.menuRow("ly3"_c, 7);
        row.act(desk);
        EXPECT_EQ(desk.text("Combo3"_c), row.shown) << row.what;
    }
}

TEST(LayerBox, ShowsTheWorkingLayerAgainWhenTheFocusGoes)
{
    const BoxRow rows[] = {
        {"to the drawing", [](LayerDesk& d) { d.down(1, 100, 100); }, ""},
        {"by a right click", [](LayerDesk& d) { d.cancel(); }, ""},
        {"to another field", [](LayerDesk& d) { d.press("textrot"_c); }, ""},
        {"by the key that goes on", [](LayerDesk& d) { d.shell.giveFocus("List1"_c); }, ""},
        {"to a row of the list", [](LayerDesk& d) { d.pick(3); }, ""},
        {"to a function", [](LayerDesk& d) { d.press("Command2"_c); }, ""},
        {"to the file dialog", [](LayerDesk& d) { d.press("fil7"_c); }, ""},
        {"to the window that leaves", [](LayerDesk& d) { d.shell.closeForm("frmMain"_c); }, ""},
    };
    for (const ControlId menu : {"ly9"_c, "ly11"_c, "ly7"_c}) {
        for (const BoxRow& row : rows) {
            LayerDesk desk;
            desk.drawLine(100, 100, 400, 300);
            desk.press(menu);
            desk.press("Combo3"_c);
            desk.type("half a na");
            row.act(desk);
            EXPECT_EQ(desk.text("Combo3"_c), "Yes:Wk :1") << menu.row().name << " " << row.what;
        }
    }
}

TEST(LayerBox, KeepsWhatIsTypedWhileItHasTheFocus)
{
    LayerDesk desk;
    desk.press("ly11"_c);
    desk.type("ro");
    desk.move(300, 300);
    desk.press("tk12"_c); // a check mark moves no focus
    desk.press("ly6"_c);
    desk.type("of");
    EXPECT_EQ(desk.text("Combo3"_c), "roof");
    desk.enter();
    EXPECT_EQ(desk.row(16), "No :On :roof");
}

TEST(AddLayer, ClearsTheBoxAndKeepsTheList)
{
    LayerDesk desk;
    desk.press("Command20"_c);
    desk.press("ly11"_c);
    EXPECT_EQ(desk.mode(), "Add Layer");
    EXPECT_EQ(desk.text("Combo3"_c), "");
    EXPECT_EQ(desk.focused(), "Combo3");
    EXPECT_EQ(desk.row(7), "Move");
    desk.pick(7);
    EXPECT_EQ(desk.s.curFunc, "Object Select"); // rows mean nothing in this mode
    EXPECT_EQ(desk.text("entry"_c), "Right click to display edits:");
}

TEST(AddLayer, IsTheNextNumberWithARecordOfItsName)
{
    LayerDesk desk;
    const std::string gauge = desk.text("memy"_c);
    desk.addLayer("roof");
    EXPECT_EQ(desk.mode(), "Set Working Layer");
    EXPECT_EQ(desk.focused(), "pic1");
    ASSERT_EQ(desk.rows().size(), 17U);
    EXPECT_EQ(desk.row(16), "No :On :roof");
    EXPECT_EQ(desk.s.layerTable.layerCount, 17);
    EXPECT_EQ(desk.layer(16).layerNumber, 16);
    EXPECT_EQ(desk.slot(1).kind, layerNameKind);
    EXPECT_EQ(desk.slot(1).p1.x, 18);
    EXPECT_EQ(desk.slot(1).t1, "roof");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
    EXPECT_EQ(desk.text("memy"_c), gauge);
    desk.addLayer("roof"); // the same name twice is no fault
    EXPECT_EQ(desk.row(17), "No :On :roof");
}

TEST(AddLayer, OfNoTextAddsNothingButEndsTheMode)
{
    LayerDesk desk;
    desk.press("Command20"_c);
    desk.addLayer("");
    EXPECT_EQ(desk.mode(), "Set Working Layer");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.rows(), rowsOfANewDrawing());
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST(AddLayer, BeyondAThousandRowsDoesNoHarm)
{
    LayerDesk desk;
    for (int i = 16; i < 1010; ++i) desk.addLayer("n" + std::to_string(i));
    ASSERT_EQ(desk.rows().size(), 1000U);
    EXPECT_EQ(desk.row(999), "No :On :n999");
    EXPECT_EQ(desk.row(16), "No :On :n16");
    EXPECT_EQ(desk.row(1), "No :Wk :1");
    EXPECT_EQ(desk.s.workLayer, 1);
    desk.menuRow("ly3"_c, 999);
    EXPECT_EQ(desk.row(999), "No :Wk :n999");
    EXPECT_EQ(desk.row(1), "No :On :1");
    desk.drawLine(100, 100, 600, 100);
    EXPECT_EQ(desk.slot(desk.s.store.entCount - 1).layer, 999);
    desk.press("ly5"_c);
    desk.press("ly3"_c);
    EXPECT_EQ(desk.row(998), "No :Off:n998");
    EXPECT_EQ(desk.row(999), "Yes:Wk :n999");
    desk.press("ly6"_c);
    desk.saveAs("many");
    desk.press("fil5"_c);
    EXPECT_EQ(desk.rows(), rowsOfANewDrawing());
    desk.open("many");
    ASSERT_GE(desk.rows().size(), 1000U);
    EXPECT_EQ(desk.row(999), "Yes:Wk :n999");
    EXPECT_EQ(desk.row(998), "No :On :n998");
}

TEST(UnnameLayer, GivesTheNumberBackAndDropsAllItsRecords)
{
    LayerDesk desk;
    desk.nameLayer(4, "walls");
    desk.nameLayer(4, "doors");
    desk.nameLayer(5, "stairs");
    setText(desk.s.controls["Combo3"_c], "scribble");
    desk.menuRow("ly9a"_c, 4);
    EXPECT_EQ(desk.row(4), "No :On :4");
    EXPECT_EQ(desk.row(5), "No :On :stairs");
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::out);
    EXPECT_EQ(desk.stat(3), Stat::on);
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :1");
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
}

TEST(UnnameLayer, OfTheWorkingLayerShowsInTheBox)
{
    LayerDesk desk;
    desk.nameLayer(1, "walls");
    desk.menuRow("ly3"_c, 1);
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :walls");
    desk.menuRow("ly9a"_c, 1);
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :1");
}

TEST(UnnameLayer, OfAnAddedLayerGivesItItsNumber)
{
    LayerDesk desk;
    desk.addLayer("roof");
    desk.menuRow("ly9a"_c, 16);
    EXPECT_EQ(desk.row(16), "No :On :16");
    EXPECT_EQ(desk.stat(1), Stat::out);
}

// A drawing whose layers all lie below its working layer leaves that one without a row.
TEST(AddLayer, ThatIsTheWorkingOneIsMarkedSo)
{
    fake::Desk desk;
    desk.saveAs("empty");
    desk.open("empty");
    ASSERT_EQ(desk.s.layerTable.layerCount, 1);
    desk.drawLine(100, 100, 400, 100);
    desk.press("ly11"_c);
    desk.type("Walls");
    desk.enter();
    EXPECT_EQ(desk.s.controls["List1"_c].rows[1], "Yes:Wk :Walls");
}

} // namespace
} // namespace mirtane
