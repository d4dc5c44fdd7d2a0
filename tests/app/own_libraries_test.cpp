// Associates, hatches and multiple lines that are in no file are told of, and never lost unseen.

#include "layer_desk.h"

#include "files/kept_work.h"
#include "library/libraries.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace mirtane {
namespace {

using fake::Desk;
using fake::LayerDesk;

struct OwnShelf {
    Library library;
    ControlId create, save, remove;
};

constexpr OwnShelf ofSymbols{Library::associates, "ass7"_c, "ass9"_c, "ass21"_c};
constexpr OwnShelf ofHatches{Library::hatches, "ht5"_c, "ht7"_c, "ht11"_c};
constexpr OwnShelf ofLines{Library::multipleLines, "ml3"_c, "ml5"_c, "ml9"_c};
constexpr OwnShelf ownShelves[] = {ofSymbols, ofHatches, ofLines};

// Of the first object, a slanted line.
void makeOf(LayerDesk& desk, const OwnShelf& row, const std::string& name)
{
    desk.s.store.setStat(1, Stat::sel);
    desk.press(row.create);
    desk.type(name);
    desk.enter();
    desk.click(90, 91);
    if (row.library == Library::hatches) desk.click(800, 811);
    ASSERT_TRUE(hasName(desk.s, row.library, name)) << name;
}

void saveHouseAgain(LayerDesk& desk)
{
    desk.saveAs("house");
    ASSERT_TRUE(desk.disk.files.contains(fake::houseFile));
}

struct MadeHere {
    const OwnShelf* library;
    const char* name;
};

struct ToldRow {
    std::vector<MadeHere> made;
    const char* atExit;
    const char* atClose; // which leaves hatches and lines where they are
};

const ToldRow toldRows[] = {
    {{{&ofSymbols, "door"}},
     " 1 associate is in no file: save it from its menu.",
     " 1 associate is in no file: save it from its menu."},
    {{{&ofHatches, "brick"}}, " 1 hatch is in no file: save it from its menu.", ""},
    {{{&ofLines, "wall30"}}, " 1 set of multiple lines is in no file: save it from its menu.", ""},
    {{{&ofSymbols, "door"}, {&ofHatches, "brick"}, {&ofHatches, "tiles"}},
     " 1 associate and 2 hatches are in no file: save them from their menus.",
     " 1 associate is in no file: save it from its menu."},
    {{{&ofSymbols, "door"}, {&ofSymbols, "gate"}, {&ofHatches, "brick"}, {&ofLines, "a"}, {&ofLines, "b"}},
     " 2 associates, 1 hatch and 2 sets of multiple lines are in no file: save them from their menus.",
     " 2 associates are in no file: save them from their menus."},
};

TEST(OwnLibraries, InNoFileAreToldOfWhereTheyGo)
{
    for (const ToldRow& row : toldRows) {
        LayerDesk desk;
        desk.drawLine(100, 103, 400, 333);
        for (const MadeHere& made : row.made) makeOf(desk, *made.library, made.name);
        saveHouseAgain(desk);
        desk.drawLine(7, 8, 999, 1001);
        desk.press("fil14"_c);
        EXPECT_EQ(desk.caption("frmfile.Label4"_c),
                  "house.mtd: 1 change since 14:32. \"End\" gives it up." + std::string(row.atExit));
        desk.shell.closeForm("frmfile"_c);
        desk.press("fil5"_c);
        EXPECT_EQ(desk.caption("frmfile.Label4"_c),
                  "house.mtd: 1 change since 14:32. \"Close\" gives it up." + std::string(row.atClose));
        desk.shell.closeForm("frmfile"_c);
        saveHouseAgain(desk);
        for (const ControlId open : {"fil4"_c, "dd2"_c}) {
            desk.press(open);
            const std::string said = desk.caption("frmfile.Label4"_c);
            EXPECT_EQ(said.empty() ? said : " " + said, row.atClose);
            desk.shell.closeForm("frmfile"_c);
        }
        desk.menuRow("ly13"_c, 3);
        const std::string said = desk.caption("frmfile.Label4"_c);
        EXPECT_EQ(said.empty() ? said : " " + said, row.atClose);
    }
}

const std::string changeAlone = "house.mtd: 1 change since 14:32. \"End\" gives it up.";

std::string saidAtExit(LayerDesk& desk)
{
    saveHouseAgain(desk);
    desk.drawLine(7, 8, 999, 1001);
    desk.press("fil14"_c);
    return desk.caption("frmfile.Label4"_c);
}

TEST(OwnLibraries, ThatAreSavedOrRemovedOrFromAFileAreNotToldOf)
{
    for (const OwnShelf& row : ownShelves) {
        LayerDesk saved;
        saved.drawLine(100, 103, 400, 333);
        makeOf(saved, row, "own");
        saved.menuRow(row.save, 0);
        saved.enter();
        ASSERT_FALSE(saved.visible("frmfile"_c));
        EXPECT_EQ(saidAtExit(saved), changeAlone);

        LayerDesk removed;
        removed.drawLine(100, 103, 400, 333);
        makeOf(removed, row, "own");
        removed.menuRow(row.remove, 0);
        EXPECT_EQ(saidAtExit(removed), changeAlone);

        LayerDesk failed;
        failed.drawLine(100, 103, 400, 333);
        makeOf(failed, row, "own");
        failed.menuRow(row.save, 0);
        failed.disk.refusesWrites = true;
        failed.enter();
        failed.disk.refusesWrites = false;
        failed.shell.closeForm("frmfile"_c);
        EXPECT_NE(saidAtExit(failed), changeAlone);

        LayerDesk begun;
        begun.drawLine(100, 103, 400, 333);
        begun.s.store.setStat(1, Stat::sel);
        begun.press(row.create);
        begun.type("own");
        begun.enter();
        begun.cancel();
        EXPECT_EQ(saidAtExit(begun), changeAlone);
    }
}

// They come back with the work that was kept, as new as they were.
TEST(OwnLibraries, AreBroughtBackWithTheWork)
{
    LayerDesk desk;
    desk.drawLine(100, 103, 400, 333);
    for (const OwnShelf& row : ownShelves) {
        makeOf(desk, row, "one/\xC3\xA9 50%");
        makeOf(desk, row, "two");
    }
    desk.shell.rest();
    ASSERT_TRUE(desk.work.kept);
    Desk started({}, fake::MemoryWork({{"a", *desk.work.kept}}));
    started.press("notice.Command1"_c);
    for (const OwnShelf& row : ownShelves)
        EXPECT_EQ(listedNames(started.s, row.library), listedNames(desk.s, row.library));
    EXPECT_EQ(started.s.hatchLibrary.count, desk.s.hatchLibrary.count);
    EXPECT_EQ(started.s.multipleLinesLibrary.count, desk.s.multipleLinesLibrary.count);
    started.press("fil14"_c);
    EXPECT_NE(started.caption("frmfile.Label4"_c).find("2 associates, 2 hatches and 2 sets"),
              std::string::npos);
}

// What a run leaves that makes these of its one line and dies.
void makeAll(LayerDesk& desk, const OwnShelf& row, const std::vector<std::string>& names, float slant = 230)
{
    desk.drawLine(100, 103, 400, 103 + slant);
    desk.s.store.color[EntityStore::at(1)] = static_cast<std::int32_t>(slant); // small
    for (const std::string& name : names) makeOf(desk, row, name);
}

Bytes workWith(const OwnShelf& row, const std::vector<std::string>& names)
{
    LayerDesk desk;
    makeAll(desk, row, names);
    desk.shell.rest();
    return desk.work.kept.value();
}

std::set<std::string> namesKept(const Desk& desk)
{
    std::set<std::string> names;
    const KeptWork work = desk.work.kept ? readKeptWork(*desk.work.kept).value() : KeptWork();
    for (const KeptLibrary& library : work.libraries) names.insert(library.name);
    return names;
}

struct BesideRow {
    std::vector<std::string> restored, own;
    std::set<std::string> kept;
};

const BesideRow besideRows[] = {
    {{}, {"tiles"}, {"tiles"}},
    {{"brick"}, {"tiles"}, {"brick", "tiles"}},
    {{"brick", "slate 7"}, {"a", "zz top"}, {"a", "brick", "slate 7", "zz top"}},
    {{"brick"}, {}, {"brick"}},
    {{"brick", "tiles"}, {"tiles"}, {"brick", "tiles"}},
};

// The program may die at once.
TEST(OwnLibraries, AreKeptAlongWithTheWorkThatIsRestored)
{
    for (const OwnShelf& row : {ofHatches, ofLines}) {
        for (const BesideRow& names : besideRows) {
            LayerDesk desk({}, fake::MemoryWork({{"a", workWith(row, names.restored)}}));
            makeAll(desk, row, names.own);
            desk.saveAs("second");
            desk.shell.rest();
            desk.press("notice.Command1"_c);
            EXPECT_EQ(namesKept(desk), names.kept);
            desk.shell.rest();
            EXPECT_EQ(namesKept(desk), names.kept);
            ASSERT_TRUE(desk.work.kept);
            Desk next({}, fake::MemoryWork({{"b", *desk.work.kept}}));
            next.press("notice.Command1"_c);
            const std::vector<std::string> back = listedNames(next.s, row.library);
            EXPECT_EQ(std::set(back.begin(), back.end()), names.kept);
        }
    }
}

// What of the rows of that name does not change with the name, or with their use.
std::vector<float> shapeOf(const Session& s, Library library, const std::string& name)
{
    std::vector<float> shape;
    for (const HatchRow& row : s.hatchLibrary.used()) {
        if (library == Library::hatches && row.hatchName == name)
            shape.insert(shape.end(), {row.h1.x, row.h1.y, row.h2.x, row.h2.y, row.hatchTileH});
    }
    for (const MultipleLine& row : s.multipleLinesLibrary.used()) {
        if (library == Library::multipleLines && row.name == name)
            shape.push_back(static_cast<float>(row.colour)); // small
    }
    return shape;
}

struct InUseRow {
    std::vector<std::string> restored, own;
    std::map<std::string, std::string> back; // what was restored, by the name that it has now
};

const InUseRow inUseRows[] = {
    {{"brick"}, {"brick"}, {{"brick-2", "brick"}}},
    {{"brick"}, {"Brick"}, {{"brick", "brick"}}},
    {{"a b", "slate"}, {"a b"}, {{"a b-2", "a b"}, {"slate", "slate"}}},
    {{"brick"}, {"brick", "brick-2", "brick-3"}, {{"brick-4", "brick"}}},
    {{"brick", "brick-2"}, {"brick"}, {{"brick-3", "brick"}, {"brick-2", "brick-2"}}},
    {{"brick", "brick-2"}, {"brick", "brick-2"}, {{"brick-3", "brick"}, {"brick-2-2", "brick-2"}}},
};

TEST(OwnLibraries, WhoseNameIsInUseComeBackUnderAFreeOne)
{
    for (const OwnShelf& row : {ofHatches, ofLines}) {
        for (const InUseRow& names : inUseRows) {
            const Bytes work = workWith(row, names.restored);
            LayerDesk desk({}, fake::MemoryWork({{"a", work}}));
            makeAll(desk, row, names.own, 777);
            desk.saveAs("second");
            const std::vector<float> own = shapeOf(desk.s, row.library, names.own.front());
            desk.press("notice.Command1"_c);
            Desk alone({}, fake::MemoryWork({{"a", work}}));
            alone.press("notice.Command1"_c);
            for (const auto& [now, before] : names.back) {
                const std::vector<float> shape = shapeOf(desk.s, row.library, now);
                EXPECT_EQ(shape, shapeOf(alone.s, row.library, before)) << now;
                EXPECT_NE(shape, own) << now;
                EXPECT_TRUE(namesKept(desk).contains(now)) << now;
            }
            for (const std::string& name : names.own)
                EXPECT_EQ(shapeOf(desk.s, row.library, name), own) << name;
            EXPECT_EQ(listedNames(desk.s, row.library).size(), names.own.size() + names.back.size());
            EXPECT_EQ(desk.caption("notice"_c), "");
        }
    }
}

TEST(OwnLibraries, ThatAreThereAlreadyComeBackOnce)
{
    for (const OwnShelf& row : {ofHatches, ofLines}) {
        LayerDesk desk({}, fake::MemoryWork({{"a", workWith(row, {"brick", "tiles 5"})}}));
        makeAll(desk, row, {"tiles 5"});
        desk.saveAs("second");
        for (MultipleLine& line : desk.s.multipleLinesLibrary.used()) line.legEnd = {17, -23.5F}; // of a use
        desk.press("notice.Command1"_c);
        EXPECT_EQ(listedNames(desk.s, row.library), (std::vector<std::string>{"tiles 5", "brick"}));
        EXPECT_EQ(namesKept(desk), (std::set<std::string>{"brick", "tiles 5"}));
    }
}

void fillUpTo(Session& s, const OwnShelf& row, std::int32_t room)
{
    HatchRow hatch;
    hatch.hatchName = "full";
    MultipleLine line;
    line.name = "full";
    while (row.library == Library::hatches && s.hatchLibrary.count < HatchLibrary::rowLimit - room)
        s.hatchLibrary.add(hatch);
    while (row.library == Library::multipleLines &&
           s.multipleLinesLibrary.count < MultipleLinesLibrary::rowLimit - room)
        s.multipleLinesLibrary.add(line);
}

struct NoRoomRow {
    const OwnShelf* library;
    std::vector<std::string> restored;
    std::int32_t room;
    std::vector<std::string> back;
    const char* said;
};

const NoRoomRow noRoomRows[] = {
    {&ofHatches, {"brick"}, 0, {}, "There is no room for 1 hatch: the next start offers this work again."},
    {&ofHatches,
     {"brick", "slate", "tiles"},
     1,
     {"brick"},
     "There is no room for 2 hatches: the next start offers this work again."},
    {&ofHatches, {"brick", "tiles"}, 2, {"brick", "tiles"}, ""},
    {&ofLines,
     {"wall30"},
     0,
     {},
     "There is no room for 1 set of multiple lines: the next start offers this work again."},
    {&ofLines,
     {"a", "b", "c"},
     1,
     {"a"},
     "There is no room for 2 sets of multiple lines: the next start offers this work again."},
};

TEST(OwnLibraries, WithoutRoomStayForTheNextStart)
{
    for (const NoRoomRow& row : noRoomRows) {
        const Library library = row.library->library;
        const bool stays = *row.said != '\0';
        LayerDesk desk({}, fake::MemoryWork({{"a", workWith(*row.library, row.restored)}}));
        makeAll(desk, *row.library, {"own"}, 777);
        desk.saveAs("second");
        desk.shell.rest();
        fillUpTo(desk.s, *row.library, row.room);
        desk.press("notice.Command1"_c);
        EXPECT_EQ(desk.caption("notice"_c), row.said);
        std::vector<std::string> here = {"own", "full"};
        here.insert(here.end(), row.back.begin(), row.back.end());
        EXPECT_EQ(listedNames(desk.s, library), here);
        std::set<std::string> kept(row.back.begin(), row.back.end());
        kept.insert("own");
        EXPECT_EQ(namesKept(desk), kept) << "of this run";
        EXPECT_EQ(desk.s.store.entCount, 2) << "the drawing is here in any case";
        ASSERT_EQ(desk.work.leftBehind.size(), stays ? 1U : 0U);
        if (!stays) continue;
        Desk next({}, fake::MemoryWork(desk.work.leftBehind));
        next.press("notice.Command1"_c);
        EXPECT_EQ(listedNames(next.s, library), row.restored);
        EXPECT_EQ(next.s.store.entCount, 2);
        EXPECT_EQ(next.caption("notice"_c), "");
    }
}

// It is not for this run to take away what it could not take.
TEST(OwnLibraries, WithoutRoomStayWhereTheWorkCannotBeTakenOver)
{
    LayerDesk desk({}, fake::MemoryWork({{"a", workWith(ofHatches, {"brick"})}}));
    makeAll(desk, ofHatches, {"own"}, 777);
    desk.saveAs("second");
    desk.shell.rest();
    fillUpTo(desk.s, ofHatches, 0);
    desk.work.refusesAdoption = true;
    desk.press("notice.Command1"_c);
    EXPECT_NE(desk.caption("notice"_c), "");
    EXPECT_EQ(desk.work.leftBehind.size(), 1U);
    EXPECT_EQ(namesKept(desk), std::set<std::string>{"own"});
}

// What came back is unsaved as a whole until the drawing is saved.
TEST(OwnLibraries, ThatCameBackAndAreSavedLeaveTheDrawingUnsaved)
{
    LayerDesk desk;
    desk.drawLine(100, 103, 400, 333);
    makeOf(desk, ofHatches, "own");
    desk.shell.rest();
    ASSERT_TRUE(desk.work.kept);
    Desk started({}, fake::MemoryWork({{"a", *desk.work.kept}}));
    started.press("notice.Command1"_c);
    started.press("ht7"_c);
    started.shell.clickRow(fake::list, 0);
    started.enter();
    ASSERT_TRUE(started.disk.files.contains("/home/user/own.mth"));
    started.shell.rest();
    EXPECT_TRUE(started.work.kept);
    started.press("fil5"_c);
    EXPECT_EQ(started.caption("frmfile"_c), "Save Changes");
}

TEST(OwnLibraries, AreKeptOnceForEach)
{
    for (const OwnShelf& row : ownShelves) {
        LayerDesk desk;
        desk.drawLine(100, 103, 400, 333);
        saveHouseAgain(desk);
        desk.shell.rest();
        const int before = desk.work.keeps;
        makeOf(desk, row, "own");
        desk.shell.rest();
        desk.shell.rest();
        EXPECT_EQ(desk.work.keeps, before + 1);
        saveHouseAgain(desk);
        desk.shell.rest();
        EXPECT_TRUE(desk.work.kept) << "no save of the drawing holds it";
        desk.menuRow(row.save, 0);
        desk.enter();
        desk.shell.rest();
        EXPECT_FALSE(desk.work.kept);
        desk.press("undu"_c);
        desk.shell.rest();
        EXPECT_TRUE(desk.work.kept);
    }
}

struct LibraryFileRow {
    const OwnShelf* library;
    ControlId open;
    const char* extension;
};

constexpr LibraryFileRow libraryFileRows[] = {
    {&ofSymbols, "ass10"_c, ".mta"}, {&ofHatches, "ht8"_c, ".mth"}, {&ofLines, "ml6"_c, ".mtm"}};

// A name with a point is that of another one.
TEST(OwnLibraries, WithPointsInTheirNamesStandSideBySide)
{
    for (const LibraryFileRow& row : libraryFileRows) {
        LayerDesk desk;
        desk.drawLine(100, 103, 400, 333);
        for (const char* name : {"door", "door.left", "door.right", "1.5.2 in"}) {
            makeOf(desk, *row.library, name);
            desk.press(row.library->save);
            desk.pick(static_cast<int>(listedNames(desk.s, row.library->library).size()) - 1);
            desk.enter();
            ASSERT_TRUE(desk.disk.files.contains("/home/user/" + std::string(name) + row.extension)) << name;
        }
        Desk next;
        next.disk.files = desk.disk.files;
        std::vector<std::string> opened;
        for (const char* name : {"door.left", "1.5.2 in", "door.right", "door"}) {
            const std::string file = name + std::string(row.extension);
            for (const bool again : {false, true}) {
                next.press(row.open);
                next.name(file);
                next.enter();
                EXPECT_EQ(next.visible("frmfile"_c), again) << file;
                EXPECT_EQ(next.caption("frmfile.Label5"_c), again ? "Name already exists!" : "") << file;
                next.shell.closeForm("frmfile"_c);
            }
            opened.emplace_back(name);
            EXPECT_EQ(listedNames(next.s, row.library->library), opened);
        }
    }
}

// Nobody is asked about them, so they stay for the next start.
TEST(OwnLibraries, StayWhereTheSessionEndsUnasked)
{
    for (const OwnShelf& row : ownShelves) {
        LayerDesk desk;
        desk.drawLine(100, 103, 400, 333);
        makeOf(desk, row, "own");
        saveHouseAgain(desk);
        desk.press("fil14"_c);
        EXPECT_TRUE(desk.s.ended);
        ASSERT_EQ(desk.work.leftBehind.size(), 1U);
        desk.shell.rest();
        EXPECT_FALSE(desk.work.kept) << "the program has ended";
        Desk next({}, fake::MemoryWork(desk.work.leftBehind));
        next.press("notice.Command1"_c);
        EXPECT_EQ(listedNames(next.s, row.library), std::vector<std::string>{"own"});
    }
}

// A close takes the associates alone.
TEST(OwnLibraries, StayInTheSessionOrForTheNextStart)
{
    for (const OwnShelf& row : ownShelves) {
        LayerDesk desk;
        desk.drawLine(100, 103, 400, 333);
        makeOf(desk, row, "own");
        saveHouseAgain(desk);
        desk.press("fil5"_c);
        const bool goes = row.library == Library::associates;
        EXPECT_EQ(hasName(desk.s, row.library, "own"), !goes);
        EXPECT_EQ(desk.work.leftBehind.size(), goes ? 1U : 0U);
        desk.shell.rest();
        EXPECT_EQ(desk.work.kept.has_value(), !goes);
    }
}

} // namespace
} // namespace mirtane
