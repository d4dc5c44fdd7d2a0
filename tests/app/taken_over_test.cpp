// Whatever is begun ends wholly when a file flow, a library's list, printing or a refused exit takes over:
// every road, at every moment that leaves something half done.

#include "half_done.h"

namespace mirtane {
namespace {

using namespace fake;

struct Road {
    const char* what;
    void (*take)(Office& office);
    bool needsSelection = false;
};

void pressSaved(Office& office, ControlId menu)
{
    office.makeSaved();
    office.press(menu);
}

void pressSelected(Office& office, ControlId menu)
{
    office.select(1);
    office.press(menu);
}

void chooseRow(Office& office, ControlId menu, int row)
{
    office.press(menu);
    office.row(row);
}

constexpr Road roads[] = {
    {"a drawing opened",
     [](Office& office) {
         office.disk.files["/home/user/old.mtd"] = {};
         pressSaved(office, "fil4"_c);
         office.name("old");
         office.enter();
     }},
    {"Open carried out after the work was given up",
     [](Office& office) {
         office.press("fil4"_c);
         office.press("frmfile.Command2"_c);
     }},
    {"a file dropped",
     [](Office& office) {
         office.disk.files["/home/user/old.mtd"] = {};
         office.shell.openDrawing("/home/user/old.mtd");
     }},
    {"Close, saved", [](Office& office) { pressSaved(office, "fil5"_c); }},
    {"Close carried out after a save",
     [](Office& office) {
         office.press("fil5"_c);
         office.press(confirm);
     }},
    {"a save that is finished", [](Office& office) { office.saveAs("plan"); }},
    {"a selection saved",
     [](Office& office) {
         pressSelected(office, "fil9"_c);
         office.press(confirm);
     },
     true},
    {"Exit refused", [](Office& office) { office.press("fil14"_c); }},
    {"the window closed, and refused", [](Office& office) { office.shell.closeForm("frmMain"_c); }},
    {"Exit refused and thought better of",
     [](Office& office) {
         office.press("fil14"_c);
         office.shell.closeForm("frmfile"_c);
     }},
    {"a DXF file opened",
     [](Office& office) {
         office.disk.files["/home/user/old.dxf"] = {};
         pressSaved(office, "dd2"_c);
         office.name("old");
         office.enter();
     }},
    {"a DXF file saved",
     [](Office& office) {
         pressSelected(office, "dd4"_c);
         office.press(confirm);
     },
     true},
    {"a layer loaded",
     [](Office& office) {
         office.disk.files["/home/user/old.mtd"] = {};
         chooseRow(office, "ly13"_c, 3);
         office.name("old");
         office.enter();
     }},
    {"a layer saved",
     [](Office& office) {
         chooseRow(office, "ly15"_c, 1);
         office.press(confirm);
     }},
    {"associates to place", [](Office& office) { office.press("ass3"_c); }},
    {"associates to save", [](Office& office) { office.press("ass9"_c); }},
    {"associates to remove", [](Office& office) { office.press("ass21"_c); }},
    {"hatches to place", [](Office& office) { office.press("ht3"_c); }},
    {"hatches to save", [](Office& office) { office.press("ht7"_c); }},
    {"hatches to remove", [](Office& office) { office.press("ht11"_c); }},
    {"multiple lines to place", [](Office& office) { office.press("Command10"_c); }},
    {"multiple lines to save", [](Office& office) { office.press("ml5"_c); }},
    {"multiple lines to remove", [](Office& office) { office.press("ml9"_c); }},
    {"an associate saved",
     [](Office& office) {
         chooseRow(office, "ass9"_c, 0);
         office.press(confirm);
     }},
    {"a hatch saved",
     [](Office& office) {
         chooseRow(office, "ht7"_c, 0);
         office.press(confirm);
     }},
    {"multiple lines saved",
     [](Office& office) {
         chooseRow(office, "ml5"_c, 0);
         office.press(confirm);
     }},
    {"an associate removed", [](Office& office) { chooseRow(office, "ass21"_c, 0); }},
    {"Print", [](Office& office) { pressSelected(office, "picset"_c); }, true},
    {"Print with nothing to print", [](Office& office) { office.press("picset"_c); }},
    {"a page printed",
     [](Office& office) {
         pressSelected(office, "picset"_c);
         office.press("frmprintset.Command1"_c);
     },
     true},
};

void takeTheRoad(const Road& road, const Moment& moment)
{
    const std::string where = std::string(road.what) + " in the middle of " + moment.what;
    Office office;
    moment.begin(office);
    office.lookAtScreen();
    road.take(office);
    EXPECT_EQ(office.s.curFunc, moment.function) << where;
    expectNothingBegun(office, where);
    expectNothingLeftOnThePicture(office, where);
    expectAClickStoresNothing(office, where);
}

class TakenOver : public testing::TestWithParam<Road> {};

TEST_P(TakenOver, WhatIsBegunEndsWholly)
{
    for (const Moment& moment : moments) {
        if (!GetParam().needsSelection || !moment.marksAnObject) takeTheRoad(GetParam(), moment);
    }
}

INSTANTIATE_TEST_SUITE_P(By, TakenOver, testing::ValuesIn(roads), [](const auto& road) {
    std::string name;
    for (const char c : std::string_view(road.param.what)) name += c == ' ' || c == ',' ? '_' : c;
    return name;
});

// Until something is carried out, the dialog can be put away and the line goes on.
constexpr Road dialogs[] = {
    {"Open, unsaved", [](Office& office) { office.press("fil4"_c); }},
    {"Open, saved", [](Office& office) { pressSaved(office, "fil4"_c); }},
    {"a file dropped that is not there",
     [](Office& office) { office.shell.openDrawing("/home/user/gone.mtd"); }},
    {"Close, unsaved", [](Office& office) { office.press("fil5"_c); }},
    {"Save", [](Office& office) { office.press("fil7"_c); }},
    {"Save given up",
     [](Office& office) {
         office.press("fil7"_c);
         office.press("frmfile.Command2"_c);
     }},
    {"a save that fails",
     [](Office& office) {
         office.disk.refusesWrites = true;
         office.saveAs("plan");
     }},
    {"Save Selected", [](Office& office) { pressSelected(office, "fil9"_c); }, true},
    {"Open DXF, unsaved", [](Office& office) { office.press("dd2"_c); }},
    {"Open DXF, saved", [](Office& office) { pressSaved(office, "dd2"_c); }},
    {"Save DXF", [](Office& office) { pressSelected(office, "dd4"_c); }, true},
    {"Load Layer", [](Office& office) { chooseRow(office, "ly13"_c, 3); }},
    {"Save Layer", [](Office& office) { chooseRow(office, "ly15"_c, 1); }},
    {"Open Associate", [](Office& office) { office.press("ass10"_c); }},
    {"Open Hatch", [](Office& office) { office.press("ht8"_c); }},
    {"Open Multiple Lines", [](Office& office) { office.press("ml6"_c); }},
};

TEST(NotTakenOver, ADialogThatOnlyStandsLeavesWhatIsBegun)
{
    for (const Road& dialog : dialogs) {
        Office office;
        office.click(300, 410);
        office.move(911, 415);
        dialog.take(office);
        EXPECT_EQ(office.s.stepNo, 1) << dialog.what;
        EXPECT_EQ(office.s.curFunc, "Line") << dialog.what;
        EXPECT_EQ(office.caption("promptlab"_c), "(Enter ending point of line:)") << dialog.what;
    }
}

} // namespace
} // namespace mirtane
