// What every edit does round its rule: groups, undo, layers, the gauge, the end of the run, the bound.

#include "edit_desk.h"

#include "edit/change.h"
#include "edit/concentric.h"
#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/rotate.h"
#include "edit/scale.h"

#include <limits>

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::sample;

struct Edit {
    const char* name;
    void (*run)(EditDesk&);
    Stat sources;
    std::int32_t copies; // of each selected object that it takes
    bool roundOnly = false;
};

const Edit edits[] = {
    {"Move",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.click(31, 42);
     },
     Stat::out, 1},
    {"Copy",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.click(31, 42);
     },
     Stat::sel, 1},
    {"Mirror Copy",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.click(31, 42);
     },
     Stat::on, 1},
    {"Rotate",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.typeIn("33");
     },
     Stat::out, 1},
    {"Radial Copy",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.typeIn("90");
         desk.typeIn("4");
     },
     Stat::on, 3},
    {"Scale",
     [](EditDesk& desk) {
         desk.click(1, 2);
         desk.typeIn("3");
         desk.typeIn("-2");
     },
     Stat::out, 1},
    {"Concentric Copy",
     [](EditDesk& desk) {
         desk.typeIn("1"); // inch
     },
     Stat::on, 1, true},
    {"Change",
     [](EditDesk& desk) {
         changeSelection(desk.s, desk.pic1, {std::int16_t{5}, std::nullopt, std::nullopt});
     },
     Stat::out, 1},
};

void run(EditDesk& desk, const Edit& edit)
{
    desk.begin(edit.name);
    edit.run(desk);
}

void addOneOfEachKind(EditDesk& desk)
{
    for (const Kind kind : everyKind) desk.add(sample(kind));
}

TEST(EditRun, IsOneGroupThatUndoTakesBackAndRedoBringsAgain)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        addOneOfEachKind(desk);
        const std::vector<EntityRecord> before = desk.shown();
        const std::int32_t group = desk.s.log.undoGroupNext;
        run(desk, edit);
        const std::vector<EntityRecord> after = desk.shown();
        EXPECT_EQ(desk.s.log.undoGroupNext, group + 1) << edit.name;
        EXPECT_EQ(desk.s.log.undoGroupTop, group + 1) << edit.name;
        EXPECT_EQ(desk.s.store.entCount, 11 + (edit.roundOnly ? 2 : 10) * edit.copies) << edit.name;
        undo(desk.s.store, desk.s.log);
        EXPECT_EQ(desk.shown(), before) << edit.name;
        redo(desk.s.store, desk.s.log);
        EXPECT_EQ(desk.shown(), after) << edit.name;
    }
}

TEST(EditRun, LeavesTheSourcesAsTheFunctionSays)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        addOneOfEachKind(desk);
        run(desk, edit);
        for (std::int32_t slot = 1; slot <= 10; ++slot) EXPECT_EQ(desk.stat(slot), edit.sources) << edit.name;
        for (std::int32_t slot = 11; slot < desk.s.store.entCount; ++slot)
            EXPECT_EQ(desk.stat(slot), Stat::on) << edit.name;
    }
}

TEST(EditRun, EndsInTheFunctionThatItWasChosenIn)
{
    for (const Edit& edit : edits) {
        if (std::string_view(edit.name) == "Copy") continue; // ends by a right click alone
        EditDesk desk;
        addOneOfEachKind(desk);
        desk.begin(edit.name);
        desk.ops();
        edit.run(desk);
        EXPECT_EQ(desk.s.curFunc, "Object Select") << edit.name;
        EXPECT_EQ(desk.s.stepNo, 0) << edit.name;
        EXPECT_EQ(desk.s.editPending, 0) << edit.name;
        EXPECT_EQ(desk.s.workAngle, 0) << edit.name;
        EXPECT_EQ(desk.s.promptText, "(Click near object:)") << edit.name;
        const fake::Ops ops = desk.ops();
        EXPECT_EQ(ops.back(), "refresh") << edit.name;
        EXPECT_FALSE(fake::only(ops, "snapshot").empty()) << edit.name;
    }
}

TEST(EditRun, TouchesNothingButWhatIsSelected)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        const std::int32_t on = desk.add(sample(Kind::line), Stat::on);
        const std::int32_t off = desk.add(sample(Kind::circle), Stat::off);
        const std::int32_t out = desk.add(sample(Kind::arc), Stat::out);
        run(desk, edit);
        EXPECT_EQ(desk.s.store.entCount, 4) << edit.name;
        EXPECT_EQ(desk.stat(on), Stat::on) << edit.name;
        EXPECT_EQ(desk.stat(off), Stat::off) << edit.name;
        EXPECT_EQ(desk.stat(out), Stat::out) << edit.name;
    }
}

TEST(EditRun, PassesOverKindsThatAreNoObjects)
{
    constexpr std::int16_t noObjects[] = {-7, 0, 11, 15, 20, 24, 25, 30, 35, 32767};
    for (const Edit& edit : edits) {
        for (const std::int16_t kind : noObjects) {
            EditDesk desk;
            EntityRecord r = sample(Kind::line);
            r.kind = Kind{kind};
            desk.add(r);
            run(desk, edit);
            EXPECT_EQ(desk.s.store.entCount, 2) << edit.name << kind;
            EXPECT_EQ(desk.stat(1), Stat::sel) << edit.name << kind;
            EXPECT_EQ(desk.slot(1), r) << edit.name << kind;
        }
    }
}

TEST(EditRun, OfNothingUsesAGroupNumberAndLeavesTheDrawing)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        desk.add(sample(Kind::line), Stat::on);
        const std::int32_t group = desk.s.log.undoGroupNext;
        const std::int32_t records = desk.s.log.undoLogCount;
        run(desk, edit);
        EXPECT_EQ(desk.s.log.undoGroupNext, group + 1) << edit.name;
        EXPECT_EQ(desk.s.log.undoGroupTop, group + 1) << edit.name;
        EXPECT_EQ(desk.s.log.undoLogCount, records) << edit.name;
        EXPECT_EQ(desk.s.store.entCount, 2) << edit.name;
    }
}

TEST(EditRun, MarksTheLayersOfTheNewObjectsUsed)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        desk.add(sample(Kind::circle));
        resetLayers(desk.s.layerTable);
        run(desk, edit);
        const std::size_t layer = std::string_view(edit.name) == "Change" ? 5 : 3;
        EXPECT_EQ(desk.s.layerTable.layers[layer].layerUsed, "Yes:") << edit.name;
    }
}

TEST(EditRun, LeavesFieldsThatAKindLacksAsTheSlotHeldThem)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.s.store.setRecord(2, sample(Kind::angularDimension)); // of a drawing closed before
    changeSelection(desk.s, desk.pic1, {});
    EXPECT_EQ(desk.slot(2).kind, Kind::line);
    EXPECT_EQ(desk.slot(2).p2, sample(Kind::line).p2);
    EXPECT_EQ(desk.slot(2).style, sample(Kind::line).style);
    EXPECT_EQ(desk.slot(2).p3, sample(Kind::angularDimension).p3);
    EXPECT_EQ(desk.slot(2).rad, sample(Kind::angularDimension).rad);
    EXPECT_EQ(desk.slot(2).t1, sample(Kind::angularDimension).t1);
}

TEST(EditRun, ShowsTheGaugeOnceWithAllNewObjects)
{
    EditDesk desk;
    for (int i = 0; i < 299; ++i) desk.add(sample(Kind::line));
    run(desk, edits[0]);
    EXPECT_EQ(desk.s.store.entCount, 599);
    EXPECT_EQ(desk.s.controls["memy"_c].text, "000.998");
}

TEST(EditRun, NearTheBoundIsRefusedWholeWhereItDoesNotFit)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        desk.s.store.entCount = 55000;
        for (std::int32_t slot = 1; slot < 55000; ++slot) {
            desk.s.store.setRecord(slot, sample(Kind::circle));
            desk.s.store.setStat(slot, slot > 45000 ? Stat::sel : Stat::on);
        }
        run(desk, edit);
        EXPECT_EQ(desk.s.store.entCount, 55000) << edit.name;
        EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 9999) << edit.name;
        EXPECT_EQ(countWithStat(desk.s.store, Stat::on), 45000) << edit.name;
        EXPECT_EQ(desk.s.log.undoLogCount, 0) << edit.name;
        EXPECT_EQ(desk.s.controls["entry"_c].text,
                  noRoomText(9999 * static_cast<std::int64_t>(edit.copies) - 5001)) // widened
            << edit.name;
    }
}

TEST(EditRun, InAFullTableLosesNothingThatWasThere)
{
    for (const Edit& edit : edits) {
        EditDesk desk;
        desk.s.store.entCount = 60001;
        for (std::int32_t slot = 1; slot <= 60000; ++slot) {
            desk.s.store.setRecord(slot, sample(Kind::circle));
            desk.s.store.setStat(slot, slot == 60000 ? Stat::sel : Stat::on);
        }
        run(desk, edit);
        EXPECT_EQ(desk.s.store.entCount, 60001) << edit.name;
        EXPECT_EQ(desk.stat(60000), Stat::sel) << edit.name;
        EXPECT_EQ(desk.slot(60000), sample(Kind::circle)) << edit.name;
    }
}

TEST(EditRun, TakesRecordsOfOddNumbersWithoutHarm)
{
    const float odd[] = {std::numeric_limits<float>::quiet_NaN(),
                         std::numeric_limits<float>::infinity(),
                         -std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::max(),
                         std::numeric_limits<float>::lowest(),
                         std::numeric_limits<float>::denorm_min(),
                         0};
    for (const Edit& edit : edits) {
        EditDesk desk;
        for (const float number : odd) {
            for (const Kind kind : everyKind) {
                EntityRecord r = sample(kind);
                r.p1.x = r.p2.y = r.p3.x = r.p4.y = r.p5.x = r.rad = r.s2 = number;
                r.a1 = r.a2 = r.a3 = number;
                desk.add(r);
            }
        }
        run(desk, edit);
        EXPECT_EQ(desk.s.store.entCount, 71 + (edit.roundOnly ? 14 : 70) * edit.copies) << edit.name;
    }
}

TEST(Delete, TakesTheSelectionOutInItsSlotsAsOneAction)
{
    EditDesk desk;
    addOneOfEachKind(desk);
    const std::vector<EntityRecord> before = desk.shown();
    desk.s.savedCount = 11;
    desk.s.stepNo = 2;
    desk.s.editPending = 1;
    desk.s.controls.focus = "List1"_c;
    const std::int32_t group = desk.s.log.undoGroupNext;
    deleteSelection(desk.s, desk.pic1);
    EXPECT_TRUE(desk.shown().empty());
    EXPECT_EQ(desk.s.store.entCount, 11);
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    EXPECT_EQ(desk.s.savedCount, 10); // once, however many went
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.s.controls.focus, "pic1"_c);
    EXPECT_EQ(desk.ops().back(), "refresh");
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.shown(), before);
}

TEST(Delete, OfNothingSaysSoAndWritesNoRecord)
{
    EditDesk desk;
    desk.add(sample(Kind::line), Stat::on);
    desk.s.stepNo = 2;
    const std::int32_t group = desk.s.log.undoGroupNext;
    deleteSelection(desk.s, desk.pic1);
    EXPECT_EQ(desk.s.controls["entry"_c].text, "Nothing selected!");
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.s.stepNo, 2);
}

TEST(Deselect, BringsTheSelectionBackToOnWithoutAnAction)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.add(sample(Kind::circle), Stat::off);
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.s.controls.focus = "List1"_c;
    deselect(desk.s, desk.pic1);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::off);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
    EXPECT_EQ(desk.s.controls.focus, "pic1"_c);
    EXPECT_EQ(desk.ops().back(), "refresh");
}

TEST(Change, OntoAHiddenLayerIsShownUntilTheLayerIsNextSwitched)
{
    EditDesk desk;
    desk.s.layerTable.layers[5].layerShown = layer::hidden;
    desk.add(sample(Kind::line));
    changeSelection(desk.s, desk.pic1, {std::int16_t{5}, std::nullopt, std::nullopt});
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.slot(2).layer, 5);
}

TEST(Change, OntoALayerOutsideTheTableIsTakenWithoutHarm)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    changeSelection(desk.s, desk.pic1, {std::int16_t{32767}, std::nullopt, std::nullopt});
    EXPECT_EQ(desk.slot(2).layer, 32767);
}

} // namespace
} // namespace mirtane
