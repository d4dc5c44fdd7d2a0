// The dialogs that have to be answered first: what is done to the rest of the program behind them does
// nothing.

#include "desk.h"

#include "print/recording_printer.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

struct Paper {
    RecordingPrinter paper{12240, 15840};
};

// A drawing with unsaved work, half an object begun, and a page to print on.
struct Room : Paper, Desk {
    Room() : Desk({}, {}, &paper)
    {
        press("freecurs"_c); // no ortho: what is drawn goes where the pointer is
        for (float y = 1000; y < 1300; y += 100) drawLine(-1000, y, 1400, y + 37);
        click(2000, 2000);
    }

    void select(std::int32_t slot) { s.store.setStat(slot, Stat::sel); }
};

struct ModalRow {
    const char* what;
    ControlId form;
    void (*show)(Room& room);
};

const ModalRow modalRows[] = {
    {"Open Drawing", ids::fileForm,
     [](Room& o) {
         o.saveAs("barn");
         o.press("fil4"_c);
     }},
    {"Save File", ids::fileForm, [](Room& o) { o.press("fil7"_c); }},
    {"Save Changes", ids::fileForm, [](Room& o) { o.shell.closeForm("frmMain"_c); }},
    {"Save DXF", ids::fileForm,
     [](Room& o) {
         o.select(2);
         o.press("dd4"_c);
     }},
    {"Print", ids::printForm,
     [](Room& o) {
         o.select(2);
         o.press("picset"_c);
     }},
};

// All that a person could see or lose.
struct Picture {
    explicit Picture(Room& room)
        : controls(room.s.controls), curFunc(room.s.curFunc), stepNo(room.s.stepNo),
          entCount(room.s.store.entCount), groups(room.s.log.undoGroupNext), followUp(room.s.saveFollowUp),
          stats(room.s.store.stat)
    {
    }

    Controls controls;
    std::string curFunc;
    std::int16_t stepNo;
    std::int32_t entCount;
    std::int32_t groups;
    std::int16_t followUp;
    std::vector<Stat> stats;
};

void expectSame(Room& room, const Picture& before, const std::string& what)
{
    for (const ControlRow& row : controlTable) {
        EXPECT_EQ(room.s.controls[row.id], before.controls[row.id]) << what << ": " << row.name;
    }
    EXPECT_EQ(room.focused(), before.controls.focus.row().name) << what;
    EXPECT_EQ(room.s.curFunc, before.curFunc) << what;
    EXPECT_EQ(room.s.stepNo, before.stepNo) << what;
    EXPECT_EQ(room.s.store.entCount, before.entCount) << what;
    EXPECT_EQ(room.s.log.undoGroupNext, before.groups) << what;
    EXPECT_EQ(room.s.saveFollowUp, before.followUp) << what;
    EXPECT_EQ(room.s.store.stat, before.stats) << what;
    EXPECT_TRUE(room.ops().empty()) << what;
    EXPECT_FALSE(room.shell.ended()) << what;
}

TEST(BehindAForm, NoControlDoesAnything)
{
    for (const ModalRow& modal : modalRows) {
        Room room;
        modal.show(room);
        ASSERT_TRUE(room.visible(modal.form)) << modal.what;
        room.ops();
        const Picture before(room);
        for (const ControlRow& row : controlTable) {
            if (formOf(row.id) == modal.form) continue;
            room.press(row.id);
            room.shell.giveFocus(row.id);
            room.shell.clickRow(row.id, 0);
            room.shell.doubleClickRow(row.id, 0);
            if (row.kind == ControlKind::form) room.shell.closeForm(row.id);
        }
        expectSame(room, before, modal.what);
    }
}

TEST(BehindAForm, TheDrawingTakesNeitherPointerNorKeys)
{
    for (const ModalRow& modal : modalRows) {
        Room room;
        modal.show(room);
        ASSERT_TRUE(room.visible(modal.form)) << modal.what;
        room.ops();
        const Picture before(room);
        for (const int button : {1, 2, 4, 1}) room.down(button, 1210, 1033);
        room.move(1500, 1777);
        room.shell.wheel(2, {1210, 1033});
        for (const int code : {16, 17, 37, 38, 39, 40}) room.shell.keyDown(code);
        expectSame(room, before, modal.what);
    }
}

// What was drawn beside an open dialog went when the dialog was confirmed.
TEST(BehindAForm, NothingIsDrawnThatTheConfirmedDialogWouldThrowAway)
{
    Room room;
    room.saveAs("barn");
    room.press("fil4"_c);
    const std::int32_t before = room.s.store.entCount;
    room.press("Command1"_c);
    room.click(100, 100);
    room.click(1900, 177);
    EXPECT_EQ(room.s.store.entCount, before);
    room.name("barn");
    room.enter();
    EXPECT_FALSE(room.visible("frmfile"_c));
    room.drawLine(50, 60, 700, 811);
    EXPECT_EQ(room.slot(room.s.store.entCount - 1).p2, (Point{700, 811}));
}

// A key that was held when the dialog came up may be let go behind it.
TEST(BehindAForm, AKeyIsLetGo)
{
    Room room;
    room.shell.keyDown(17);
    room.press("fil7"_c);
    room.shell.keyUp(17);
    EXPECT_EQ(room.s.snapKey, 0);
}

} // namespace
} // namespace mirtane
