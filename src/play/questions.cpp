#include "play/questions.h"

#include "play/control_values.h"
#include "play/json_text.h"
#include "play/session_values.h"

#include <algorithm>

namespace mirtane::play {
namespace {

std::string getControl(const Controls& controls, std::string_view name)
{
    ControlId id;
    if (findControl(name, id)) return controlValues(controls, id);
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos) throw Refusal{"no such control: " + std::string(name)};
    const auto value = controlValue(controls, controlNamed(name.substr(0, dot)), name.substr(dot + 1));
    if (!value) throw Refusal{"the control has no such value: " + std::string(name)};
    return *value;
}

std::string getAnswer(Stage& stage, Words& words)
{
    constexpr std::string_view prefix = "session.";
    const Session& s = stage.shell.session();
    const std::string_view name = words.word();
    if (!name.starts_with(prefix)) return getControl(s.controls, name);
    const auto value = sessionValue(s, name.substr(prefix.size()));
    if (!value) throw Refusal{"no such value: " + std::string(name)};
    return *value;
}

std::string slotObject(const EntityStore& store, std::int32_t slot)
{
    const EntityRecord r = store.record(slot);
    const std::size_t at = EntityStore::at(slot);
    return jsonObject({{"slot", json(slot)},
                       {"x1", json(r.p1.x)},
                       {"y1", json(r.p1.y)},
                       {"x2", json(r.p2.x)},
                       {"y2", json(r.p2.y)},
                       {"x3", json(r.p3.x)},
                       {"y3", json(r.p3.y)},
                       {"x4", json(r.p4.x)},
                       {"y4", json(r.p4.y)},
                       {"x5", json(r.p5.x)},
                       {"y5", json(r.p5.y)},
                       {"s1", json(r.s1)},
                       {"s2", json(r.s2)},
                       {"rad", json(r.rad)},
                       {"a1", json(r.a1)},
                       {"a2", json(r.a2)},
                       {"a3", json(r.a3)},
                       {"color", json(r.color)},
                       {"layer", json(r.layer)},
                       {"style", json(r.style)},
                       {"kind", json(numberOf(r.kind))},
                       {"t1", json(r.t1)},
                       {"t2", json(r.t2)},
                       {"stat", json(store.stat[at])},
                       {"ownerName", json(store.ownerName[at])},
                       {"dxfTag", json(store.dxfTag[at])}});
}

std::string slotAnswer(Stage& stage, Words& words)
{
    const int slot = words.whole();
    if (!EntityStore::holds(slot)) throw Refusal{"no such slot: " + std::to_string(slot)};
    return slotObject(stage.shell.session().store, slot);
}

std::string slotsAnswer(Stage& stage, Words&)
{
    const EntityStore& store = stage.shell.session().store;
    std::vector<std::string> objects;
    for (std::int32_t i = 1; i < store.end(); ++i) objects.push_back(slotObject(store, i));
    return jsonArray(objects);
}

std::string layersAnswer(Stage& stage, Words&)
{
    const LayerTable& table = stage.shell.session().layerTable;
    std::vector<std::string> rows;
    for (std::int32_t i = 0; i < std::min(table.layerCount, LayerTable::rowLimit); ++i) {
        const Layer& row = *table.find(i);
        rows.push_back(jsonObject({{"number", json(row.layerNumber)},
                                   {"name", json(row.layerName)},
                                   {"used", json(row.layerUsed)},
                                   {"shown", json(row.layerShown)}}));
    }
    return jsonArray(rows);
}

std::string undoLogAnswer(Stage& stage, Words&)
{
    const UndoLog& log = stage.shell.session().log;
    std::vector<std::string> records;
    for (std::int32_t i = 0; i < log.undoLogCount; ++i) {
        const std::size_t at = EntityStore::at(i);
        records.push_back(jsonArray({json(log.logSlot[at]), json(log.logStat[at]), json(log.logGroup[at])}));
    }
    return jsonArray(records);
}

std::string opArray(const CanvasOp& op)
{
    std::vector<std::string> elements = {json(op.name)};
    for (std::size_t i = 0; i < op.count; ++i) {
        elements.push_back(std::visit([](auto value) { return json(value); }, op.args[i]));
    }
    if (op.hasText) elements.push_back(json(op.text));
    return jsonArray(elements);
}

std::string opsAnswer(Stage& stage, Words&)
{
    std::vector<std::string> ops;
    stage.pic1.takeOps([&](const CanvasOp& op) { ops.push_back(opArray(op)); });
    return jsonArray(ops);
}

std::string printOpArray(const PrintOp& op)
{
    std::vector<std::string> elements = {json(op.name)};
    for (const PrintOp::Arg& arg : op.args) {
        elements.push_back(std::visit([](const auto& value) { return json(value); }, arg));
    }
    return jsonArray(elements);
}

std::string printedAnswer(Stage& stage, Words&)
{
    std::vector<std::string> ops;
    for (const PrintOp& op : stage.printer.printed()) ops.push_back(printOpArray(op));
    return jsonArray(ops);
}

std::string hatchObject(const HatchRow& r)
{
    return jsonObject({{"hatchName", json(r.hatchName)},
                       {"hx1", json(r.h1.x)},
                       {"hy1", json(r.h1.y)},
                       {"hx2", json(r.h2.x)},
                       {"hy2", json(r.h2.y)},
                       {"hx3", json(r.h3.x)},
                       {"hy3", json(r.h3.y)},
                       {"hx4", json(r.h4.x)},
                       {"hy4", json(r.h4.y)},
                       {"hatchTileW", json(r.hatchTileW)},
                       {"hatchTileH", json(r.hatchTileH)},
                       {"hatchRad", json(r.hatchRad)},
                       {"hatchA1", json(r.hatchA1)},
                       {"hatchA2", json(r.hatchA2)},
                       {"hatchColor", json(r.hatchColor)},
                       {"hatchStyle", json(r.hatchStyle)},
                       {"hatchKind", json(numberOf(r.hatchKind))}});
}

std::string multipleLineObject(const MultipleLine& r)
{
    return jsonObject({{"m1", json(r.m1)},
                       {"m2", json(r.legStart.x)},
                       {"m3", json(r.legStart.y)},
                       {"m4", json(r.legEnd.x)},
                       {"m5", json(r.legEnd.y)},
                       {"colour", json(r.colour)},
                       {"style", json(r.style)},
                       {"name", json(r.name)}});
}

std::string hatchesAnswer(Stage& stage, Words&)
{
    std::vector<std::string> rows;
    for (const HatchRow& row : stage.shell.session().hatchLibrary.used()) rows.push_back(hatchObject(row));
    return jsonArray(rows);
}

std::string multipleLinesAnswer(Stage& stage, Words&)
{
    std::vector<std::string> rows;
    for (const MultipleLine& row : stage.shell.session().multipleLinesLibrary.used()) {
        rows.push_back(multipleLineObject(row));
    }
    return jsonArray(rows);
}

std::string widthAnswer(Stage& stage, Words& words)
{
    const float size = words.coordinate();
    const std::string font = words.wordOrString();
    stage.surface.setFontName(font);
    stage.surface.setFontSize(size);
    return json(stage.surface.textWidth(words.text()));
}

std::string imageAnswer(Stage& stage, Words& words)
{
    const std::string file = words.text();
    const QImage image = stage.surface.shown();
    if (!image.save(QString::fromStdString(file), "PNG")) throw Refusal{"not written: " + file};
    return jsonArray({json(image.width()), json(image.height())});
}

std::string focusedAnswer(Stage& stage, Words&)
{
    return json(stage.shell.session().controls.focus.row().name);
}

std::string aliveAnswer(Stage& stage, Words&)
{
    return json(!stage.shell.ended());
}

struct QuestionRow {
    std::string_view name;
    std::string (*answer)(Stage& stage, Words& words);
};

constexpr QuestionRow questionRows[] = {
    {"get", getAnswer},
    {"focused", focusedAnswer},
    {"slot", slotAnswer},
    {"slots", slotsAnswer},
    {"layers", layersAnswer},
    {"undolog", undoLogAnswer},
    {"ops", opsAnswer},
    {"width", widthAnswer},
    {"image", imageAnswer},
    {"alive", aliveAnswer},
    {"printed", printedAnswer},
    {"hatches", hatchesAnswer},
    {"mlines", multipleLinesAnswer},
};

} // namespace

ControlId controlNamed(std::string_view name)
{
    ControlId id;
    if (!findControl(name, id)) throw Refusal{"no such control: " + std::string(name)};
    return id;
}

std::optional<std::string> answer(Stage& stage, std::string_view line)
{
    Words words(line);
    const std::string_view name = words.word();
    const auto* const row = std::ranges::find(questionRows, name, &QuestionRow::name);
    if (row == std::end(questionRows)) return std::nullopt;
    std::string json = row->answer(stage, words);
    words.end();
    return json;
}

} // namespace mirtane::play
