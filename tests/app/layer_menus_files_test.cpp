// Layers on their way into files and back.

#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LayerDesk;
using fake::rowsOfANewDrawing;

TEST(LayerNames, LiveInTheDrawingTheLastInTheFileWins)
{
    LayerDesk desk;
    desk.drawLine(100, 100, 600, 100);
    desk.nameLayer(4, "walls");
    desk.nameLayer(4, "T\xC3\xBCren");
    desk.addLayer("roof");
    desk.nameLayer(5, "dropped");
    desk.menuRow("ly9a"_c, 5);
    desk.saveAs("house");
    desk.press("fil5"_c);
    EXPECT_EQ(desk.rows(), rowsOfANewDrawing());
    EXPECT_EQ(desk.mode(), "Set Working Layer");
    EXPECT_EQ(desk.s.layerTable.layerCount, 16);
    desk.open("house");
    ASSERT_EQ(desk.rows().size(), 17U); // up to the highest layer that an object or a name calls for
    EXPECT_EQ(desk.row(1), "Yes:Wk :1");
    EXPECT_EQ(desk.row(4), "No :On :T\xC3\xBCren");
    EXPECT_EQ(desk.row(5), "No :On :5");
    EXPECT_EQ(desk.row(16), "No :On :roof");
    EXPECT_EQ(desk.s.store.entCount, 5); // the line and three names
}

TEST(LoadLayer, ChoosesTheLayerAndAsksForAFile)
{
    LayerDesk desk;
    desk.s.saveFollowUp = 2;
    desk.menuRow("ly13"_c, 6);
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("frmfile"_c), "Load Layer");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Open");
    EXPECT_EQ(desk.text("frmfile.Text2"_c), "Mirtane Drawing    *.mtd");
    EXPECT_EQ(desk.s.chosenLayer, 6);
    EXPECT_EQ(desk.s.saveFollowUp, 0);
}

TEST(SaveLayer, OfALayerWithoutObjectsDoesNothing)
{
    LayerDesk desk;
    desk.add(5);
    desk.nameLayer(2, "walls");
    desk.menuRow("ly15"_c, 6);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.chosenLayer, 2);
    EXPECT_EQ(desk.mode(), "Save Layer");
}

TEST(SaveLayer, OffersTheNameOfTheLayer)
{
    LayerDesk desk;
    desk.add(5, Stat::out); // deleted objects count too
    desk.nameLayer(5, "walls");
    desk.menuRow("ly15"_c, 5);
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Layer");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "walls.mtd");
    EXPECT_EQ(desk.s.chosenLayer, 5);
    EXPECT_EQ(desk.s.saveFollowUp, 0);
}

TEST(SaveLayer, AndLoadLayerBringTheObjectsOntoTheLayerChosen)
{
    LayerDesk desk;
    desk.drawLine(100, 100, 600, 100);
    desk.menuRow("ly3"_c, 5);
    desk.drawLine(100, 700, 600, 700);
    desk.drawLine(100, 900, 600, 900);
    desk.nameLayer(5, "walls");
    desk.s.store.layer[4] = 5; // of the record of the name: it goes along
    desk.menuRow("ly7"_c, 1);
    const std::int32_t saved = desk.s.savedCount;
    desk.menuRow("ly15"_c, 5);
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_TRUE(desk.disk.files.contains("/home/user/walls.mtd"));
    EXPECT_EQ(desk.s.savedCount, saved);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.store.entCount, 5);
    EXPECT_EQ(desk.stat(1), Stat::off);

    desk.menuRow("ly13"_c, 7);
    desk.name("walls");
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.savedCount, saved);
    ASSERT_EQ(desk.s.store.entCount, 8); // the header and two lines; the name is dropped
    EXPECT_EQ(desk.slot(5).kind, headerKind);
    EXPECT_EQ(desk.slot(6).p1, (Point{100, 700}));
    EXPECT_EQ(desk.slot(7).p2, (Point{600, 900}));
    for (std::int32_t slot = 5; slot < 8; ++slot) {
        EXPECT_EQ(desk.slot(slot).layer, 7) << slot;
        EXPECT_EQ(desk.stat(slot), Stat::on) << slot;
    }
    EXPECT_EQ(desk.row(7), "Yes:On :7");
    EXPECT_EQ(desk.row(5), "Yes:Wk :walls");
    EXPECT_EQ(desk.s.workLayer, 5);
    EXPECT_EQ(desk.stat(1), Stat::off);
    EXPECT_EQ(desk.mode(), "Load Layer");
}

TEST(SaveLayer, KeepsDeletedAndHiddenObjectsWhichComeBackShown)
{
    LayerDesk desk;
    desk.add(5, Stat::off);
    desk.add(5, Stat::out);
    desk.add(6);
    desk.menuRow("ly15"_c, 5);
    desk.enter();
    desk.press("fil4"_c);
    desk.press("frmfile.Command2"_c); // not to save the drawing first
    desk.name("5");
    desk.enter();
    ASSERT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(LoadLayer, OfAFileThatIsNotThereLeavesTheDrawing)
{
    LayerDesk desk;
    desk.drawLine(100, 100, 600, 100);
    desk.menuRow("ly13"_c, 7);
    desk.name("nowhere");
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.layer(7).layerUsed, "No :");
}

TEST(LoadLayer, OntoAHiddenLayerShowsTheObjectsUntilItIsSwitched)
{
    LayerDesk desk;
    desk.add(5);
    desk.menuRow("ly15"_c, 5);
    desk.enter();
    desk.menuRow("ly7"_c, 7);
    desk.menuRow("ly13"_c, 7);
    desk.name("5");
    desk.enter();
    EXPECT_EQ(desk.stat(3), Stat::on);
    EXPECT_EQ(desk.layer(7).layerShown, "Off:");
    desk.menuRow("ly7"_c, 7);
    desk.pick(7);
    EXPECT_EQ(desk.stat(3), Stat::off);
}

TEST(HiddenObjects, AreNotSelectedDrawnOrDeletedWithTheRest)
{
    LayerDesk desk;
    desk.add(5);
    desk.add(6);
    desk.menuRow("ly7"_c, 5);
    desk.press("Command19"_c);
    desk.click(0, 0);
    desk.click(4000, 3000);
    EXPECT_EQ(desk.stat(1), Stat::off);
    EXPECT_EQ(desk.stat(2), Stat::sel);
    desk.pick(13); // "Delete" in the list of edits
    EXPECT_EQ(desk.stat(1), Stat::off);
    EXPECT_EQ(desk.stat(2), Stat::out);
    desk.menuRow("ly7"_c, 5);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

} // namespace
} // namespace mirtane
