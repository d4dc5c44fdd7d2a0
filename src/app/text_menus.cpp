#include "app/text_menus.h"

#include "app/attribute_controls.h"
#include "app/endings.h"
#include "app/selection.h"
#include "app/starters.h"
#include "commands/kept_letters.h"
#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "render/redraw.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr std::string_view fontForTexts = "Select Font";
constexpr std::string_view fontForSelection = "Change Selected Font";

template <std::int16_t style> void setArrowStyle(Session& s)
{
    s.dimStyle = style;
}

template <int part> void setTolerance(Session& s)
{
    s.dimTol = 1.0F / part;
}

template <std::int16_t just> void setJustification(Session& s)
{
    s.textJust = just;
}

template <std::int16_t format> void setAngleFormat(Session& s)
{
    s.angFormat = format;
}

void setNumbers(Session& s, const char* style, std::int16_t comma)
{
    s.numStyle = style;
    s.numComma = comma;
}

struct MenuRow {
    ControlId menu;
    void (*set)(Session& s);
};

// The numbers of arrows and justifications run against the order of their menus.
constexpr MenuRow menuRows[] = {
    {"num1"_c, [](Session& s) { setNumbers(s, "us", 0); }},
    {"num2"_c, [](Session& s) { setNumbers(s, "2f", 0); }},
    {"num3"_c, [](Session& s) { setNumbers(s, "3i", 0); }},
    {"num4"_c, [](Session& s) { setNumbers(s, "br", 0); }},
    {"num5"_c, [](Session& s) { setNumbers(s, "br", 1); }},
    {"ang1"_c, setAngleFormat<0>},
    {"ang2"_c, setAngleFormat<1>},
    {"dim3"_c, setArrowStyle<3>},
    {"dim4"_c, setArrowStyle<2>},
    {"dim5"_c, setArrowStyle<1>},
    {"dtol2"_c, setTolerance<4>},
    {"dtol3"_c, setTolerance<8>},
    {"dtol4"_c, setTolerance<16>},
    {"dtol5"_c, setTolerance<32>},
    {"dtol6"_c, setTolerance<64>},
    {"tk7"_c, setJustification<0>},
    {"tk8"_c, setJustification<2>},
    {"tk9"_c, setJustification<1>},
};

void showFonts(App& app, std::string_view caption)
{
    Control& list = app.s.controls["List1"_c];
    app.s.controls["Label3"_c].caption = caption;
    list.rows =
        app.ports.fonts == nullptr ? std::vector<std::string>{app.s.textFont} : app.ports.fonts->names();
    list.row = -1;
}

bool holdsWords(std::int16_t kind)
{
    return kind >= kind::text && kind <= kind::lastDrawn;
}

void changeSelectedFont(App& app, const std::string& font)
{
    Session& s = app.s;
    endWhatIsBegun(s, app.pic1);
    const auto rule = [&](EntityRecord r) {
        r.t2 = font;
        if (r.kind == kind::text) r.style = 0;
        return r;
    };
    if (countWithStat(s.store, Stat::sel) > 0) { // it may have gone while the list was shown
        runOnSelection(s, Sources::goOut, rule, holdsWords);
        endRun(s, app.pic1);
    }
    showEditFunctions(s);
}

} // namespace

void takeAttribute(App& app, ControlId menu)
{
    const auto* const row = std::ranges::find(menuRows, menu, &MenuRow::menu);
    if (row == std::end(menuRows)) return;
    row->set(app.s);
    showCheckMarks(app.s);
}

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
    showFonts(app, fontForTexts);
}

void listFontsForSelection(App& app, ControlId)
{
    Session& s = app.s;
    if (countWithStat(s.store, Stat::sel) == 0) {
        setText(s.controls["entry"_c], "Nothing selected!");
        return;
    }
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (s.store.stat[at] == Stat::sel && !holdsWords(s.store.kind[at])) s.store.stat[at] = Stat::on;
    }
    redrawAll(s, app.pic1);
    showFonts(app, fontForSelection);
}

void showFontSample(App& app, int row)
{
    Session& s = app.s;
    s.controls["setts"_c].font =
        s.controls["List1"_c].rows[static_cast<std::size_t>(row)]; // the shell checks rows
}

void fontEntered(App& app)
{
    Session& s = app.s;
    const Control& list = s.controls["List1"_c];
    const std::string mode = s.controls["Label3"_c].caption;
    if (list.row < 0 || list.row >= std::ssize(list.rows)) return;
    const std::string font = list.rows[static_cast<std::size_t>(list.row)]; // not negative, tested above
    if (refusesText(s.controls, font)) return;
    s.controls.focus = "pic1"_c;
    if (mode == fontForTexts) {
        s.textFont = font;
        s.controls["setts"_c].font = font;
        app.pic1.setFontName(font);
    } else if (mode == fontForSelection) {
        changeSelectedFont(app, font);
    }
}

} // namespace mirtane
