// What adds several objects at once is refused as a whole when the table has too little room for them:
// nothing is changed, the last click counts for nothing, and entry says how many are missing.

#include "edits_desk.h"

#include "model/insertion.h"
#include "text/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace mirtane {
namespace {

using fake::EditsDesk;

// Objects of every shape on two layers, and things of the libraries.
struct RoomDesk : EditsDesk {
    RoomDesk()
    {
        press("freecurs"_c); // ortho off
        cancel(1, 1);
    }

    // All selected unless told otherwise, dashed and green on layer 3.
    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel) { return draw(fake::green(r), stat); }
    std::int32_t line(Point a, Point b, Stat stat = Stat::sel) { return add(fake::line(a, b), stat); }
    // p5 is where it was picked.
    std::int32_t picked(Point a, Point b, Point at)
    {
        const std::int32_t slot = line(a, b);
        s.store.p5[EntityStore::at(slot)] = at;
        return slot;
    }
    std::int32_t circle(Point centre, float radius, Stat stat = Stat::sel)
    {
        return add(fake::circle(centre, radius), stat);
    }
    std::int32_t arc(Point centre, float radius, double a1, double a2)
    {
        return add(fake::arc(centre, radius, a1, a2));
    }
    std::int32_t placedText(Point at, Stat stat = Stat::sel) { return add(fake::text(at, "words"), stat); }
    std::int32_t dimension(Point at, Stat stat = Stat::sel)
    {
        const Point end{at.x + 300, at.y};
        const EntityRecord points =
            fake::record(Kind::linearDimension, at, {at.x + 300, at.y + 100}, end, at, at);
        return add(fake::dimension(points, "words", 1, 48), stat);
    }
    void everything()
    {
        line({311, 402}, {933, 1210});
        circle({1200.5F, 900}, 88);
        arc({-700, 555}, 120, 0.4, 2.9);
        placedText({1500, 1555});
        dimension({1700, 1711});
        line({5, 5}, {6, 6}, Stat::out);
        line({15, 5}, {6, 16}, Stat::on);
    }
    void startOn(const char* function)
    {
        s.curFunc = s.baseFunc = s.lastFunc = "Object Select";
        s.controls["Label3"_c].caption = "Edit Functions";
        s.controls["List1"_c].rows = fake::editRows;
        start(function);
    }
    void typed(const char* text)
    {
        type(text);
        enter();
    }
    void library(const char* caption, const char* name)
    {
        s.controls["Label3"_c].caption = caption;
        s.controls["List1"_c].rows = {name};
        pick(0);
    }

    // So many slots are free from now on; what is between is replaced.
    void leaveFree(std::int32_t slots)
    {
        for (std::int32_t slot = s.store.entCount; slot < EntityStore::slotCount - slots; ++slot) {
            s.store.kind[EntityStore::at(slot)] = Kind::point;
            s.store.setStat(slot, Stat::out);
        }
        s.store.entCount = EntityStore::slotCount - slots;
    }
};

void hatch(RoomDesk& d)
{
    HatchRow row;
    row.hatchName = "tile";
    row.hatchTileW = row.hatchTileH = 20;
    row.hatchKind = Kind::point;
    row.h1 = {10, 10};
    d.s.hatchLibrary.add(row);
    d.library("Select Hatch", "tile");
    for (const Point p : {Point{500, 500}, {620, 500}, {620, 580}, {500, 580}}) d.click(p.x, p.y);
}

void associate(RoomDesk& d, bool withWords)
{
    for (const std::int32_t slot : {d.line({0, 0}, {10, 20}, Stat::out), d.circle({5, 5}, 7, Stat::out),
                                    withWords ? d.placedText({1, 2}, Stat::out) : 0}) {
        if (slot == 0) continue;
        d.s.store.kind[EntityStore::at(slot)] = pieceOf(d.s.store.kind[EntityStore::at(slot)]);
        d.s.store.ownerName[EntityStore::at(slot)] = "door";
    }
    d.library("Select Associate", "door");
}

void drawMultipleLines(RoomDesk& d, std::vector<Point> clicks)
{
    for (const float offset : {-20.0F, 0.0F, 33.0F}) {
        MultipleLine row;
        row.m1 = offset;
        row.name = "wall";
        row.colour = 0xFF0000;
        d.s.multipleLinesLibrary.add(row);
    }
    d.library("Select Multiple Lines", "wall");
    for (const Point p : clicks) d.click(p.x, p.y);
}

struct Adding {
    const char* what;
    void (*begin)(RoomDesk&); // up to the last act
    void (*finish)(RoomDesk&);
    std::int32_t adds;
    int undos = 1;
};

const Adding addings[] = {
    {"Move",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Move");
         d.click(100, 100);
     },
     [](RoomDesk& d) { d.click(533, 71); }, 5},
    {"Move by a typed distance",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Move");
         d.click(100, 100);
         d.move(470, 391);
     },
     [](RoomDesk& d) { d.typed("7"); }, 5},
    {"Copy",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Copy");
         d.click(-20, 100);
     },
     [](RoomDesk& d) { d.click(533, 71); }, 5},
    {"a further copy",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Copy");
         d.click(-20, 100);
         d.click(10, 130);
         d.click(900, 900);
     },
     [](RoomDesk& d) { d.click(533, 71); }, 5},
    {"Mirror Copy",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Mirror Copy");
         d.click(100, 100);
     },
     [](RoomDesk& d) { d.click(533, 371); }, 5},
    {"Rotate",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Rotate");
         d.click(100, 100);
     },
     [](RoomDesk& d) { d.typed("33.5"); }, 5},
    {"Scale",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Scale");
         d.click(100, 100);
         d.typed("2");
     },
     [](RoomDesk& d) { d.typed("-1.5"); }, 5},
    {"Radial Copy over a whole turn",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Radial Copy");
         d.click(1000, 1000);
         d.typed("360");
     },
     [](RoomDesk& d) { d.typed("7"); }, 30},
    {"Radial Copy over less, clockwise",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Radial Copy");
         d.click(1000, 1000);
         d.typed("-75");
     },
     [](RoomDesk& d) { d.typed("64"); }, 315},
    {"Concentric Copy",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Concentric Copy");
     },
     [](RoomDesk& d) { d.typed("-2"); }, 2},
    {"Stretch",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Stretch");
         d.click(200, 200);
         d.click(1400, 1300);
         d.click(300, 300);
     },
     [](RoomDesk& d) { d.click(341, 222); }, 5},
    {"Break",
     [](RoomDesk& d) {
         d.everything();
         d.line({0, 0}, {0, 800});
         d.startOn("Break");
         d.click(400, 500);
     },
     [](RoomDesk& d) { d.click(700, 600); }, 5},
    {"Trim",
     [](RoomDesk& d) {
         d.picked({2000, 1000}, {2600, 1000}, {2100, 1000});
         d.picked({2000, 1100}, {2600, 1150}, {2500, 1142});
         d.circle({2200, 1500}, 60);
         d.line({2300, 900}, {2330, 1300}, Stat::on);
         d.startOn("Trim");
     },
     [](RoomDesk& d) { d.click(2310, 1050); }, 2},
    {"Fillet",
     [](RoomDesk& d) {
         d.picked({2000, 1000}, {2600, 1000}, {2100, 1000});
         d.picked({2500, 700}, {2520, 1500}, {2515, 1300});
         d.startOn("Fillet");
     },
     [](RoomDesk& d) { d.click(2300, 1200); }, 3},
    {"Fillet with a typed radius, at a second click",
     [](RoomDesk& d) {
         d.picked({2000, 1000}, {2600, 1000}, {2100, 1000});
         d.picked({2500, 700}, {2520, 1500}, {2515, 1300});
         d.startOn("Fillet");
         d.typed("2");
     },
     [](RoomDesk& d) { d.click(2300, 1200); }, 3},
    {"Change",
     [](RoomDesk& d) {
         d.everything();
         d.startOn("Move"); // as any function that shows the list of edits
         d.cancel(5, 5);
         for (std::int32_t slot = 2; slot < 7; ++slot) d.s.store.setStat(slot, Stat::sel);
         d.pick(fake::changeRow);
         d.press("frmfilter.cu8"_c);
     },
     [](RoomDesk& d) { d.press("frmfilter.Command1"_c); }, 5},
    {"Change Selected Font",
     [](RoomDesk& d) {
         d.everything();
         d.press("tk14"_c);
         d.s.controls["List1"_c].rows = {"Courier", "Fixed"};
         d.shell.giveFocus("List1"_c);
         d.shell.moveToRow("List1"_c, 1);
     },
     [](RoomDesk& d) { d.enter(); }, 2},
    {"Move Dimension Text",
     [](RoomDesk& d) {
         d.dimension({1700, 1711}, Stat::on);
         d.press("dim11"_c);
         d.click(1701, 1712);
         d.move(1800, 1700);
     },
     [](RoomDesk& d) { d.click(1800, 1700); }, 1},
    {"Text Edit",
     [](RoomDesk& d) {
         d.placedText({1500, 1555}, Stat::on);
         d.press("Command16"_c);
         d.click(1501, 1556);
         d.type(" and more");
     },
     [](RoomDesk& d) { d.enter(); }, 1},
    {"Place Associate", [](RoomDesk& d) { associate(d, true); }, [](RoomDesk& d) { d.click(900, 811); }, 3},
    {"Place Associate, reversed",
     [](RoomDesk& d) {
         associate(d, true);
         d.press("ass5"_c);
     },
     [](RoomDesk& d) { d.click(900, 811); }, 2},
    {"a second copy of an associate",
     [](RoomDesk& d) {
         associate(d, false);
         d.click(100, 120);
         d.click(200, 220);
     },
     [](RoomDesk& d) { d.click(900, 811); }, 2},
    {"Place Hatch", hatch, [](RoomDesk& d) { d.click(500, 500); }, 24},
    {"Place Hatch, turned",
     [](RoomDesk& d) {
         d.s.hatchRotation = 0.3;
         d.s.hatchScale = 2;
         hatch(d);
     },
     [](RoomDesk& d) { d.click(500, 500); }, 6},
    {"the first legs of multiple lines",
     [](RoomDesk& d) {
         drawMultipleLines(d, {{400, 400}, {800, 450}});
     },
     [](RoomDesk& d) { d.click(900, 900); }, 3},
    {"further legs of multiple lines",
     [](RoomDesk& d) {
         drawMultipleLines(d, {{400, 400}, {800, 450}, {930, 1000}, {400, 1100}});
     },
     [](RoomDesk& d) { d.click(390, 700); }, 3},
    {"Polygon",
     [](RoomDesk& d) {
         d.s.polygonSides = 9;
         d.press("Command9"_c);
         d.click(500, 500);
     },
     [](RoomDesk& d) { d.click(633, 552); }, 9, 9},
};

std::unique_ptr<RoomDesk> begun(const Adding& adding)
{
    auto desk = std::make_unique<RoomDesk>();
    adding.begin(*desk);
    return desk;
}

// All that must be as before: the drawing, the selection, the log and how far the function is.
struct Shot {
    explicit Shot(const RoomDesk& d)
        : entCount(d.s.store.entCount), stat(d.s.store.stat), log(d.s.log), function(d.s), points(d.s),
          edit(d.s), boundaryCount(d.s.boundaryCount), textLength(d.s.textLength), title(d.title()),
          words(d.text("Text3"_c)), rows(d.s.controls["List1"_c].rows), mode(d.mode()),
          dialog(d.visible("frmfilter"_c))
    {
        for (const std::string& row : d.s.layerTable.rows()) layers += row + "\n";
        for (std::int32_t slot = 0; slot < 30; ++slot) records.push_back(d.slot(slot));
        for (std::int32_t slot = 59500; slot < EntityStore::slotCount; ++slot)
            records.push_back(d.slot(slot));
    }

    std::int32_t entCount;
    std::vector<Stat> stat;
    std::vector<EntityRecord> records; // where there is something, and at the table's end
    UndoLog log;
    FunctionState function;
    ScratchPoints points;
    EditState edit;
    std::int32_t boundaryCount, textLength;
    std::string title, words, layers;
    std::vector<std::string> rows;
    std::string mode;
    bool dialog;
};

void expectSameLog(const UndoLog& a, const UndoLog& b)
{
    EXPECT_TRUE(a.logSlot == b.logSlot && a.logStat == b.logStat && a.logGroup == b.logGroup);
    EXPECT_EQ(a.undoLogCount, b.undoLogCount);
    EXPECT_EQ(a.undoGroupNext, b.undoGroupNext);
    EXPECT_EQ(a.undoGroupTop, b.undoGroupTop);
    EXPECT_EQ(a.redoGroupTop, b.redoGroupTop);
}

void expectSame(const Shot& a, const Shot& b)
{
    EXPECT_EQ(a.entCount, b.entCount);
    EXPECT_TRUE(a.stat == b.stat);
    EXPECT_TRUE(a.records == b.records);
    expectSameLog(a.log, b.log);
    EXPECT_EQ(a.function.curFunc, b.function.curFunc);
    EXPECT_EQ(a.function.baseFunc, b.function.baseFunc);
    EXPECT_EQ(a.function.stepNo, b.function.stepNo);
    EXPECT_EQ(a.function.editPending, b.function.editPending);
    EXPECT_EQ(a.points.pickFirst, b.points.pickFirst);
    EXPECT_EQ(a.points.workAngle, b.points.workAngle);
    EXPECT_EQ(a.edit.editDX, b.edit.editDX);
    EXPECT_EQ(a.edit.editDY, b.edit.editDY);
    EXPECT_EQ(a.edit.editStepX, b.edit.editStepX);
    EXPECT_EQ(a.edit.editStepY, b.edit.editStepY);
    EXPECT_EQ(a.boundaryCount, b.boundaryCount);
    EXPECT_EQ(a.textLength, b.textLength);
    EXPECT_EQ(a.title, b.title);
    EXPECT_EQ(a.words, b.words);
    EXPECT_EQ(a.layers, b.layers);
    EXPECT_EQ(a.rows, b.rows);
    EXPECT_EQ(a.mode, b.mode);
    EXPECT_EQ(a.dialog, b.dialog);
}

// Of what the act adds in a table with room for all of it.
std::vector<EntityRecord> added(const Adding& adding)
{
    const auto desk = begun(adding);
    const std::int32_t first = desk->s.store.entCount;
    adding.finish(*desk);
    std::vector<EntityRecord> all;
    for (std::int32_t slot = first; slot < desk->s.store.entCount; ++slot) all.push_back(desk->slot(slot));
    return all;
}

// Fields that a kind has not are left as the slot has them, and differ.
void expectAdded(const Adding& adding, const RoomDesk& desk)
{
    const std::vector<EntityRecord> wanted = added(adding);
    ASSERT_EQ(std::ssize(wanted), adding.adds);
    EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount);
    const std::int32_t first = EntityStore::slotCount - adding.adds;
    for (std::int32_t i = 0; i < adding.adds; ++i) {
        const EntityRecord is = desk.slot(first + i);
        const EntityRecord& was = wanted[static_cast<std::size_t>(i)]; // not negative
        EXPECT_EQ(desk.stat(first + i), Stat::on) << i;
        EXPECT_TRUE(is.kind == was.kind && is.p1 == was.p1 && is.layer == was.layer && is.color == was.color)
            << i;
    }
}

std::vector<bool> drawn(const EntityStore& store)
{
    std::vector<bool> is;
    for (std::int32_t slot = 1; slot < EntityStore::slotCount; ++slot) is.push_back(store.isShown(slot));
    return is;
}

TEST(NoRoom, WhatFitsExactlyIsCarriedOutWholeAndTakenBackWhole)
{
    for (const Adding& adding : addings) {
        SCOPED_TRACE(adding.what);
        const auto desk = begun(adding);
        desk->leaveFree(adding.adds);
        const std::vector<bool> before = drawn(desk->s.store);
        adding.finish(*desk);
        expectAdded(adding, *desk);
        for (int i = 0; i < adding.undos; ++i) desk->undo();
        EXPECT_TRUE(drawn(desk->s.store) == before);
        for (std::int32_t slot = EntityStore::slotCount - adding.adds; slot < EntityStore::slotCount; ++slot)
            EXPECT_EQ(desk->stat(slot), Stat::out) << slot;
    }
}

std::string said(std::int32_t missing)
{
    const bool isOne = missing == 1;
    return "Not done: room for " + withThousands(missing) + (isOne ? " more object" : " more objects") +
           " is missing";
}

TEST(NoRoom, RefusesWhatDoesNotFitAndChangesNothing)
{
    for (const Adding& adding : addings) {
        for (const std::int32_t free : {adding.adds - 1, adding.adds / 2, 0, -1, -700}) {
            SCOPED_TRACE(std::string(adding.what) + ", free: " + std::to_string(free));
            const auto desk = begun(adding);
            desk->leaveFree(std::max(free, 0));
            if (free < 0) desk->s.store.entCount -= free; // it goes on growing
            const Shot before(*desk);
            adding.finish(*desk);
            EXPECT_EQ(desk->text("entry"_c), said(adding.adds - std::max(free, 0)));
            expectSame(before, Shot(*desk));
        }
    }
}

TEST(NoRoom, LetsOneGoOnWhereItRefused)
{
    for (const Adding& adding : addings) {
        SCOPED_TRACE(adding.what);
        const auto desk = begun(adding);
        desk->leaveFree(adding.adds - 1);
        adding.finish(*desk);
        --desk->s.store.entCount; // room, of the last that was replaced
        adding.finish(*desk);
        expectAdded(adding, *desk);
    }
}

TEST(NoRoom, LetsOneCancelWhatItRefused)
{
    for (const Adding& adding : addings) {
        SCOPED_TRACE(adding.what);
        const auto desk = begun(adding);
        desk->leaveFree(0);
        adding.finish(*desk);
        const std::vector<bool> before = drawn(desk->s.store);
        desk->cancel(1, 1);
        EXPECT_EQ(desk->s.stepNo, 0);
        EXPECT_EQ(desk->s.curFunc, desk->s.baseFunc);
        EXPECT_EQ(desk->text("entry"_c), "");
        EXPECT_TRUE(drawn(desk->s.store) == before);
    }
}

TEST(NoRoom, OfManyObjectsFarFromEnoughIsSaidWithThousands)
{
    RoomDesk desk;
    desk.line({1, 1}, {2, 2});
    while (desk.s.store.entCount < 15002) desk.circle({3, 4}, 5);
    desk.startOn("Move");
    desk.click(100, 100);
    desk.leaveFree(1000);
    const Shot before(desk);
    desk.click(200, 200);
    EXPECT_EQ(desk.text("entry"_c), "Not done: room for 14,000 more objects is missing");
    expectSame(before, Shot(desk));
}

TEST(NoRoom, IsNoMatterOfWhatAddsNothing)
{
    for (const char* what : {"Delete", "Concentric Copy", "Break"}) {
        RoomDesk desk;
        const std::int32_t slot = desk.placedText({700, 700});
        desk.startOn("Move");
        desk.cancel(5, 5);
        desk.s.store.setStat(slot, Stat::sel);
        desk.leaveFree(0);
        if (std::string_view(what) == "Delete") desk.pick(fake::deleteRow);
        desk.start(what);
        if (std::string_view(what) == "Concentric Copy") desk.typed("3");
        if (std::string_view(what) == "Break") {
            desk.click(1, 1);
            desk.click(3, 3);
        }
        EXPECT_EQ(desk.stat(slot), std::string_view(what) == "Delete" ? Stat::out : Stat::on) << what;
        EXPECT_EQ(desk.text("entry"_c).find("Not done"), std::string::npos) << what;
    }
}

} // namespace
} // namespace mirtane
