#include "app/menus/layer_menus.h"

#include "app/menus/attribute_controls.h"
#include "app/menus/file_menus.h"
#include "app/typing/keys.h"
#include "commands/kept_letters.h"
#include "commands/live_text.h"
#include "geometry/fault.h"
#include "model/room.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

#include <algorithm>

namespace mirtane {
namespace {

struct MenuRow {
    ControlId menu;
    std::string_view caption; // of listMode
};

constexpr MenuRow menuRows[] = {
    {ids::setWorkingLayer, list_mode::setWorkingLayer},
    {ids::hideDisplayLayer, list_mode::hideDisplayLayer},
    {ids::nameLayer, list_mode::nameLayer},
    {ids::unnameLayer, list_mode::unnameLayer},
    {ids::loadLayer, list_mode::loadLayer},
    {ids::saveLayer, list_mode::saveLayer},
};

// The modes in which hiding or displaying all shows in the list.
constexpr std::string_view listedModes[] = {list_mode::setWorkingLayer, list_mode::hideDisplayLayer,
                                            list_mode::nameLayer, list_mode::loadLayer, list_mode::saveLayer};

std::string& mode(Controls& controls)
{
    return controls[ids::listMode].caption;
}

void fillList(Session& s)
{
    s.controls[ids::selectionList].rows = s.layerTable.rows();
    s.controls[ids::selectionList].row = -1;
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
    if (std::ranges::find(listedModes, mode(app.s.controls)) != std::end(listedModes)) fillList(app.s);
    redrawAll(app.s, app.pic1);
    repaintTextPreview(app.s, app.pic1);
}

// A name goes into the drawing as a slot of its own. It is no object: nothing is logged or gauged.
void writeLayerName(EntityStore& store, std::int32_t layer, const std::string& name)
{
    EntityRecord r = store.record(store.entCount);
    r.kind = layerNameKind;
    keep(r.p1.x, layer + layer::nameOffset);
    r.t1 = name;
    store.setRecord(store.entCount, r);
    store.setStat(store.entCount, Stat::on);
    ++store.entCount;
}

void nameLayer(Session& s, const std::string& name)
{
    if (name.empty() || !hasRoomFor(s, 1)) return;
    if (Layer* row = s.layerTable.find(s.chosenLayer)) row->layerName = name;
    writeLayerName(s.store, s.chosenLayer, name);
    showLayers(s);
    s.controls.focus = ids::drawing;
}

void addLayer(Session& s, const std::string& name)
{
    mode(s.controls) = list_mode::setWorkingLayer;
    const std::int32_t number = s.layerTable.layerCount;
    if (!name.empty() && number < LayerTable::rowLimit && hasRoomFor(s, 1)) {
        Layer& row = *s.layerTable.find(number); // below the limit, tested above
        const std::string used = row.layerUsed;
        s.layerTable.resetRow(number, s.workLayer);
        if (number == s.workLayer) row.layerUsed = used; // after a file whose layers end below it
        row.layerName = name;
        ++s.layerTable.layerCount;
        writeLayerName(s.store, number, name);
    }
    showLayers(s);
    s.controls.focus = ids::drawing;
}

void layerNameEntered(Session& s)
{
    const std::string name = s.controls[ids::layerCombo].text;
    if (mode(s.controls) == list_mode::nameLayer) return nameLayer(s, name);
    if (mode(s.controls) == list_mode::addLayer) addLayer(s, name);
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
        if (row.menu == menu) mode(app.s.controls) = row.caption;
    }
    fillList(app.s);
}

void addLayerMenu(App& app, ControlId)
{
    mode(app.s.controls) = list_mode::addLayer;
    setText(app.s.controls[ids::layerCombo], "");
    app.s.controls.focus = ids::layerCombo;
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
    repaintTextPreview(s, app.pic1);
    s.controls.focus = ids::drawing;
}

void hideOrDisplayLayer(App& app, int r)
{
    Session& s = app.s;
    s.controls.focus = ids::drawing;
    Layer* row = s.layerTable.find(r);
    if (row == nullptr || r == s.workLayer) return;
    const bool hides = row->layerShown == layer::on;
    row->layerShown = hides ? layer::hidden : layer::on;
    turnLayer(s.store, r, hides ? Stat::off : Stat::on);
    fillList(s);
    redrawAll(s, app.pic1);
    repaintTextPreview(s, app.pic1);
}

void chooseLayerToName(App& app, int r)
{
    Session& s = app.s;
    s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    Control& box = s.controls[ids::layerCombo];
    setSelectedText(box, box.text);
    s.controls.focus = ids::layerCombo;
}

void unnameLayer(App& app, int r)
{
    Session& s = app.s;
    if (Layer* row = s.layerTable.find(r)) row->layerName = std::to_string(row->layerNumber);
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const bool names = s.store.kind[at] == layerNameKind && s.store.p1[at].x == r + layer::nameOffset;
        if (names) s.store.stat[at] = Stat::out;
    }
    showLayers(s);
}

void loadLayer(App& app, int r)
{
    app.s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    openNamedFlow(app, list_mode::loadLayer, "");
}

void saveLayer(App& app, int r)
{
    if (isEmptyLayer(app.s.store, r)) return;
    app.s.chosenLayer = static_cast<std::int16_t>(r); // a row of the table, below 1,000
    openNamedFlow(app, list_mode::saveLayer, app.s.layerTable.find(r)->layerName + ".mtd");
}

void layerNameKeyPress(App& app, char32_t code)
{
    if (code == enterKey) return layerNameEntered(app.s);
    if (!refusesLetter(app.s.controls, code)) passKey(app.s.controls[ids::layerCombo], code);
}

} // namespace mirtane
