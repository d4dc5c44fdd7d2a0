// Associates, hatches and multiple lines by their menus: names, lists, and files that are as they should be
// and that are not.

#include "app/menus/library_menus.h"

#include "desk.h"
#include "files/library_files.h"
#include "library/libraries.h"

#include <gtest/gtest.h>

#include <string_view>

namespace mirtane {
namespace {

using fake::Desk;

struct LibraryCase {
    ControlId create, place, save, remove, open;
    std::string_view select;
    const char* extension;
    const char* function;
    const char* createFunction;
};

constexpr LibraryCase associates{"ass7"_c,  "ass3"_c,          "ass9"_c,
                                 "ass21"_c, "ass10"_c,         "Select Associate",
                                 ".mta",    "Place Associate", "Create Associate"};
constexpr LibraryCase hatches{"ht5"_c,        "ht3"_c, "ht7"_c,       "ht11"_c,      "ht8"_c,
                              "Select Hatch", ".mth",  "Place Hatch", "Create Hatch"};
constexpr LibraryCase multipleLines{"ml3"_c, "Command10"_c,    "ml5"_c,
                                    "ml9"_c, "ml6"_c,          "Select Multiple Lines",
                                    ".mtm",  "Multiple Lines", "Create Multiple Lines"};
constexpr LibraryCase libraries[] = {associates, hatches, multipleLines};

// A desk with a level line in slot 1, and without ortho.
struct LibraryDesk : Desk {
    LibraryDesk()
    {
        press("freecurs"_c);
        drawLine(1000, 1010, 1100, 1010);
    }

    void startCreating(const LibraryCase& library, const std::string& name)
    {
        s.store.setStat(1, Stat::sel);
        press(library.create);
        type(name);
        enter();
    }
    void create(const LibraryCase& library, const std::string& name)
    {
        startCreating(library, name);
        click(1000, 1000);
        if (s.curFunc == "Create Hatch") click(1120, 1040);
    }
    void choose(int row) { shell.clickRow("List1"_c, row); }
    void saveFirst(const LibraryCase& library)
    {
        press(library.save);
        choose(0);
        press("frmfile.Command1"_c);
    }
    void openLibrary(const LibraryCase& library, const std::string& file)
    {
        press(library.open);
        name(file);
        enter();
    }
    void removeFirst(const LibraryCase& library)
    {
        press(library.remove);
        choose(0);
    }

    // A boundary ten tiles wide, closed.
    void fillSquare()
    {
        for (const Point p : {Point{2000, 2000}, {3000, 2000}, {3000, 3000}, {2000, 3000}, {2000, 2000}}) {
            click(p.x, p.y);
        }
    }

    const std::vector<std::string>& rows() const { return session->controls["List1"_c].rows; }
    std::string path(const LibraryCase& library, const std::string& base) const
    {
        return std::string(fake::home) + "/" + base + library.extension;
    }
};

using Names = std::vector<std::string>;

TEST(LibraryMenus, CreatingWithNothingSelectedSaysSoAndStartsNothing)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.press(library.create);
        EXPECT_EQ(desk.text("entry"_c), "Nothing Selected!") << library.createFunction;
        EXPECT_EQ(desk.s.curFunc, "Line") << library.createFunction;
    }
}

TEST(LibraryMenus, CreatingPutsTheNameIntoTheListAndLeavesTheSource)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        EXPECT_EQ(desk.caption("Label3"_c), library.select);
        EXPECT_EQ(desk.rows(), Names{"one"}) << library.select;
        EXPECT_EQ(desk.stat(1), Stat::on) << library.select;
        EXPECT_EQ(desk.s.curFunc, "Line") << library.select;
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
    }
}

TEST(LibraryMenus, ATakenNameIsRefusedAndSelectedToBeTypedOver)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.startCreating(library, "one");
        EXPECT_EQ(desk.text("entry"_c), "Name already exists!") << library.select;
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
        EXPECT_EQ(desk.s.curFunc, library.createFunction);
        desk.type("One");
        EXPECT_EQ(desk.text("entry"_c), "One") << library.select;
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 1) << library.select;
    }
}

TEST(LibraryMenus, AnEmptyNameIsNone)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.startCreating(library, "");
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
        EXPECT_EQ(desk.s.curFunc, library.createFunction);
    }
}

TEST(LibraryMenus, ARemovedNameIsFreeAgain)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.removeFirst(library);
        EXPECT_EQ(desk.rows(), Names{}) << library.select;
        desk.create(library, "one");
        EXPECT_EQ(desk.rows(), Names{"one"}) << library.select;
    }
}

TEST(LibraryMenus, NamesWhoseRowsAreApartAreListedTwice)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "A");
        desk.saveFirst(library);
        desk.create(library, "B");
        desk.disk.files[desk.path(library, "C")] = desk.disk.files[desk.path(library, "A")];
        desk.openLibrary(library, "C");
        const char* last = library.select == associates.select ? "C" : "A"; // of the file, or within it
        EXPECT_EQ(desk.rows(), (Names{"A", "B", last})) << library.select;
    }
}

TEST(LibraryMenus, AChosenNameStartsItsFunction)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.press(library.place);
        EXPECT_EQ(desk.caption("Label3"_c), library.select);
        desk.choose(0);
        EXPECT_EQ(desk.s.curFunc, library.function);
        EXPECT_EQ(desk.s.baseFunc, library.function);
        EXPECT_EQ(desk.s.stepNo, library.select == associates.select ? 1 : 0) << library.select;
    }
}

TEST(LibraryMenus, WhatIsSavedAndRemovedComesBackByOpen)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.saveFirst(library);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << library.select;
        ASSERT_TRUE(desk.disk.files.contains(desk.path(library, "one"))) << library.select;
        EXPECT_FALSE(desk.disk.files[desk.path(library, "one")].empty()) << library.select;
        desk.removeFirst(library);
        desk.openLibrary(library, "one");
        EXPECT_FALSE(desk.visible("frmfile"_c)) << library.select;
        EXPECT_EQ(desk.rows(), Names{"one"}) << library.select;
        EXPECT_EQ(desk.caption("Label3"_c), library.select);
    }
}

TEST(LibraryMenus, ANameThatIsThereIsNotOpenedAgain)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.saveFirst(library);
        const std::int32_t slots = desk.s.store.entCount;
        desk.openLibrary(library, "one");
        EXPECT_TRUE(desk.visible("frmfile"_c)) << library.select;
        EXPECT_EQ(desk.s.store.entCount, slots) << library.select;
        EXPECT_LE(desk.s.hatchLibrary.count, 1);
        EXPECT_LE(desk.s.multipleLinesLibrary.count, 1);
    }
}

TEST(LibraryMenus, ASaveThatFailsSaysSoAndTheNameIsSpentAllTheSame)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.disk.refusesWrites = true;
        desk.saveFirst(library);
        EXPECT_EQ(desk.text("entry"_c), "File not saved!") << library.select;
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
        for (const std::string* current :
             {&desk.s.associateName, &desk.s.hatchName, &desk.s.multipleLinesName}) {
            EXPECT_NE(*current, "one") << library.select;
        }
    }
}

// What is cut, empty, of another kind or lying about its lengths adds whole records at the most.
TEST(LibraryMenus, FilesThatAreNotWhatTheySayDoNoHarm)
{
    const Bytes nonsense[] = {{},
                              Bytes(1, std::uint8_t{1}),
                              Bytes(25, std::uint8_t{0xFF}),
                              Bytes(200000, std::uint8_t{0xFF}),
                              Bytes(2000, std::uint8_t{0}),
                              Bytes(69, std::uint8_t{0x7F})};
    for (const LibraryCase& library : libraries) {
        for (const Bytes& bytes : nonsense) {
            LibraryDesk desk;
            desk.disk.files[desk.path(library, "bad")] = bytes;
            desk.openLibrary(library, "bad");
            if (desk.visible("frmfile"_c)) desk.press("frmfile.Command2"_c);
            EXPECT_EQ(desk.stat(1), Stat::on) << library.select << bytes.size();
            EXPECT_EQ(desk.slot(1).p2, (Point{1100, 1010})) << library.select << bytes.size();
            EXPECT_LE(desk.s.store.entCount, 60000) << library.select << bytes.size();
            desk.create(library, "good");
            EXPECT_FALSE(desk.rows().empty()) << library.select << bytes.size();
            desk.shell.redraw();
        }
    }
}

TEST(LibraryMenus, ClosingTheDrawingForgetsAssociatesAndKeepsTheOtherTwo)
{
    LibraryDesk desk;
    for (const LibraryCase& library : libraries) desk.create(library, "one");
    desk.s.savedCount = desk.s.store.entCount;
    desk.press("fil5"_c);
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
    desk.press(associates.place);
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
    desk.press(hatches.place);
    EXPECT_EQ(desk.rows(), Names{"one"});
    desk.press(multipleLines.place);
    EXPECT_EQ(desk.caption("Label3"_c), multipleLines.select);
    EXPECT_EQ(desk.rows(), Names{"one"});
}

TEST(LibraryMenus, RemovedRowsAreNotDrawnThoughTheirNameIsTheOneForNone)
{
    LibraryDesk desk;
    desk.create(hatches, "one");
    desk.press(hatches.place);
    desk.choose(0);
    desk.removeFirst(hatches);
    desk.s.savedCount = desk.s.store.entCount;
    desk.press("fil5"_c); // a Close leaves no name in use
    const std::int32_t slots = desk.s.store.entCount;
    EXPECT_EQ(desk.s.hatchName, "??????");
    desk.fillSquare();
    EXPECT_EQ(desk.s.curFunc, "Place Hatch");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, slots);
}

TEST(LibraryMenus, AMultipleLinesTableThatFillsUpStopsTheCreation)
{
    LibraryDesk desk;
    desk.drawLine(1000, 1020, 1100, 1020);
    desk.s.multipleLinesLibrary.count = 999;
    desk.s.store.setStat(2, Stat::sel);
    desk.create(multipleLines, "one");
    EXPECT_EQ(desk.s.multipleLinesLibrary.count, 1000);
    EXPECT_EQ(desk.s.multipleLinesLibrary.rows[999].name, "one");
    EXPECT_FLOAT_EQ(desk.s.multipleLinesLibrary.rows[999].m1, 10);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.stat(2), Stat::sel);
    EXPECT_EQ(desk.s.curFunc, "Create Multiple Lines");
}

TEST(LibraryMenus, AHatchOfTextAloneHasNoRowsAndNoName)
{
    LibraryDesk desk;
    desk.s.store.kind[1] = Kind::text;
    desk.create(hatches, "words");
    EXPECT_EQ(desk.s.hatchLibrary.count, 0);
    EXPECT_EQ(desk.rows(), Names{});
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(LibraryMenus, ReverseIsOnlyAMark)
{
    LibraryDesk desk;
    desk.press("ass5"_c);
    EXPECT_TRUE(desk.s.controls["ass5"_c].checked);
    EXPECT_EQ(desk.s.curFunc, "Line");
    desk.press("ass5"_c);
    EXPECT_FALSE(desk.s.controls["ass5"_c].checked);
}

// The name is spent by the first try; the file that was there is not.
TEST(LibraryMenus, ASecondSaveAfterOneThatFailedWritesNothing)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        desk.saveFirst(library);
        const Bytes good = desk.disk.files[desk.path(library, "one")];
        desk.disk.refusesWrites = true;
        desk.saveFirst(library);
        desk.disk.refusesWrites = false;
        desk.press("frmfile.Command1"_c);
        EXPECT_TRUE(desk.visible("frmfile"_c)) << library.select;
        EXPECT_EQ(desk.text("entry"_c), "File not saved!") << library.select;
        EXPECT_EQ(desk.disk.files[desk.path(library, "one")], good) << library.select;
    }
}

// The dialog has nothing to save any more, wherever it is tried: it says what helps, and that does.
TEST(LibraryMenus, ASaveThatFailedIsDoneFromTheListAgain)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "two rows");
        desk.disk.refusesWrites = true;
        desk.saveFirst(library);
        const ControlId fault = "frmfile.Label5"_c;
        EXPECT_EQ(desk.caption(fault), "File not saved! Choose it from the list once more.")
            << library.select;
        desk.disk.refusesWrites = false;
        for (const char* name : {"two rows", "elsewhere"}) {
            desk.name(name);
            EXPECT_EQ(desk.caption(fault), "") << library.select;
            desk.enter();
            EXPECT_EQ(desk.caption(fault), "File not saved! Choose it from the list once more.");
        }
        desk.press("frmfile.Command2"_c);
        desk.saveFirst(library);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << library.select;
        EXPECT_TRUE(desk.disk.files.contains(desk.path(library, "two rows"))) << library.select;
    }
}

// It is not spent there.
TEST(LibraryMenus, AHatchThatIsBeingPlacedIsSavedAtTheSecondTry)
{
    LibraryDesk desk;
    desk.create(hatches, "tiles");
    desk.press(hatches.place);
    desk.choose(0);
    desk.disk.refusesWrites = true;
    desk.saveFirst(hatches);
    EXPECT_EQ(desk.caption("frmfile.Label5"_c), "File not saved!");
    desk.disk.refusesWrites = false;
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_TRUE(desk.disk.files.contains(desk.path(hatches, "tiles")));
}

TEST(LibraryMenus, UnderTheDialogTheListOfAnotherUseCannotBeShown)
{
    LibraryDesk desk;
    desk.create(associates, "chair");
    desk.press(associates.save);
    desk.choose(0);
    desk.press(associates.place);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.disk.files[desk.path(associates, "chair")], associateBytes(desk.s.store, "chair"));
    EXPECT_NE(desk.text("entry"_c), "File not saved!");
}

// Six letters that the file can't hold would be read back as the mark of a removed row. Only the name of a
// file may have them.
TEST(LibraryMenus, ANameThatWouldReadAsRemovedIsNotSaved)
{
    const std::string name = "\u0441\u0442\u0435\u043d\u043a\u0430";
    LibraryDesk desk;
    desk.create(associates, "wall");
    desk.saveFirst(associates);
    desk.disk.files = {{desk.path(associates, name), desk.disk.files[desk.path(associates, "wall")]}};
    desk.removeFirst(associates);
    desk.openLibrary(associates, name);
    ASSERT_EQ(desk.rows(), Names{name});
    desk.saveFirst(associates);
    EXPECT_EQ(desk.text("entry"_c), "File not saved!");
    EXPECT_EQ(desk.disk.files.size(), 1U);
}

TEST(LibraryMenus, AClickBeforeTheNameCountsForNothing)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.create(library, "one");
        const std::int32_t pieces = desk.s.store.entCount;
        desk.s.store.setStat(1, Stat::sel);
        desk.press(library.create);
        desk.click(1000, 1000);
        desk.click(1200, 1100);
        desk.click(1300, 1150);
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
        EXPECT_EQ(desk.s.store.entCount, pieces) << library.select;
        EXPECT_LE(desk.s.hatchLibrary.count, 1);
        EXPECT_LE(desk.s.multipleLinesLibrary.count, 1);
        desk.type("two");
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 1) << library.select;
    }
}

TEST(LibraryMenus, AReleasedConstructionLineBeforeTheNameCountsForNothingEither)
{
    for (const LibraryCase& library : libraries) {
        for (const float legs : {0.0F, 1.0F, 2.0F}) {
            for (const int releases : {1, 3}) {
                LibraryDesk desk;
                desk.create(library, "one");
                const std::int32_t pieces = desk.s.store.entCount;
                const std::int32_t rows = desk.s.hatchLibrary.count + desk.s.multipleLinesLibrary.count;
                desk.s.store.setStat(1, Stat::sel);
                desk.press(library.create);
                const Point before = desk.s.pickFirst;
                for (int i = 0; i < releases; ++i) {
                    desk.press("blank"_c);
                    for (float leg = 0; leg < legs; ++leg) desk.click(700 + 100 * leg, 900);
                    desk.press("blank"_c);
                }
                const std::string what = std::string(library.createFunction) + " " + std::to_string(legs);
                EXPECT_EQ(desk.s.stepNo, 0) << what;
                EXPECT_EQ(desk.s.curFunc, library.createFunction) << what;
                EXPECT_EQ(desk.s.pickFirst, before) << what;
                EXPECT_EQ(desk.caption("blank"_c), "Blank/Off") << what;
                EXPECT_EQ(desk.focused(), "pic1") << what;
                EXPECT_EQ(desk.s.store.entCount, pieces) << what;
                EXPECT_EQ(desk.s.hatchLibrary.count + desk.s.multipleLinesLibrary.count, rows) << what;
                EXPECT_EQ(desk.stat(1), Stat::sel) << what;
                desk.type("two");
                desk.enter();
                EXPECT_EQ(desk.s.stepNo, 1) << what;
                desk.click(1000, 1000);
                if (desk.s.curFunc == "Create Hatch") desk.click(1120, 1040);
                EXPECT_EQ(desk.s.curFunc, "Line") << what;
                EXPECT_EQ(desk.rows(), (Names{"one", "two"})) << what;
            }
        }
    }
}

TEST(LibraryMenus, OnceNamedAReleasedConstructionLineIsTheReferencePoint)
{
    LibraryDesk desk;
    desk.startCreating(multipleLines, "wall");
    desk.press("blank"_c);
    desk.click(1000, 1003);
    desk.press("blank"_c);
    ASSERT_EQ(desk.s.multipleLinesLibrary.count, 1);
    EXPECT_FLOAT_EQ(desk.s.multipleLinesLibrary.rows[0].m1, 7);
}

TEST(LibraryMenus, AHatchSavedWhileOneIsPlacedStaysTheCurrentOne)
{
    for (const bool fails : {false, true}) {
        for (const int row : {0, 1}) {
            LibraryDesk desk;
            desk.create(hatches, "one");
            desk.create(hatches, "two");
            desk.press(hatches.place);
            desk.choose(1);
            desk.click(2000, 2000);
            desk.disk.refusesWrites = fails;
            desk.press(hatches.save);
            desk.choose(row);
            desk.press("frmfile.Command1"_c);
            if (fails) desk.press("frmfile.Command2"_c);
            EXPECT_EQ(desk.s.hatchName, "two") << fails << row;
            const std::int32_t slots = desk.s.store.entCount;
            desk.fillSquare();
            EXPECT_EQ(desk.s.curFunc, "Place Hatch") << fails;
            EXPECT_GT(desk.s.store.entCount, slots + 50) << fails;
        }
    }
}

// Whatever is done beside the dialog, the file holds the hatch whose name it has.
TEST(LibraryMenus, TheHatchThatWasChosenIsTheOneThatIsSaved)
{
    using Beside = void (*)(LibraryDesk&);
    constexpr Beside besides[] = {
        [](LibraryDesk&) {},
        [](LibraryDesk& desk) { desk.press("Command1"_c); },
        [](LibraryDesk& desk) { desk.press("Command20"_c); },
        [](LibraryDesk& desk) { desk.cancel(); },
    };
    for (const bool places : {false, true}) {
        for (const Beside beside : besides) {
            LibraryDesk desk;
            desk.create(hatches, "one");
            desk.create(hatches, "two");
            if (places) {
                desk.press(hatches.place);
                desk.choose(0);
            }
            const Bytes two = hatchBytes(desk.s.hatchLibrary, "two");
            ASSERT_NE(two, hatchBytes(desk.s.hatchLibrary, "one"));
            desk.press(hatches.save);
            desk.choose(1);
            beside(desk);
            desk.press("frmfile.Command1"_c);
            EXPECT_EQ(desk.disk.files[desk.path(hatches, "two")], two) << places;
        }
    }
}

TEST(LibraryMenus, AHatchSavedBetweenTwoBoundariesOrDuringAMeasureStaysTheCurrentOne)
{
    for (const bool measures : {false, true}) {
        LibraryDesk desk;
        desk.create(hatches, "one");
        desk.press(hatches.place);
        desk.choose(0);
        desk.fillSquare();
        if (measures) desk.press("ut3"_c);
        desk.saveFirst(hatches);
        desk.cancel(); // the next boundary begins where the last one ended
        const std::int32_t slots = desk.s.store.entCount;
        desk.fillSquare();
        EXPECT_GT(desk.s.store.entCount, slots + 50) << measures;
    }
}

// The desk's drawing full up to a number of free slots.
void fillTable(LibraryDesk& desk, std::int32_t freeSlots)
{
    desk.s.store.entCount = EntityStore::slotCount - freeSlots;
}

TEST(LibraryMenus, WhatTheTableHasNoRoomForIsSaidAfterTheWarningThatItIsFull)
{
    LibraryDesk desk;
    desk.drawLine(1000, 1020, 1100, 1020);
    desk.s.store.setStat(2, Stat::sel);
    desk.create(multipleLines, "wall");
    desk.s.store.setStat(2, Stat::sel);
    desk.create(associates, "pair");
    desk.create(hatches, "lines");
    fillTable(desk, 1);

    desk.press(associates.place);
    desk.choose(0);
    desk.click(2000, 2000);
    EXPECT_EQ(desk.text("entry"_c), "Not done: room for 1 more object is missing");
    EXPECT_EQ(desk.text("memy"_c), "100.000");

    desk.press(multipleLines.place);
    desk.choose(0);
    for (const Point p : {Point{2100, 2000}, {2500, 2000}, {2500, 2600}}) desk.click(p.x, p.y);
    EXPECT_EQ(desk.text("entry"_c), "Not done: room for 1 more object is missing");
    desk.cancel();

    desk.press(hatches.place);
    desk.choose(0);
    desk.fillSquare();
    EXPECT_TRUE(desk.text("entry"_c).starts_with("Not done: room for ")) << desk.text("entry"_c);
    EXPECT_TRUE(desk.text("entry"_c).ends_with(" more objects is missing"));
    desk.click(1, 1);
    EXPECT_EQ(desk.text("entry"_c), "You are out of memory! Save and exit now.") << "of the next click";
}

TEST(LibraryMenus, AFileThatTheTableCouldNotTakeWholeSaysSo)
{
    struct Row {
        const LibraryCase& library;
        std::int32_t taken; // rows or slots, before three pieces are opened
        const char* said;
    };
    const Row rows[] = {
        {hatches, 998, "The table is full: 1 piece is missing"},
        {hatches, 2000, "The table is full: 3 pieces are missing"},
        {hatches, 997, ""},
        {multipleLines, 999, "The table is full: 2 pieces are missing"},
        {multipleLines, 997, ""},
        {associates, 59999, "Not done: room for 1 more object is missing"},
        {associates, 60000, "Not done: room for 2 more objects is missing"},
        {associates, 60001, "Not done: room for 3 more objects is missing"},
        {associates, 1, ""},
    };
    for (const Row& row : rows) {
        LibraryDesk desk;
        for (int i = 0; i < 2; ++i) desk.drawLine(1000, 1020, 1100, 1020);
        for (const std::int32_t slot : {2, 3}) desk.s.store.setStat(slot, Stat::sel);
        desk.create(row.library, "three");
        desk.saveFirst(row.library);
        desk.removeFirst(row.library);
        desk.s.hatchLibrary.count = desk.s.multipleLinesLibrary.count = desk.s.store.entCount = 1;
        (&row.library == &hatches         ? desk.s.hatchLibrary.count
         : &row.library == &multipleLines ? desk.s.multipleLinesLibrary.count
                                          : desk.s.store.entCount) = row.taken;
        setText(desk.s.controls["entry"_c], "");
        desk.openLibrary(row.library, "three");
        EXPECT_FALSE(desk.visible("frmfile"_c)) << row.library.select << " " << row.taken;
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.library.select << " " << row.taken;
    }
}

TEST(LibraryMenus, AnAssociateThatTheTableCannotTakeWholeLeavesAllAsItWas)
{
    LibraryDesk desk;
    for (int i = 0; i < 4; ++i) desk.drawLine(1000, 1020, 1100, 1030);
    for (const std::int32_t slot : {2, 3, 4}) desk.s.store.setStat(slot, Stat::sel);
    desk.create(associates, "four");
    desk.saveFirst(associates);
    desk.removeFirst(associates);
    for (const std::int32_t free : {3, 1, 0}) {
        desk.s.store.entCount = EntityStore::slotCount - free;
        desk.press("Command2"_c);
        desk.click(2000, 2000);
        desk.openLibrary(associates, "four");
        EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount - free) << free;
        EXPECT_FALSE(hasName(desk.s, Library::associates, "four")) << free;
        EXPECT_EQ(desk.s.curFunc, "2pt. Circle") << free;
        EXPECT_EQ(desk.s.stepNo, 1) << free;
    }
    desk.s.store.entCount = EntityStore::slotCount - 4;
    desk.openLibrary(associates, "four");
    EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount);
    EXPECT_EQ(desk.s.curFunc, "Place Associate");
}

TEST(LibraryMenus, TheNameOfWhatWasRemovedIsTakenInEachLibrary)
{
    for (const LibraryCase& library : libraries) {
        LibraryDesk desk;
        desk.startCreating(library, "??????");
        EXPECT_EQ(desk.text("entry"_c), "Name already exists!") << library.select;
        EXPECT_EQ(desk.s.stepNo, 0) << library.select;
        desk.create(library, "?????");
        EXPECT_EQ(desk.rows(), Names{"?????"}) << library.select;
    }
}

TEST(LibraryMenus, ADrawingOpenedAsAnAssociateIsNone)
{
    LibraryDesk desk;
    desk.saveAs("plan");
    desk.disk.files[desk.path(associates, "plan")] = desk.disk.files["/home/user/plan.mtd"];
    desk.openLibrary(associates, "plan");
    desk.press("ly3"_c);
    desk.press(associates.place);
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
}

// -- opening an associate in the middle of something else --

struct OpenInTheMiddle : testing::Test {
    OpenInTheMiddle()
    {
        desk.create(associates, "door");
        desk.saveFirst(associates);
        desk.removeFirst(associates);
    }

    LibraryDesk desk;
};

TEST_F(OpenInTheMiddle, OfAMoveShowsTheSelectionAgain)
{
    desk.press("Command17"_c);
    desk.cancel();
    desk.press("frmedit.Command8"_c);
    desk.click(1000, 1010);
    desk.move(1500, 1500);
    desk.ops();
    desk.openLibrary(associates, "door");
    EXPECT_EQ(desk.s.curFunc, "Place Associate");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workAngle, 0);
    EXPECT_FALSE(fake::only(desk.ops(), "line").empty());
}

TEST_F(OpenInTheMiddle, OfABoundaryDropsIt)
{
    desk.create(hatches, "rows");
    desk.press(hatches.place);
    desk.choose(0);
    desk.click(100, 100);
    desk.click(200, 100);
    desk.click(200, 200);
    desk.openLibrary(associates, "door");
    EXPECT_EQ(desk.s.boundaryCount, 0);
}

// -- definitions and the objects about them --

TEST(Associate, MadeOfPlacedObjectsHoldsPlainOnes)
{
    LibraryDesk desk;
    desk.create(associates, "door");
    desk.press(associates.place);
    desk.choose(0);
    desk.click(2000, 2000);
    const std::int32_t placed = desk.s.store.entCount - 1;
    ASSERT_EQ(desk.slot(placed).kind, Kind::line);
    for (std::int32_t i = 1; i < placed; ++i) {
        if (desk.stat(i) == Stat::sel) desk.s.store.setStat(i, Stat::on);
    }
    desk.s.store.setStat(placed, Stat::sel);
    desk.press(associates.create);
    desk.type("gate");
    desk.enter();
    desk.click(2000, 2000);
    const std::int32_t piece = desk.s.store.entCount - 1;
    EXPECT_EQ(desk.slot(piece).kind, pieceOf(Kind::line));
    EXPECT_EQ(desk.s.store.ownerName[EntityStore::at(piece)], "gate");
    EXPECT_EQ(desk.slot(piece).p1, (Point{0, 10}));
}

TEST(Associate, OutlivesTheObjectsItWasMadeOf)
{
    LibraryDesk desk;
    desk.create(associates, "door");
    desk.s.store.setStat(1, Stat::sel);
    desk.press("Command17"_c);
    desk.cancel();
    desk.press("frmedit.Command14"_c);
    ASSERT_EQ(desk.stat(1), Stat::out);
    desk.press(associates.place);
    desk.choose(0);
    desk.click(2000, 2000);
    EXPECT_EQ(desk.slot(desk.s.store.entCount - 1).p1, (Point{2000, 2010}));
}

TEST(Associate, IsNotInADrawingThatIsOpenedWhatWasPlacedIs)
{
    LibraryDesk desk;
    desk.create(associates, "door");
    desk.press(associates.place);
    desk.choose(0);
    desk.click(2000, 2000);
    desk.saveAs("plan");
    desk.press("fil5"_c);
    desk.open("plan");
    ASSERT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).p1, (Point{2000, 2010}));
    desk.press("ly3"_c);
    desk.press(associates.place);
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
}

} // namespace
} // namespace mirtane
