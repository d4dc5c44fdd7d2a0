#include "app/filter_dialog.h"

#include "commands/prompt.h"
#include "edit/change.h"
#include "render/redraw.h"

#include <string_view>

namespace mirtane {
namespace {

constexpr std::string_view filterTitle = "Filter Settings";
constexpr std::string_view changeTitle = "Change Properties";
constexpr std::string_view anyValue = "All";
constexpr ControlId boxes[] = {"frmfilter.Text1"_c, "frmfilter.Text2"_c, "frmfilter.Text3"_c,
                               "frmfilter.Text4"_c};

struct ValueRow {
    ControlId menu;
    std::int32_t value;
};

constexpr ValueRow kindRows[] = {
    {"frmfilter.ob5"_c, 1}, {"frmfilter.ob6"_c, 2},  {"frmfilter.ob7"_c, 3},  {"frmfilter.ob8"_c, 4},
    {"frmfilter.ob9"_c, 5}, {"frmfilter.ob10"_c, 6}, {"frmfilter.ob11"_c, 7},
};
constexpr ValueRow colorRows[] = {
    {"frmfilter.cu5"_c, 0xFF0000},  {"frmfilter.cu6"_c, 0x00FF00},  {"frmfilter.cu7"_c, 0xFFFF00},
    {"frmfilter.cu8"_c, 0x0000FF},  {"frmfilter.cu9"_c, 0xFF00FF},  {"frmfilter.cu10"_c, 0x0080FF},
    {"frmfilter.cu11"_c, 0x00FFFF}, {"frmfilter.cu12"_c, 0xFFFFFF},
};
constexpr ValueRow styleRows[] = {
    {"frmfilter.st5"_c, 0}, {"frmfilter.st6"_c, 1}, {"frmfilter.st7"_c, 2},
    {"frmfilter.st8"_c, 3}, {"frmfilter.st9"_c, 4},
};

template <std::size_t count> std::int32_t valueOf(const ValueRow (&rows)[count], ControlId menu)
{
    for (const ValueRow& row : rows) {
        if (row.menu == menu) return row.value;
    }
    return 0;
}

void showIn(Session& s, ControlId box, ControlId menu)
{
    setText(s.controls[box], std::string(menu.row().caption));
}

void resetCriteria(Session& s)
{
    static_cast<FilterValues&>(s) = FilterValues{}; // the base alone
    for (const ControlId box : boxes) setText(s.controls[box], std::string(anyValue));
    s.controls["frmfilter.Text3"_c].color = s.controls["frmfilter.List1"_c].color;
}

void showDialog(Session& s, std::string_view title)
{
    s.controls["frmfilter"_c].caption = title;
    s.controls["frmfilter.List1"_c].rows = s.layerTable.rows();
    s.controls["frmfilter.List1"_c].row = -1;
    s.controls["frmfilter"_c].visible = true;
    s.controls.focus = "frmfilter.List1"_c;
}

void hideDialog(Session& s)
{
    s.controls["frmfilter"_c].visible = false;
    s.controls.focus = "pic1"_c;
}

bool isChange(const Session& s)
{
    return s.controls["frmfilter"_c].caption == changeTitle;
}

// The boxes alone decide what changes: a criterion whose box reads "All" again counts for nothing here.
Changes chosenChanges(const Session& s)
{
    const auto isChosen = [&](ControlId box) { return s.controls[box].text != anyValue; };
    Changes changes;
    if (isChosen("frmfilter.Text1"_c)) changes.layer = s.filterLayer;
    if (isChosen("frmfilter.Text3"_c)) changes.color = s.filterColor;
    if (isChosen("frmfilter.Text4"_c)) changes.style = s.filterStyle;
    return changes;
}

void giveUpChange(Session& s, Canvas& pic1)
{
    changeStat(s.store, Stat::sel, Stat::on);
    s.editPending = 0;
    s.curFunc = s.baseFunc;
    s.stepNo = 0;
    setPrompt(s, pic1);
    redrawAll(s, pic1);
}

} // namespace

void showFilterDialog(App& app, ControlId)
{
    if (app.s.controls["frmfilter"_c].visible && isChange(app.s)) return; // the one dialog is taken
    showDialog(app.s, filterTitle);
}

void showChangeDialog(App& app)
{
    resetCriteria(app.s);
    showDialog(app.s, changeTitle);
}

void closeChangeDialog(Session& s)
{
    if (!s.controls["frmfilter"_c].visible || !isChange(s)) return;
    resetCriteria(s);
    hideDialog(s);
}

void takeFilterKind(App& app, ControlId menu)
{
    app.s.filterKind = static_cast<std::int16_t>(valueOf(kindRows, menu)); // 1 to 7
    showIn(app.s, "frmfilter.Text2"_c, menu);
}

void takeFilterColor(App& app, ControlId menu)
{
    app.s.filterColor = valueOf(colorRows, menu);
    app.s.controls["frmfilter.Text3"_c].color = app.s.filterColor;
    showIn(app.s, "frmfilter.Text3"_c, menu);
}

void takeFilterStyle(App& app, ControlId menu)
{
    app.s.filterStyle = static_cast<std::int16_t>(valueOf(styleRows, menu)); // 0 to 4
    showIn(app.s, "frmfilter.Text4"_c, menu);
}

void chooseFilterLayer(App& app, int row)
{
    Session& s = app.s;
    const std::string& text =
        s.controls["frmfilter.List1"_c].rows[static_cast<std::size_t>(row)]; // the shell checks
    setText(s.controls["frmfilter.Text1"_c], text);
    s.filterLayer = static_cast<std::int16_t>(row); // the table has 1,000 rows
}

// The criterion itself stays: only the box forgets it.
void showAllInBox(App& app, ControlId box)
{
    Session& s = app.s;
    setText(s.controls[box], std::string(anyValue));
    if (box == "frmfilter.Text3"_c) s.controls[box].color = s.controls["frmfilter.List1"_c].color;
    s.controls.focus = "frmfilter.List1"_c;
}

void resetFilter(App& app, ControlId)
{
    resetCriteria(app.s);
}

void acceptFilter(App& app, ControlId)
{
    Session& s = app.s;
    if (isChange(s)) {
        s.editPending = 0;
        changeSelection(s, app.pic1, chosenChanges(s));
        resetCriteria(s);
    }
    hideDialog(s);
}

void cancelFilter(App& app, ControlId)
{
    if (isChange(app.s)) giveUpChange(app.s, app.pic1);
    resetCriteria(app.s);
    hideDialog(app.s);
}

} // namespace mirtane
