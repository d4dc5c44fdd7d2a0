#include "app/layer_menus.h"

#include "app/attribute_controls.h"
#include "app/file_menus.h"
#include "app/typed_entry.h"
#include "commands/kept_letters.h"
#include "geometry/fault.h"
#include "render/redraw.h"

#include <algorithm>

namespace mirtane {
namespace {

struct MenuRow {
    ControlId menu;
    std::string_view caption; // of Label3
};

constexpr MenuRow menuRows[] = {
    {"ly3"_c, "Set Working Layer"}, {"ly7"_c, "Hide/Display Layer"}, {"ly9"_c, "Name Layer"},
    {"ly9a"_c, "Un-name Layer"},    {"ly13"_c, "Load Layer"},        {"ly15"_c, "Save Layer"},
};

// The modes in which hiding or displaying all shows in the list.
constexpr std::string_view listedModes[] = {"Set Working Layer", "Hide/Display Layer", "Name Layer",
                                            "Load Layer", "Save Layer"};

std::string& mode(Session& s)
{
    return s.controls["Label3"_c].caption;
}

void fillList(Session& s)
{
    s.controls["List1"_c].rows = s.layerTable.rows();
    s.controls["List1"_c].row = -1;
}

// Every slot of a layer, whatever its kind, that is not deleted.
void turnLayer(EntityStore& store, std::int32_t layer, Stat to)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.layer[at] == layer && store.stat[at] != Stat::out) store.stat[at] = to;
    }
}

void turnOtherLayers(Session& s, std::string_view shown, Stat to)
{
    // One row past the last is set too, which is the next that a new layer takes.
    for (std::int32_t i = 0; i <= s.layerTable.layerCount; ++i) {
        Layer* row = s.layerTable.find(i);
        if (row != nullptr && i != s.workLayer) row->layerShown = shown;
    }
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const bool turns = to == Stat::off ? s.store.isShown(i) : s.store.stat[at] == Stat::off;
        if (turns && s.store.layer[at] != s.workLayer) s.store.stat[at] = to;
    }
}

void showAfterAll(App& app)
{
    if (std::ranges::find(listedModes, mode(app.s)) != std::end(listedModes)) fillList(app.s);
    redrawAll(app.s, app.pic1);
}

// A name goes into the drawing as a slot of its own. It is no object: nothing is logged or gauged.
void writeLayerName(Session& s, std::int32_t layer, const std::string& name)
{
    EntityRecord r = s.store.record(s.store.entCount);
    r.kind = kind::layerName;
    keep(r.p1.x, layer + layer::nameOffset);
    r.t1 = name;
    s.store.setRecord(s.store.entCount, r);
    s.store.setStat(s.store.entCount, Stat::on);
    ++s.store.entCount;
}

void nameLayer(Session& s, const std::string& name)
{
    if (name.empty()) return;
    if (Layer* row = s.layerTable.find(s.chosenLayer)) row->layerName = name;
    writeLayerName(s, s.chosenLayer, name);
    showLayers(s);
    s.controls.focus = "pic1"_c;
}

void addLayer(Session& s, const std::string& name)
{
    mode(s) = "Set Working Layer";
    const std::int32_t number = s.layerTable.layerCount;
    if (!name.empty() && number < LayerTable::rowLimit) {
        Layer& row = *s.layerTable.find(number); // below the limit, tested above
        const std::string used = row.layerUsed;
        s.layerTable.resetRow(number, s.workLayer);
        if (number == s.workLayer) row.layerUsed = used; // after a file whose layers end below it
        row.layerName = name;
        ++s.layerTable.layerCount;
        writeLayerName(s, number, name);
    }
    showLayers(s);
    s.controls.focus = "pic1"_c;
}

void layerNameEntered(Session& s)
{
    const std::string name = s.controls["Combo3"_c].text;
    if (mode(s) == "Name Layer") return nameLayer(s, name);
    if (mode(s) == "Add Layer") addLayer(s, name);
}

bool isEmptyLayer(const EntityStore& store, int r)
{
    const auto first = store.layer.begin() + 1;
    return std::find(first, store.layer.begin() + store.end(), r) == store.layer.begin() + store.end();
}

} // namespace

void showLayerList(App& app, ControlId menu)
{
    for (const MenuRow& row : menuRows) {
        if (row.menu == menu) mode(app.s) = row.caption;
    }
    fillList(app.s);
}

void addLayerMenu(App& app, ControlId)
{
    mode(app.s) = "Add Layer";
    setText(app.s.controls["Combo3"_c], "");
    app.s.controls.focus = "Combo3"_c;
}

void hideAllLayers(App& app, ControlId)
{
    turnOtherLayers(app.s, layer::hidden, Stat::off);
    showAfterAll(app);
}

void displayAllLayers(App& app, ControlId)
{
    turnOtherLayers(app.s, layer::on, Stat::on);
    showAfterAll(app);
}

void setWorkingLayer(App& app, int r)
{
    Session& s = app.s;
    if (Layer* old = s.layerTable.find(s.workLayer)) old->layerShown = layer::on;
    if (Layer* row = s.layerTable.find(r)) row->layerShown = layer::working;
    s.workLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    showLayers(s);
    turnLayer(s.store, r, Stat::on);
    redrawAll(s, app.pic1);
    s.controls.focus = "pic1"_c;
}

void hideOrDisplayLayer(App& app, int r)
{
    Session& s = app.s;
    s.controls.focus = "pic1"_c;
    Layer* row = s.layerTable.find(r);
    if (row == nullptr || r == s.workLayer) return;
    const bool hides = row->layerShown == layer::on;
    row->layerShown = hides ? layer::hidden : layer::on;
    turnLayer(s.store, r, hides ? Stat::off : Stat::on);
    fillList(s);
    redrawAll(s, app.pic1);
}

void chooseLayerToName(App& app, int r)
{
    Session& s = app.s;
    s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    Control& box = s.controls["Combo3"_c];
    setSelectedText(box, box.text);
    s.controls.focus = "Combo3"_c;
}

void unnameLayer(App& app, int r)
{
    Session& s = app.s;
    if (Layer* row = s.layerTable.find(r)) row->layerName = std::to_string(row->layerNumber);
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const bool names = s.store.kind[at] == kind::layerName && s.store.p1[at].x == r + layer::nameOffset;
        if (names) s.store.stat[at] = Stat::out;
    }
    showLayers(s);
}

void loadLayer(App& app, int r)
{
    app.s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    openNamedFlow(app, "Load Layer", "");
}

void saveLayer(App& app, int r)
{
    if (isEmptyLayer(app.s.store, r)) return;
    app.s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    openNamedFlow(app, "Save Layer", app.s.layerTable.find(r)->layerName + ".mtd");
}

void layerNameKeyPress(App& app, char32_t code)
{
    if (code == enterKey) return layerNameEntered(app.s);
    if (!refusesLetter(app.s.controls, code)) passKey(app.s.controls["Combo3"_c], code);
}

} // namespace mirtane
