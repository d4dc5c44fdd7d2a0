#include "app/menus/text_menus.h"

#include "app/drawing/endings.h"
#include "app/drawing/selection.h"
#include "app/drawing/starters.h"
#include "app/menus/attribute_controls.h"
#include "commands/kept_letters.h"
#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

namespace mirtane {
namespace {

void showFonts(App& app, std::string_view caption)
{
    Control& list = app.s.controls[ids::selectionList];
    app.s.controls[ids::listMode].caption = caption;
    list.rows =
        app.ports.fonts == nullptr ? std::vector<std::string>{app.s.textFont} : app.ports.fonts->names();
    list.row = -1;
}

// False if there is no room for the texts anew.
bool changeSelectedFont(App& app, const std::string& font)
{
    Session& s = app.s;
    if (hasSelection(s) && !hasRoomFor(s, countSelected(s.store, hasWords))) return false;
    endWhatIsBegun(s, app.pic1);
    const auto rule = [&](EntityRecord r) {
        r.t2 = font;
        if (r.kind == Kind::text) r.style = 0;
        return r;
    };
    if (countWithStat(s.store, Stat::sel) > 0) { // it may have gone while the list was shown
        if (runOnSelection(s, Sources::goOut, rule, hasWords)) endRun(s, app.pic1);
    }
    showEditFunctions(s.controls);
    return true;
}

} // namespace

void toggleCheckMark(App& app, ControlId menu)
{
    app.s.controls[menu].checked = !app.s.controls[menu].checked;
}

void startWhenIdle(App& app, ControlId menu)
{
    if (app.s.stepNo < 1) startFromControl(app, menu);
}

void listFonts(App& app, ControlId)
{
    showFonts(app, list_mode::selectFont);
}

void listFontsForSelection(App& app, ControlId)
{
    Session& s = app.s;
    if (!hasSelection(s)) {
        setText(s.controls[ids::entry], "Nothing selected!");
        return;
    }
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (s.store.stat[at] == Stat::sel && !hasWords(s.store.kind[at])) s.store.stat[at] = Stat::on;
    }
    redrawAll(s, app.pic1);
    showFonts(app, list_mode::changeSelectedFont);
}

void showFontSample(App& app, int row)
{
    Session& s = app.s;
    s.controls[ids::lineSettings].font =
        s.controls[ids::selectionList].rows[static_cast<std::size_t>(row)]; // the shell checks rows
}

void fontEntered(App& app)
{
    Session& s = app.s;
    const Control& list = s.controls[ids::selectionList];
    const std::string mode = s.controls[ids::listMode].caption;
    if (list.row < 0 || list.row >= std::ssize(list.rows)) return;
    const std::string font = list.rows[static_cast<std::size_t>(list.row)]; // not negative, tested above
    if (refusesText(s.controls, font)) return;
    if (mode == list_mode::changeSelectedFont && !changeSelectedFont(app, font)) return;
    s.controls.focus = ids::drawing;
    if (mode == list_mode::selectFont) {
        s.textFont = font;
        s.controls[ids::lineSettings].font = font;
        app.pic1.setFontName(font);
    }
}

} // namespace mirtane
