#include "model/controls.h"

#include <gtest/gtest.h>

#include <set>

namespace mirtane {
namespace {

struct TipRow {
    const char* name;
    const char* tip;
};

TEST(ControlTable, GivesEachButtonItsToolTip)
{
    const TipRow rows[] = {
        {"Command1", "Place line."},
        {"Command2", "Place 2pt. circle."},
        {"Command3", "Place 3pt. circle"},
        {"Command4", "Place 2pt. arc."},
        {"Command5", "Place 3pt. arc."},
        {"Command6", "Place curve."},
        {"Command7", "Place ellipse."},
        {"Command8", "Place point."},
        {"Command9", "Place polygon."},
        {"Command10", "Place multiple lines."},
        {"Command11", "Place linear dimension."},
        {"Command12", "Place radial dimension."},
        {"Command13", "Place angular dimension."},
        {"Command14", "Place leader(pointer)."},
        {"Command15", "Place text."},
        {"Command16", "Edit text."},
        {"Command17", "Select Last(Last objects created)."},
        {"Command18", "Window Select Filtered."},
        {"Command19", "Window Select."},
        {"Command20", "Object Select."},
        {"Command21", "Snap to the midpoint of an object."},
        {"Command35", "Snap to a point."},
        {"Command36", "Snap to an object."},
        {"Command37", "Snap to an intersection of two objects."},
        {"Command38", "Snap to a percentage of an object."},
        {"Command39", "Snap perpendicular to an object."},
        {"Command40", "Snap tangent to a circle or arc."},
        {"Command42", "Zoom all."},
        {"Command43", "Zoom window."},
        {"Command44", "Zoom out."},
        {"blank", "Toggle blank line on/off."},
        {"freecurs", "Toggle ortho confine on/off."},
        {"entry", "Input is displayed here."},
        {"angle", "Change ortho angle."},
        {"snapper", "Change snap percentage."},
        {"memy", "Percentage of memory used."},
        {"textrot", "Change text rotation."},
        {"hatrot", "Change hatch rotation."},
        {"assrot", "Change associate rotation."},
        {"setts", "Displays line width and style settings."},
        {"Combo3", "Displays current working layer or layer naming and adding."},
        {"snaplab", "Indicates which snap is on."},
    };
    for (const TipRow& row : rows) {
        ControlId id;
        ASSERT_TRUE(findControl(row.name, id)) << row.name;
        EXPECT_EQ(id.row().tip, row.tip) << row.name;
    }
}

TEST(ControlTable, GivesEachFieldItsFirstText)
{
    const TipRow rows[] = {{"angle", "000.000"},   {"snapper", "025.000"}, {"memy", "000.000"},
                           {"textrot", "000.000"}, {"hatrot", "000.000"},  {"assrot", "000.000"},
                           {"setts", "Solid"},     {"entry", ""}};
    const Controls controls;
    for (const TipRow& row : rows) {
        ControlId id;
        ASSERT_TRUE(findControl(row.name, id)) << row.name;
        EXPECT_EQ(controls[id].text, row.tip) << row.name;
        EXPECT_TRUE(controls[id].visible) << row.name;
    }
}

TEST(ControlTable, GivesEachLabelItsFirstCaption)
{
    const TipRow rows[] = {{"Label1", "Entry Display(Do not click on box)"},
                           {"Label2", "Line Color and Style"},
                           {"Label3", "Selection List"},
                           {"Label4", "Ortho"},
                           {"Label5", "Hatch"},
                           {"Label6", "Associate"},
                           {"Label7", "Selections"},
                           {"Label12", "% Used"},
                           {"Label13", "Snap %"},
                           {"Label17", "Text"},
                           {"blank", "Blank/Off"},
                           {"freecurs", "Ortho/On"}};
    const Controls controls;
    for (const TipRow& row : rows) {
        ControlId id;
        ASSERT_TRUE(findControl(row.name, id)) << row.name;
        EXPECT_EQ(controls[id].caption, row.tip) << row.name;
    }
}

TEST(ControlTable, HidesTheWorkingStringsAndTheOtherForms)
{
    const Controls controls;
    for (const ControlId id : {"Text3"_c, "snapbox"_c, "dime1"_c, "dime2"_c, "dime3"_c, "calc"_c, "calc2"_c,
                               "frmfile"_c, "frmfilter"_c, "frmedit"_c, "frmprintset"_c, "frmhelp"_c}) {
        EXPECT_FALSE(controls[id].visible) << id.row().name;
    }
    EXPECT_TRUE(controls["frmMain"_c].visible);
}

// The menu bar in its order; "-" before a caption is a separator.
TEST(ControlTable, HoldsTheMenuBarInOrder)
{
    struct Menu {
        const char* name;
        const char* caption;
        const char* entries;
    };
    const Menu menus[] = {
        {"fil1", "File",
         "fil4 Open Drawing|fil5 Close|-fil7 Save Drawing|fil9 Save Selected|-prtstp Printer Setup|picset "
         "Print|-fil14 Exit|"},
        {"ut1", "Utilities",
         "ut3 Measure Distance|ut4 Measure Area|-ut10 Numeric Display|-mst5 Angular Display|-dd2 Open "
         "DXF|-dd4 Save DXF|"},
        {"ut10", "Numeric Display",
         "num1 Feet and Inches|num2 2 Place Feet|num3 3 Place Inches|num4 Metric|num5 Comma Metric|"},
        {"mst5", "Angular Display", "ang1 3 Place Degrees|ang2 Degrees-Minutes-Seconds|"},
        {"ml1", "Multiple Lines", "ml3 Create|-ml6 Open|-ml5 Save|-ml9 Remove|"},
        {"ht1", "Hatch", "ht3 Place|ht10 Scale|-ht5 Create|-ht8 Open|-ht7 Save|-ht11 Remove|"},
        {"ass1", "Associates", "ass3 Place|ass5 Reverse|-ass7 Create|-ass10 Open|-ass9 Save|-ass21 Remove|"},
        {"dim1", "Dimensions",
         "dim3 Slash Style|dim4 Open Arrow Style|dim5 Closed Arrow Style|-dim7 Arrow Size|-dim11 Move "
         "Dimension Text|-dtol1 Tolerance|"},
        {"dtol1", "Tolerance", "dtol2 1/4\"|dtol3 1/8\"|dtol4 1/16\"|dtol5 1/32\"|dtol6 1/64\"|"},
        {"tk1", "Text",
         "tk3 Size|-tk5 Font|-tk7 Left Justification|tk8 Center Justification|tk9 Right "
         "Justification|-tk12 Underlined Text|-tk14 Change Select Font|"},
        {"ly1", "Layers",
         "ly3 Set Working|-ly5 Hide All|ly6 Display All|ly7 Hide/Display|-ly9 Name |ly9a Un-name|-ly11 "
         "Add|-ly13 Load|-ly15 Save|"},
        {"lw1", "Line Width",
         "lw3 1:Blue|lw4 2:Green|lw5 3:Aqua|lw6 4:Red|lw7 5:Purple|lw8 6:Brown|lw9 7:Yellow|lw10 8:White|"},
        {"ls1", "Line Style", "ls3 Solid|ls4 Dash|ls5 Dot|ls6 Dash-Dot|ls7 Dash-Dot-Dot|"},
        {"hlp1", "Help", "hlp3 Display Help|"},
    };
    for (const Menu& menu : menus) {
        ControlId id;
        ASSERT_TRUE(findControl(menu.name, id)) << menu.name;
        EXPECT_EQ(id.row().caption, menu.caption);
        std::string entries;
        for (const ControlRow& row : controlTable) {
            const bool inMenus = row.kind == ControlKind::menu || row.kind == ControlKind::entry ||
                                 row.kind == ControlKind::checkedEntry;
            if (!inMenus || row.parent != menu.name) continue;
            entries += (row.separatorBefore ? "-" : "") + std::string(row.name) + " " +
                       std::string(row.caption) + "|";
        }
        EXPECT_EQ(entries, menu.entries) << menu.name;
    }
    std::string bar;
    for (const ControlRow& row : controlTable) {
        const bool onBar =
            (row.kind == ControlKind::menu || row.kind == ControlKind::entry) && row.parent.empty();
        const bool onMainForm = row.name.find('.') == std::string_view::npos;
        if (onBar && onMainForm) bar += std::string(row.name) + " ";
    }
    EXPECT_EQ(bar, "fil1 undu redu ut1 ml1 ht1 ass1 dim1 tk1 ly1 flt1 lw1 ls1 hlp1 ");
}

TEST(ControlTable, NamesEachControlOnce)
{
    std::set<std::string_view> names;
    for (const ControlRow& row : controlTable) EXPECT_TRUE(names.insert(row.name).second) << row.name;
}

TEST(Controls, TypingReplacesTheSelectionAndCountsCharacters)
{
    Control box;
    setText(box, "n\u00f6rd");
    EXPECT_EQ(box.caret, 4);
    box.anchor = 1;
    setCaret(box, 1);
    typeInto(box, "\u00e4");
    EXPECT_EQ(box.text, "n\u00e4\u00f6rd");
    EXPECT_EQ(box.caret, 2);
    box.anchor = 0;
    typeInto(box, "x");
    EXPECT_EQ(box.text, "x\u00f6rd");
}

TEST(Controls, BackspaceTakesTheSelectionOrOneCharacter)
{
    Control box;
    setText(box, "ab\u00e9");
    backspaceIn(box);
    EXPECT_EQ(box.text, "ab");
    setCaret(box, 0);
    backspaceIn(box);
    EXPECT_EQ(box.text, "ab");
    box.caret = 2;
    backspaceIn(box);
    EXPECT_EQ(box.text, "");
}

TEST(Controls, TheCaretStaysInTheText)
{
    Control box;
    setText(box, "5");
    setCaret(box, 2);
    EXPECT_EQ(box.caret, 1);
    setCaret(box, -4);
    EXPECT_EQ(box.caret, 0);
}

TEST(Controls, StandOnTheFormOfTheirName)
{
    EXPECT_EQ(formOf("frmfile.Text1"_c), "frmfile"_c);
    EXPECT_EQ(formOf("entry"_c), "frmMain"_c);
    EXPECT_EQ(formOf("frmfile"_c), "frmfile"_c);
}

} // namespace
} // namespace mirtane
