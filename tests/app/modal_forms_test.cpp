// The dialogs that have to be answered first: what is done to the rest of the program behind them does
// nothing.

#include "half_done.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

struct ModalRow {
    const char* what;
    ControlId form;
    void (*show)(Office& office);
};

const ModalRow modalRows[] = {
    {"Open Drawing", ids::fileForm,
     [](Office& o) {
         o.saveAs("barn");
         o.press("fil4"_c);
     }},
    {"Save File", ids::fileForm, [](Office& o) { o.press("fil7"_c); }},
    {"Save Changes", ids::fileForm, [](Office& o) { o.shell.closeForm("frmMain"_c); }},
    {"Save DXF", ids::fileForm,
     [](Office& o) {
         o.select(2);
         o.press("dd4"_c);
     }},
};

// All that a person could see or lose.
struct Picture {
    explicit Picture(Office& office)
        : controls(office.s.controls), curFunc(office.s.curFunc), stepNo(office.s.stepNo),
          entCount(office.s.store.entCount), groups(office.s.log.undoGroupNext),
          followUp(office.s.saveFollowUp), stats(office.s.store.stat)
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

void expectSame(Office& office, const Picture& before, const std::string& what)
{
    for (const ControlRow& row : controlTable) {
        EXPECT_EQ(office.s.controls[row.id], before.controls[row.id]) << what << ": " << row.name;
    }
    EXPECT_EQ(office.focused(), before.controls.focus.row().name) << what;
    EXPECT_EQ(office.s.curFunc, before.curFunc) << what;
    EXPECT_EQ(office.s.stepNo, before.stepNo) << what;
    EXPECT_EQ(office.s.store.entCount, before.entCount) << what;
    EXPECT_EQ(office.s.log.undoGroupNext, before.groups) << what;
    EXPECT_EQ(office.s.saveFollowUp, before.followUp) << what;
    EXPECT_EQ(office.s.store.stat, before.stats) << what;
    EXPECT_TRUE(office.ops().empty()) << what;
    EXPECT_FALSE(office.shell.ended()) << what;
}

TEST(BehindAForm, NoControlDoesAnything)
{
    for (const ModalRow& modal : modalRows) {
        Office office;
        modal.show(office);
        office.ops();
        const Picture before(office);
        for (const ControlRow& row : controlTable) {
            if (formOf(row.id) == modal.form) continue;
            office.press(row.id);
            office.shell.giveFocus(row.id);
            office.shell.clickRow(row.id, 0);
            office.shell.doubleClickRow(row.id, 0);
            if (row.kind == ControlKind::form) office.shell.closeForm(row.id);
        }
        expectSame(office, before, modal.what);
    }
}

TEST(BehindAForm, TheDrawingTakesNeitherPointerNorKeys)
{
    for (const ModalRow& modal : modalRows) {
        Office office;
        modal.show(office);
        office.ops();
        const Picture before(office);
        for (const int button : {1, 2, 4, 1}) office.down(button, 1210, 1033);
        office.move(1500, 1777);
        office.shell.wheel(2, {1210, 1033});
        for (const int code : {16, 17, 37, 38, 39, 40}) office.shell.keyDown(code);
        expectSame(office, before, modal.what);
    }
}

// What was drawn beside an open dialog went when the dialog was confirmed.
TEST(BehindAForm, NothingIsDrawnThatTheConfirmedDialogWouldThrowAway)
{
    Office office;
    office.saveAs("barn");
    office.press("fil4"_c);
    const std::int32_t before = office.s.store.entCount;
    office.press("Command1"_c);
    office.click(100, 100);
    office.click(1900, 177);
    EXPECT_EQ(office.s.store.entCount, before);
    office.name("barn");
    office.enter();
    EXPECT_FALSE(office.visible("frmfile"_c));
    office.drawLine(50, 60, 700, 811);
    EXPECT_EQ(office.slot(office.s.store.entCount - 1).p2, (Point{700, 811}));
}

// A key that was held when the dialog came up may be let go behind it.
TEST(BehindAForm, AKeyIsLetGo)
{
    Office office;
    office.shell.keyDown(17);
    office.press("fil7"_c);
    office.shell.keyUp(17);
    EXPECT_EQ(office.s.snapKey, 0);
}

} // namespace
} // namespace mirtane
