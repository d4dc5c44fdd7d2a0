#pragma once

// The program with something drawn and the two roads to each edit at hand.

#include "desk.h"

#include "app/drawing/dispatch.h"

namespace mirtane::fake {

struct EditFunction {
    const char* name;
    int row; // of the list
    ControlId button;
    std::int16_t firstStep = 0;
    const char* prompt = "";
};

inline constexpr EditFunction editFunctions[] = {
    {"Break", 0, "frmedit.Command1"_c, 0, "(Enter first break point:)"},
    {"Trim", 1, "frmedit.Command2"_c, 0, "(Click near object to which to trim:)"},
    {"Stretch", 2, "frmedit.Command3"_c, 0, "(Place window around points to be moved:)"},
    {"Copy", 3, "frmedit.Command4"_c, 0, "(Enter reference point:)"},
    {"Mirror Copy", 4, "frmedit.Command5"_c, 0, "(Enter beginning of mirror line:)"},
    {"Radial Copy", 5, "frmedit.Command6"_c, 0, "(Enter center of rotation:)"},
    {"Concentric Copy", 6, "frmedit.Command13"_c, 1, "(Enter off-set distance:)"},
    {"Move", 7, "frmedit.Command8"_c, 0, "(Enter reference point:)"},
    {"Rotate", 8, "frmedit.Command7"_c, 0, "(Enter center of rotation:)"},
    {"Scale", 9, "frmedit.Command9"_c, 0, "(Enter reference point:)"},
    {"Fillet", 11, "frmedit.Command11"_c, 1, "(Enter new radius (6) or click near inside of radius:"},
};

inline constexpr int changeRow = 10;
inline constexpr int emptyRow = 12;
inline constexpr int deleteRow = 13;

// A desk with a level line from (1000, 1000) to (1400, 1000) in slot 1, and the selection functions at hand.
struct EditsDesk : Desk {
    EditsDesk() { drawLine(1000, 1000, 1400, 1000); }

    std::int32_t add(Kind kind, Stat stat = Stat::on)
    {
        constexpr Point other{1100, 1200};
        EntityRecord r = record(kind, {1000, 1200}, other, other, other, other);
        r.rad = 50;
        r.a2 = 1;
        return draw(ofLooks(r, 0x00FF00, 2, 3), stat);
    }

    void selectAll()
    {
        press("Command19"_c);
        click(0, 0);
        click(4800, 3200);
    }
    void pick(int row) { shell.clickRow(list, row); }
    // Right click on the selection, then a button of the form.
    void pressEdit(ControlId button)
    {
        cancel();
        press(button);
    }
    void start(const char* name)
    {
        for (const EditFunction& function : editFunctions) {
            if (std::string_view(function.name) == name) pick(function.row);
        }
    }
    void startChange()
    {
        selectAll();
        pick(changeRow);
    }
    void undo() { press("undu"_c); }
    void redo() { press("redu"_c); }

    const std::vector<std::string>& rows() const { return Desk::rows(list); }
    const std::string& mode() const { return caption("Label3"_c); }
    fake::Ops picture()
    {
        ops();
        shell.redraw();
        return fake::marks(ops());
    }
};

} // namespace mirtane::fake
