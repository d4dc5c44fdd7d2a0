#include "selection_lines.h"

namespace mirtane {
namespace {

using SelectionEdits = fake::SelectionLines;

TEST_F(SelectionEdits, EachButtonHasItsCaptionAndTip)
{
    struct Row {
        ControlId button;
        const char* caption;
        const char* tip;
    };
    const Row rows[] = {
        {"frmedit.Command1"_c, "Break", "Break a section out of an object."},
        {"frmedit.Command2"_c, "Trim", "Trim an object or objects to another object."},
        {"frmedit.Command3"_c, "Stretch", "Stretch an object or objects."},
        {"frmedit.Command4"_c, "Copy", "Copy an object or objects."},
        {"frmedit.Command5"_c, "Mirror Copy", "Mirror copy an object or objects."},
        {"frmedit.Command6"_c, "Radial Copy",
         "Copy an object or objects by degrees and copies around a point."},
        {"frmedit.Command7"_c, "Rotate", "Rotate an object or objects."},
        {"frmedit.Command8"_c, "Move", "Move an object or objects."},
        {"frmedit.Command9"_c, "Scale", "Scale an object or objects."},
        {"frmedit.Command10"_c, "Change", "Change the layer, color or style of an object or objects."},
        {"frmedit.Command11"_c, "Fillet", "Round off the intersection of lines or arcs."},
        {"frmedit.Command12"_c, "Deselect All", "Deselect all selected objects."},
        {"frmedit.Command13"_c, "Concentric Copy", "Make a concentric copy of an arc or a circle."},
        {"frmedit.Command14"_c, "Delete", "Delete an object or objects from memory."},
        {"frmedit.Command15"_c, "Cancel", "Make no selection and close the form."},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(desk.caption(row.button), row.caption);
        EXPECT_EQ(row.button.row().tip, row.tip);
    }
}

TEST_F(SelectionEdits, GoesWithTheNextClickOrFunction)
{
    offerEditsOfLine1();
    desk.down(1, 3000, 3000);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(selected(), "1");
    desk.cancel();
    ASSERT_TRUE(desk.visible("frmedit"_c));
    desk.press("Command19"_c);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(selected(), "1");
}

TEST_F(SelectionEdits, ItsCloseBoxKeepsTheSelection)
{
    offerEditsOfLine1();
    desk.shell.closeForm("frmedit"_c);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(selected(), "1");
    EXPECT_EQ(desk.s.curFunc, "Object Select");
}

TEST_F(SelectionEdits, AnEditGivenUpDropsTheSelectionAndShowsNoForm)
{
    offerEditsOfLine1();
    desk.press("frmedit.Command4"_c);
    desk.click(1000, 1000);
    desk.cancel();
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(desk.s.curFunc, "Object Select");
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.text("entry"_c), "");
    desk.cancel();
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
}

} // namespace
} // namespace mirtane
