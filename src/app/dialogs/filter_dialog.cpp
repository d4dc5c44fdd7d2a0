#include "app/dialogs/filter_dialog.h"

#include "commands/prompt.h"
#include "edit/change.h"
#include "render/redraw.h"
#include "tables/kind.h"
#include "tables/list_modes.h"
#include "tables/pens.h"

#include <algorithm>
#include <string_view>

namespace mirtane {
namespace {

constexpr std::string_view filterTitle = "Filter Settings";
constexpr std::string_view anyValue = "All";
constexpr ControlId boxes[] = {ids::layerSetting, ids::objectSetting, ids::colorSetting, ids::styleSetting};

struct KindEntry {
    ControlId menu;
    Kind kind{};
};

// The last stands for every dimension.
constexpr KindEntry kindEntries[] = {
    {ids::filterLine, Kind::line},
    {ids::filterCircle, Kind::circle},
    {ids::filterArc, Kind::arc},
    {ids::filterEllipse, Kind::ellipse},
    {ids::filterPoint, Kind::point},
    {ids::filterText, Kind::text},
    {ids::filterDimension, Kind::linearDimension},
};

void showIn(Controls& controls, ControlId box, ControlId menu)
{
    setText(controls[box], std::string(menu.row().caption));
}

void resetCriteria(Session& s)
{
    static_cast<FilterValues&>(s) = FilterValues{}; // the base alone
    for (const ControlId box : boxes) setText(s.controls[box], std::string(anyValue));
    s.controls[ids::colorSetting].color = s.controls[ids::filterLayerList].color;
}

void showDialog(Session& s, std::string_view title)
{
    s.controls[ids::filterForm].caption = title;
    s.controls[ids::filterLayerList].rows = s.layerTable.rows();
    s.controls[ids::filterLayerList].row = -1;
    s.controls[ids::filterForm].visible = true;
    s.controls.focus = ids::filterLayerList;
}

bool isChange(const Controls& controls)
{
    return controls[ids::filterForm].caption == list_mode::changeProperties;
}

// The boxes alone decide what changes: a criterion whose box reads "All" again counts for nothing here.
Changes chosenChanges(const Session& s)
{
    const auto isChosen = [&](ControlId box) { return s.controls[box].text != anyValue; };
    Changes changes;
    if (isChosen(ids::layerSetting)) changes.layer = s.filterLayer;
    if (isChosen(ids::colorSetting)) changes.color = s.filterColor;
    if (isChosen(ids::styleSetting)) changes.style = s.filterStyle;
    return changes;
}

void giveUpChange(Session& s, Canvas& pic1)
{
    changeStat(s.store, Stat::sel, Stat::on);
    s.editPending = 0;
    returnToBase(s);
    setPrompt(s, pic1);
    redrawAll(s, pic1);
}

} // namespace

void showFilterDialog(App& app, ControlId)
{
    if (app.s.controls[ids::filterForm].visible && isChange(app.s.controls))
        return; // the one dialog is taken
    showDialog(app.s, filterTitle);
}

void showChangeDialog(App& app)
{
    resetCriteria(app.s);
    showDialog(app.s, list_mode::changeProperties);
}

void closeChangeDialog(Session& s)
{
    if (!s.controls[ids::filterForm].visible || !isChange(s.controls)) return;
    resetCriteria(s);
    leaveForm(s.controls, ids::filterForm);
}

void takeFilterKind(App& app, ControlId menu)
{
    const auto* const found = std::ranges::find(kindEntries, menu, &KindEntry::menu);
    if (found != std::end(kindEntries)) app.s.filterKind = numberOf(found->kind);
    showIn(app.s.controls, ids::objectSetting, menu);
}

void takeFilterColor(App& app, ControlId menu)
{
    const auto* const found = std::ranges::find(pens, menu, &Pen::filterEntry);
    if (found != std::end(pens)) app.s.filterColor = found->color;
    app.s.controls[ids::colorSetting].color = app.s.filterColor;
    showIn(app.s.controls, ids::colorSetting, menu);
}

void takeFilterStyle(App& app, ControlId menu)
{
    const auto* const found = std::ranges::find(lineStyles, menu, &LineStyle::filterEntry);
    if (found != std::end(lineStyles)) app.s.filterStyle = found->style;
    showIn(app.s.controls, ids::styleSetting, menu);
}

void chooseFilterLayer(App& app, int row)
{
    Session& s = app.s;
    const std::string& text =
        s.controls[ids::filterLayerList].rows[static_cast<std::size_t>(row)]; // the shell checks
    setText(s.controls[ids::layerSetting], text);
    s.filterLayer = static_cast<std::int16_t>(row); // the table has 1,000 rows
}

// The criterion itself stays: only the box forgets it.
void showAllInBox(App& app, ControlId box)
{
    Session& s = app.s;
    setText(s.controls[box], std::string(anyValue));
    if (box == ids::colorSetting) s.controls[box].color = s.controls[ids::filterLayerList].color;
    s.controls.focus = ids::filterLayerList;
}

void resetFilter(App& app, ControlId)
{
    resetCriteria(app.s);
}

void acceptFilter(App& app, ControlId)
{
    Session& s = app.s;
    if (isChange(s.controls)) {
        if (!changeSelection(s, app.pic1, chosenChanges(s))) return; // the dialog stays up
        resetCriteria(s);
    }
    leaveForm(s.controls, ids::filterForm);
}

void cancelFilter(App& app, ControlId)
{
    if (isChange(app.s.controls)) giveUpChange(app.s, app.pic1);
    resetCriteria(app.s);
    leaveForm(app.s.controls, ids::filterForm);
}

} // namespace mirtane
