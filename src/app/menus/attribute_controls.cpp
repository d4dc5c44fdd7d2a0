#include "app/menus/attribute_controls.h"

#include "model/attribute_rows.h"
#include "tables/pens.h"

namespace mirtane {

void showCheckMarks(Session& s)
{
    markChoices(s.controls, s);
}

void showLineSettings(Session& s)
{
    Control& setts = s.controls[ids::lineSettings];
    setts.color = s.curColor;
    setts.font = s.textFont;
    for (const LineStyle& row : lineStyles) {
        if (row.style == s.curStyle) setText(setts, std::string(row.entry.row().caption));
    }
}

void showLayers(Session& s)
{
    s.controls[ids::selectionList].rows = s.layerTable.rows();
    s.controls[ids::selectionList].row = -1;
    showWorkingLayer(s);
}

void showWorkingLayer(Session& s)
{
    if (const Layer* working = s.layerTable.find(s.workLayer))
        setText(s.controls[ids::layerCombo], working->row());
}

void takeAttribute(App& app, ControlId menu)
{
    choose(app.s, menu);
    showCheckMarks(app.s);
}

void takeLineColor(App& app, ControlId menu)
{
    choose(app.s, menu);
    showLineSettings(app.s);
    app.pic1.refresh();
    app.s.controls.focus = ids::drawing;
}

void takeLineStyle(App& app, ControlId menu)
{
    choose(app.s, menu);
    showLineSettings(app.s);
    showCheckMarks(app.s);
    app.s.controls.focus = ids::drawing;
}

} // namespace mirtane
