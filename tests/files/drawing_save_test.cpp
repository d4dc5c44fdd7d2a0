// What a drawing puts into its file.

#include "drawing_samples.h"
#include "files/drawing_file.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

// One line on layer 5 for each stat, a line on layer 6, a piece of an associate, a dead header and two layer
// names.
void fillWithEverything(Session& s)
{
    std::int16_t style = 0;
    for (const Stat stat : {Stat::on, Stat::sel, Stat::off, Stat::out}) {
        EntityRecord line = object(Kind::line, 5);
        line.style = style++;
        add(s, line, stat);
    }
    add(s, object(Kind::circle, 6), Stat::on);
    add(s, object(Kind{11}, 5), Stat::out);
    add(s, object(headerKind, 5), Stat::on);
    add(s, layerName(5, "five"), Stat::on);
    add(s, layerName(6, "six"), Stat::out);
}

// What the sample calls its slots, by slot.
const char* const nameOfSlot[] = {"header", "on",    "sel",         "off",  "out",
                                  "circle", "piece", "dead header", "five", "six"};

std::vector<std::string> written(const Session& s, SaveWhat what)
{
    std::vector<std::string> names;
    for (const EntityRecord& r : recordsOf(drawingBytes(s, what))) {
        for (std::int32_t i = 0; i < s.store.end(); ++i) {
            EntityRecord held = s.store.record(i);
            if (i == 0) held = names.empty() ? r : EntityRecord{}; // the header comes first and once
            if (held == r) names.emplace_back(nameOfSlot[i]);
        }
    }
    return names;
}

TEST(DrawingBytes, AnEmptyDrawingIsItsHeader)
{
    Session s;
    EXPECT_EQ(drawingBytes(s, SaveWhat::drawing).size(), 90U + 2U + 8U) << "us, Garamond";
    s.numStyle = "";
    s.textFont = "";
    EXPECT_EQ(drawingBytes(s, SaveWhat::drawing).size(), 90U);
}

TEST(DrawingBytes, TheHeaderHoldsTheAttributes)
{
    Session s;
    s.textSize = 60;
    s.arrowSize = 24;
    s.dimStyle = 3;
    s.textJust = 2;
    s.dimTol = 0.25F;
    s.numComma = 1;
    s.angFormat = 1;
    s.numStyle = "br";
    s.textFont = "Courier New";
    s.workLayer = 2;
    s.curColor = 0x00FF00;
    s.curStyle = 3;
    s.store.p4[0].y = 77; // fields that no attribute uses keep what they held
    s.store.a3[0] = 5;
    EXPECT_EQ(recordsOf(drawingBytes(s, SaveWhat::drawing)), std::vector{header()});
    refreshHeader(s);
    EXPECT_EQ(s.store.record(0), header());
    EXPECT_EQ(s.store.stat[0], Stat::on);
}

TEST(DrawingBytes, ADrawingLeavesOutWhatIsOut)
{
    Session s;
    fillWithEverything(s);
    add(s, object(Kind::line, 7), Stat::none);
    EXPECT_EQ(written(s, SaveWhat::drawing),
              (std::vector<std::string>{"header", "on", "sel", "off", "circle", "dead header", "five"}));
}

TEST(DrawingBytes, ALayerIsWrittenWhateverTheStat)
{
    Session s;
    fillWithEverything(s);
    s.chosenLayer = 5;
    EXPECT_EQ(written(s, SaveWhat::layer),
              (std::vector<std::string>{"header", "on", "sel", "off", "out", "piece", "dead header"}));
    s.chosenLayer = 0; // which the layer names happen to stand on
    EXPECT_EQ(written(s, SaveWhat::layer), (std::vector<std::string>{"header", "five", "six"}));
}

TEST(DrawingBytes, ASelectionTakesAllLayerNamesAlong)
{
    Session s;
    fillWithEverything(s);
    EXPECT_EQ(written(s, SaveWhat::selected), (std::vector<std::string>{"header", "sel", "five", "six"}));
}

TEST(DrawingBytes, MoreObjectsThanSlots)
{
    Session s;
    s.store.entCount = EntityStore::slotCount + 500;
    s.store.setStat(EntityStore::slotCount - 1, Stat::on);
    EXPECT_EQ(recordsOf(drawingBytes(s, SaveWhat::drawing)).size(), 2U);
}

TEST(AfterSave, AWholeDrawingIsSavedAndNothingIsSelected)
{
    Session s;
    fillWithEverything(s);
    s.textSize = 99;
    afterSave(s, SaveWhat::drawing);
    EXPECT_EQ(s.store.stat[1], Stat::on);
    EXPECT_EQ(s.store.stat[2], Stat::on);
    EXPECT_EQ(s.store.stat[3], Stat::off);
    EXPECT_EQ(s.store.stat[4], Stat::out);
    EXPECT_EQ(s.savedCount, 10);
    EXPECT_EQ(s.store.p1[0].x, 99) << "slot 0 is the header as written";
    EXPECT_EQ(s.store.kind[0], headerKind);
}

TEST(AfterSave, ASelectionIsDroppedAndTheDrawingCountsAsUnsaved)
{
    Session s;
    fillWithEverything(s);
    afterSave(s, SaveWhat::selected);
    EXPECT_EQ(s.store.stat[2], Stat::on);
    EXPECT_EQ(s.savedCount, 1);
}

TEST(AfterSave, ALayerChangesNoStat)
{
    Session s;
    fillWithEverything(s);
    afterSave(s, SaveWhat::layer);
    EXPECT_EQ(s.store.stat[2], Stat::sel);
    EXPECT_EQ(s.savedCount, 1);
}

} // namespace
} // namespace mirtane
