#pragma once

// Every control that the program has, as data: the window makes its widgets and menus from these rows, and
// routines name a control by "entry"_c, which the compiler looks up here.

#include <cstdint>
#include <string_view>

namespace mirtane {

enum class ControlKind : std::uint8_t {
    form,
    surface, // pic1
    picture, // drawn by the window
    button,
    toggle, // its caption is its state
    option,
    field,       // text box that takes keys
    display,     // text box that gives the focus back to the drawing at once
    page,        // long text that is read
    workingText, // hidden text box that serves as a working string
    label,
    list,
    combo,
    menu,         // holds other entries
    entry,        // menu entry
    checkedEntry, // menu entry with a check mark
};

struct ControlRow {
    std::string_view name; // with the form's name and a point in front, but for those of frmMain
    ControlKind kind;
    std::string_view parent; // of a menu entry, the menu; of a button of the tool strip, its group
    std::string_view caption;
    std::string_view tip;
    std::string_view text;
    bool separatorBefore = false;
};

// clang-format off
inline constexpr ControlRow controlTable[] = {
    {"frmMain", ControlKind::form, "", "", "", ""},
    {"frmfile", ControlKind::form, "", "", "", ""},
    {"frmfilter", ControlKind::form, "", "", "", ""},
    {"frmedit", ControlKind::form, "", "Edits", "", ""},
    {"frmprintset", ControlKind::form, "", "Print", "", ""},
    {"frmhelp", ControlKind::form, "", "Mirtane 4.00 Help", "", ""},

    {"pic1", ControlKind::surface, "", "", "", ""},

    {"Command1", ControlKind::button, "Draw", "", "Place line.", ""},
    {"Command2", ControlKind::button, "Draw", "", "Place 2pt. circle.", ""},
    {"Command3", ControlKind::button, "Draw", "", "Place 3pt. circle", ""},
    {"Command4", ControlKind::button, "Draw", "", "Place 2pt. arc.", ""},
    {"Command5", ControlKind::button, "Draw", "", "Place 3pt. arc.", ""},
    {"Command6", ControlKind::button, "Draw", "", "Place curve.", ""},
    {"Command7", ControlKind::button, "Draw", "", "Place ellipse.", ""},
    {"Command8", ControlKind::button, "Draw", "", "Place point.", ""},
    {"Command9", ControlKind::button, "Draw", "", "Place polygon.", ""},
    {"Command10", ControlKind::button, "Draw", "", "Place multiple lines.", ""},
    {"Command11", ControlKind::button, "Draw", "", "Place linear dimension.", ""},
    {"Command12", ControlKind::button, "Draw", "", "Place radial dimension.", ""},
    {"Command13", ControlKind::button, "Draw", "", "Place angular dimension.", ""},
    {"Command14", ControlKind::button, "Draw", "", "Place leader(pointer).", ""},
    {"Command15", ControlKind::button, "Draw", "", "Place text.", ""},
    {"Command16", ControlKind::button, "Draw", "", "Edit text.", ""},
    {"Command20", ControlKind::button, "Select", "", "Object Select.", ""},
    {"Command19", ControlKind::button, "Select", "", "Window Select.", ""},
    {"Command18", ControlKind::button, "Select", "", "Window Select Filtered.", ""},
    {"Command17", ControlKind::button, "Select", "", "Select Last(Last objects created).", ""},
    {"Command35", ControlKind::button, "Snap", "", "Snap to a point.", ""},
    {"Command36", ControlKind::button, "Snap", "", "Snap to an object.", ""},
    {"Command37", ControlKind::button, "Snap", "", "Snap to an intersection of two objects.", ""},
    {"Command38", ControlKind::button, "Snap", "", "Snap to a percentage of an object.", ""},
    {"Command39", ControlKind::button, "Snap", "", "Snap perpendicular to an object.", ""},
    {"Command40", ControlKind::button, "Snap", "", "Snap tangent to a circle or arc.", ""},
    {"Command21", ControlKind::button, "Snap", "", "Snap to the midpoint of an object.", ""},
    {"Command42", ControlKind::button, "Zoom", "", "Zoom all.", ""},
    {"Command43", ControlKind::button, "Zoom", "", "Zoom window.", ""},
    {"Command44", ControlKind::button, "Zoom", "", "Zoom out.", ""},
    {"blank", ControlKind::toggle, "Toggles", "Blank/Off", "Toggle blank line on/off.", ""},
    {"freecurs", ControlKind::toggle, "Toggles", "Ortho/On", "Toggle ortho confine on/off.", ""},

    {"entry", ControlKind::display, "", "", "Input is displayed here.", ""},
    {"angle", ControlKind::field, "", "", "Change ortho angle.", "000.000"},
    {"snapper", ControlKind::field, "", "", "Change snap percentage.", "025.000"},
    {"memy", ControlKind::display, "", "", "Percentage of memory used.", "000.000"},
    {"textrot", ControlKind::field, "", "", "Change text rotation.", "000.000"},
    {"hatrot", ControlKind::field, "", "", "Change hatch rotation.", "000.000"},
    {"assrot", ControlKind::field, "", "", "Change associate rotation.", "000.000"},
    {"setts", ControlKind::display, "", "", "Displays line width and style settings.", "Solid"},
    {"Combo3", ControlKind::combo, "", "", "Displays current working layer or layer naming and adding.", ""},
    {"List1", ControlKind::list, "", "", "", ""},
    {"snaplab", ControlKind::label, "", "", "Indicates which snap is on.", ""},

    {"Text3", ControlKind::workingText, "", "", "", ""},
    {"snapbox", ControlKind::workingText, "", "", "", ""},
    {"dime1", ControlKind::workingText, "", "", "", ""},
    {"dime2", ControlKind::workingText, "", "", "", ""},
    {"dime3", ControlKind::workingText, "", "", "", ""},
    {"calc", ControlKind::workingText, "", "", "", ""},
    {"calc2", ControlKind::workingText, "", "", "", ""},

    {"Label1", ControlKind::label, "", "Entry Display(Do not click on box)", "", ""},
    {"Label2", ControlKind::label, "", "Line Color and Style", "", ""},
    {"Label3", ControlKind::label, "", "Selection List", "", ""},
    {"Label4", ControlKind::label, "", "Ortho", "", ""},
    {"Label5", ControlKind::label, "", "Hatch", "", ""},
    {"Label6", ControlKind::label, "", "Associate", "", ""},
    {"Label7", ControlKind::label, "", "Selections", "", ""},
    {"Label12", ControlKind::label, "", "% Used", "", ""},
    {"Label13", ControlKind::label, "", "Snap %", "", ""},
    {"Label17", ControlKind::label, "", "Text", "", ""},

    // The line under the drawing: the prompt again, since a title bar is easily overlooked, and the pointer.
    {"promptlab", ControlKind::label, "", "", "", ""},
    {"pointerlab", ControlKind::label, "", "", "", ""},

    {"fil1", ControlKind::menu, "", "File", "", ""},
    {"fil4", ControlKind::entry, "fil1", "Open Drawing", "", ""},
    {"fil5", ControlKind::entry, "fil1", "Close", "", ""},
    {"fil7", ControlKind::entry, "fil1", "Save Drawing", "", "", true},
    {"fil9", ControlKind::entry, "fil1", "Save Selected", "", ""},
    {"prtstp", ControlKind::entry, "fil1", "Printer Setup", "", "", true},
    {"picset", ControlKind::entry, "fil1", "Print", "", ""},
    {"fil14", ControlKind::entry, "fil1", "Exit", "", "", true},
    {"undu", ControlKind::entry, "", "Undo", "", ""},
    {"redu", ControlKind::entry, "", "Redo", "", ""},
    {"ut1", ControlKind::menu, "", "Utilities", "", ""},
    {"ut3", ControlKind::entry, "ut1", "Measure Distance", "", ""},
    {"ut4", ControlKind::entry, "ut1", "Measure Area", "", ""},
    {"ut10", ControlKind::menu, "ut1", "Numeric Display", "", "", true},
    {"num1", ControlKind::checkedEntry, "ut10", "Feet and Inches", "", ""},
    {"num2", ControlKind::checkedEntry, "ut10", "2 Place Feet", "", ""},
    {"num3", ControlKind::checkedEntry, "ut10", "3 Place Inches", "", ""},
    {"num4", ControlKind::checkedEntry, "ut10", "Metric", "", ""},
    {"num5", ControlKind::checkedEntry, "ut10", "Comma Metric", "", ""},
    {"mst5", ControlKind::menu, "ut1", "Angular Display", "", "", true},
    {"ang1", ControlKind::checkedEntry, "mst5", "3 Place Degrees", "", ""},
    {"ang2", ControlKind::checkedEntry, "mst5", "Degrees-Minutes-Seconds", "", ""},
    {"dd2", ControlKind::entry, "ut1", "Open DXF", "", "", true},
    {"dd4", ControlKind::entry, "ut1", "Save DXF", "", "", true},
    {"ml1", ControlKind::menu, "", "Multiple Lines", "", ""},
    {"ml3", ControlKind::entry, "ml1", "Create", "", ""},
    {"ml6", ControlKind::entry, "ml1", "Open", "", "", true},
    {"ml5", ControlKind::entry, "ml1", "Save", "", "", true},
    {"ml9", ControlKind::entry, "ml1", "Remove", "", "", true},
    {"ht1", ControlKind::menu, "", "Hatch", "", ""},
    {"ht3", ControlKind::entry, "ht1", "Place", "", ""},
    {"ht10", ControlKind::entry, "ht1", "Scale", "", ""},
    {"ht5", ControlKind::entry, "ht1", "Create", "", "", true},
    {"ht8", ControlKind::entry, "ht1", "Open", "", "", true},
    {"ht7", ControlKind::entry, "ht1", "Save", "", "", true},
    {"ht11", ControlKind::entry, "ht1", "Remove", "", "", true},
    {"ass1", ControlKind::menu, "", "Associates", "", ""},
    {"ass3", ControlKind::entry, "ass1", "Place", "", ""},
    {"ass5", ControlKind::checkedEntry, "ass1", "Reverse", "", ""},
    {"ass7", ControlKind::entry, "ass1", "Create", "", "", true},
    {"ass10", ControlKind::entry, "ass1", "Open", "", "", true},
    {"ass9", ControlKind::entry, "ass1", "Save", "", "", true},
    {"ass21", ControlKind::entry, "ass1", "Remove", "", "", true},
    {"dim1", ControlKind::menu, "", "Dimensions", "", ""},
    {"dim3", ControlKind::checkedEntry, "dim1", "Slash Style", "", ""},
    {"dim4", ControlKind::checkedEntry, "dim1", "Open Arrow Style", "", ""},
    {"dim5", ControlKind::checkedEntry, "dim1", "Closed Arrow Style", "", ""},
    {"dim7", ControlKind::entry, "dim1", "Arrow Size", "", "", true},
    {"dim11", ControlKind::entry, "dim1", "Move Dimension Text", "", "", true},
    {"dtol1", ControlKind::menu, "dim1", "Tolerance", "", "", true},
    {"dtol2", ControlKind::checkedEntry, "dtol1", "1/4\"", "", ""},
    {"dtol3", ControlKind::checkedEntry, "dtol1", "1/8\"", "", ""},
    {"dtol4", ControlKind::checkedEntry, "dtol1", "1/16\"", "", ""},
    {"dtol5", ControlKind::checkedEntry, "dtol1", "1/32\"", "", ""},
    {"dtol6", ControlKind::checkedEntry, "dtol1", "1/64\"", "", ""},
    {"tk1", ControlKind::menu, "", "Text", "", ""},
    {"tk3", ControlKind::entry, "tk1", "Size", "", ""},
    {"tk5", ControlKind::entry, "tk1", "Font", "", "", true},
    {"tk7", ControlKind::checkedEntry, "tk1", "Left Justification", "", "", true},
    {"tk8", ControlKind::checkedEntry, "tk1", "Center Justification", "", ""},
    {"tk9", ControlKind::checkedEntry, "tk1", "Right Justification", "", ""},
    {"tk12", ControlKind::checkedEntry, "tk1", "Underlined Text", "", "", true},
    {"tk14", ControlKind::entry, "tk1", "Change Select Font", "", "", true},
    {"ly1", ControlKind::menu, "", "Layers", "", ""},
    {"ly3", ControlKind::entry, "ly1", "Set Working", "", ""},
    {"ly5", ControlKind::entry, "ly1", "Hide All", "", "", true},
    {"ly6", ControlKind::entry, "ly1", "Display All", "", ""},
    {"ly7", ControlKind::entry, "ly1", "Hide/Display", "", ""},
    {"ly9", ControlKind::entry, "ly1", "Name ", "", "", true},
    {"ly9a", ControlKind::entry, "ly1", "Un-name", "", ""},
    {"ly11", ControlKind::entry, "ly1", "Add", "", "", true},
    {"ly13", ControlKind::entry, "ly1", "Load", "", "", true},
    {"ly15", ControlKind::entry, "ly1", "Save", "", "", true},
    {"flt1", ControlKind::entry, "", "Filter", "", ""},
    {"lw1", ControlKind::menu, "", "Line Width", "", ""},
    {"lw3", ControlKind::entry, "lw1", "1:Blue", "", ""},
    {"lw4", ControlKind::entry, "lw1", "2:Green", "", ""},
    {"lw5", ControlKind::entry, "lw1", "3:Aqua", "", ""},
    {"lw6", ControlKind::entry, "lw1", "4:Red", "", ""},
    {"lw7", ControlKind::entry, "lw1", "5:Purple", "", ""},
    {"lw8", ControlKind::entry, "lw1", "6:Brown", "", ""},
    {"lw9", ControlKind::entry, "lw1", "7:Yellow", "", ""},
    {"lw10", ControlKind::entry, "lw1", "8:White", "", ""},
    {"ls1", ControlKind::menu, "", "Line Style", "", ""},
    {"ls3", ControlKind::checkedEntry, "ls1", "Solid", "", ""},
    {"ls4", ControlKind::checkedEntry, "ls1", "Dash", "", ""},
    {"ls5", ControlKind::checkedEntry, "ls1", "Dot", "", ""},
    {"ls6", ControlKind::checkedEntry, "ls1", "Dash-Dot", "", ""},
    {"ls7", ControlKind::checkedEntry, "ls1", "Dash-Dot-Dot", "", ""},
    {"hlp1", ControlKind::menu, "", "Help", "", ""},
    {"hlp3", ControlKind::entry, "hlp1", "Display Help", "", ""},

    {"frmfile.Label1", ControlKind::label, "", "File Name", "", ""},
    {"frmfile.Text1", ControlKind::field, "", "", "", ""},
    {"frmfile.File1", ControlKind::list, "", "", "", ""},
    {"frmfile.Dir1", ControlKind::list, "", "", "", ""},
    {"frmfile.Drive1", ControlKind::list, "", "", "", ""},
    {"frmfile.Label3", ControlKind::label, "", "", "", ""}, // the folder shown
    {"frmfile.Label2", ControlKind::label, "", "File Type", "", ""},
    {"frmfile.Text2", ControlKind::display, "", "", "", ""},
    {"frmfile.Command1", ControlKind::button, "", "Open", "", ""},
    {"frmfile.Command2", ControlKind::button, "", "Close", "", ""},

    {"frmedit.Command1", ControlKind::button, "", "Break", "Break a section out of an object.", ""},
    {"frmedit.Command2", ControlKind::button, "", "Trim", "Trim an object or objects to another object.", ""},
    {"frmedit.Command3", ControlKind::button, "", "Stretch", "Stretch an object or objects.", ""},
    {"frmedit.Command4", ControlKind::button, "", "Copy", "Copy an object or objects.", ""},
    {"frmedit.Command5", ControlKind::button, "", "Mirror Copy", "Mirror copy an object or objects.", ""},
    {"frmedit.Command6", ControlKind::button, "", "Radial Copy", "Copy an object or objects by degrees and copies around a point.", ""},
    {"frmedit.Command7", ControlKind::button, "", "Rotate", "Rotate an object or objects.", ""},
    {"frmedit.Command8", ControlKind::button, "", "Move", "Move an object or objects.", ""},
    {"frmedit.Command9", ControlKind::button, "", "Scale", "Scale an object or objects.", ""},
    {"frmedit.Command10", ControlKind::button, "", "Change", "Change the layer, color or style of an object or objects.", ""},
    {"frmedit.Command11", ControlKind::button, "", "Fillet", "Round off the intersection of lines or arcs.", ""},
    {"frmedit.Command12", ControlKind::button, "", "Deselect All", "Deselect all selected objects.", ""},
    {"frmedit.Command13", ControlKind::button, "", "Concentric Copy", "Make a concentric copy of an arc or a circle.", ""},
    {"frmedit.Command14", ControlKind::button, "", "Delete", "Delete an object or objects from memory.", ""},
    {"frmedit.Command15", ControlKind::button, "", "Cancel", "Make no selection and close the form.", ""},

    {"frmfilter.ob1", ControlKind::menu, "", "Object", "", ""},
    {"frmfilter.ob4", ControlKind::entry, "frmfilter.ob1", "Object", "", ""},
    {"frmfilter.ob5", ControlKind::entry, "frmfilter.ob1", "Line", "", "", true},
    {"frmfilter.ob6", ControlKind::entry, "frmfilter.ob1", "Circle", "", ""},
    {"frmfilter.ob7", ControlKind::entry, "frmfilter.ob1", "Arc", "", ""},
    {"frmfilter.ob8", ControlKind::entry, "frmfilter.ob1", "Ellipse", "", ""},
    {"frmfilter.ob9", ControlKind::entry, "frmfilter.ob1", "Point", "", ""},
    {"frmfilter.ob10", ControlKind::entry, "frmfilter.ob1", "Text", "", ""},
    {"frmfilter.ob11", ControlKind::entry, "frmfilter.ob1", "Dimension", "", ""},
    {"frmfilter.cu1", ControlKind::menu, "", "Color", "", ""},
    {"frmfilter.cu2", ControlKind::entry, "frmfilter.cu1", "Color", "", ""},
    {"frmfilter.cu5", ControlKind::entry, "frmfilter.cu1", "1:Blue", "", "", true},
    {"frmfilter.cu6", ControlKind::entry, "frmfilter.cu1", "2:Green", "", ""},
    {"frmfilter.cu7", ControlKind::entry, "frmfilter.cu1", "3:Aqua", "", ""},
    {"frmfilter.cu8", ControlKind::entry, "frmfilter.cu1", "4:Red", "", ""},
    {"frmfilter.cu9", ControlKind::entry, "frmfilter.cu1", "5:Purple", "", ""},
    {"frmfilter.cu10", ControlKind::entry, "frmfilter.cu1", "6:Brown", "", ""},
    {"frmfilter.cu11", ControlKind::entry, "frmfilter.cu1", "7:Yellow", "", ""},
    {"frmfilter.cu12", ControlKind::entry, "frmfilter.cu1", "8:White", "", ""},
    {"frmfilter.st1", ControlKind::menu, "", "Style", "", ""},
    {"frmfilter.st4", ControlKind::entry, "frmfilter.st1", "Style", "", ""},
    {"frmfilter.st5", ControlKind::entry, "frmfilter.st1", "Solid", "", "", true},
    {"frmfilter.st6", ControlKind::entry, "frmfilter.st1", "Dash", "", ""},
    {"frmfilter.st7", ControlKind::entry, "frmfilter.st1", "Dot", "", ""},
    {"frmfilter.st8", ControlKind::entry, "frmfilter.st1", "Dash-Dot", "", ""},
    {"frmfilter.st9", ControlKind::entry, "frmfilter.st1", "Dash-Dot-Dot", "", ""},
    {"frmfilter.rst1", ControlKind::entry, "", "Reset", "", ""},
    {"frmfilter.Label1", ControlKind::label, "", "Select Layer", "", ""},
    {"frmfilter.List1", ControlKind::list, "", "", "", ""},
    {"frmfilter.Label2", ControlKind::label, "", "Layer Setting", "", ""},
    {"frmfilter.Text1", ControlKind::display, "", "", "", "All"},
    {"frmfilter.Label3", ControlKind::label, "", "Object Setting", "", ""},
    {"frmfilter.Text2", ControlKind::display, "", "", "", "All"},
    {"frmfilter.Label4", ControlKind::label, "", "Color Setting", "", ""},
    {"frmfilter.Text3", ControlKind::display, "", "", "", "All"},
    {"frmfilter.Label5", ControlKind::label, "", "Style Setting", "", ""},
    {"frmfilter.Text4", ControlKind::display, "", "", "", "All"},
    {"frmfilter.Text5", ControlKind::workingText, "", "", "", "Text5"},
    {"frmfilter.Command1", ControlKind::button, "", "Accept", "", ""},
    {"frmfilter.Command2", ControlKind::button, "", "Cancel", "", ""},

    {"frmprintset.Label1", ControlKind::label, "",
     "The fitted scale value is displayed below. Click on the text box to enter a new value. This value must be greater than the fitted value.",
     "", ""},
    {"frmprintset.Picture1", ControlKind::picture, "", "", "", ""}, // the page at the scale in text
    {"frmprintset.Text1", ControlKind::field, "", "", "", ""},
    {"frmprintset.Text2", ControlKind::display, "", "", "", ""},
    {"frmprintset.Command1", ControlKind::button, "", "Print", "", ""},
    {"frmprintset.Command2", ControlKind::button, "", "Cancel", "", ""},

    {"frmhelp.Text1", ControlKind::page, "", "", "", ""},
};
// clang-format on

inline constexpr std::size_t controlCount = sizeof(controlTable) / sizeof(controlTable[0]);

// A control's place in the table.
struct ControlId {
    std::uint16_t index = 0;

    friend constexpr bool operator==(ControlId, ControlId) = default;
    constexpr const ControlRow& row() const { return controlTable[index]; }
};

// The control of that name; found says whether there is one.
constexpr bool findControl(std::string_view name, ControlId& found)
{
    for (std::size_t i = 0; i < controlCount; ++i) {
        if (controlTable[i].name != name) continue;
        found.index = static_cast<std::uint16_t>(i); // the table has a few hundred rows
        return true;
    }
    return false;
}

// A name that no control has does not compile.
consteval ControlId operator""_c(const char* name, std::size_t length)
{
    ControlId id;
    return findControl({name, length}, id) ? id : throw "no such control";
}

} // namespace mirtane
