#include "exchange/looks.h"

#include "exchange/folded_name.h"
#include "exchange/own_data.h"
#include "tables/pens.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr std::string_view commonLayer = "0"; // what is on it in a block is on the insert's
constexpr int byBlock = 0;
constexpr int byLayer = 256;
constexpr int trueColorCode = 420;

bool isByLayer(std::string_view lineType)
{
    return lineType.empty() || isSameName(lineType, "BYLAYER");
}

// Our own files number the pens as the menus do.
std::int32_t penOfOurs(int number)
{
    const bool isPen = number >= 1 && number <= static_cast<int>(std::size(pens)); // eight
    return pens[isPen ? number - 1 : 0].color;
}

} // namespace

bool isLayerOfEveryFile(std::string_view name)
{
    return name == commonLayer || isSameName(name, "DEFPOINTS");
}

Looks::Looks(const DxfList& list) : list_(list)
{
    for (const DxfRecord& layer : list.layers) addRow(layer);
}

void Looks::addRow(const DxfRecord& layer)
{
    constexpr int frozen = 1;
    const int color = layer.whole(62, 7);
    Row row;
    row.color =
        layer.has(trueColorCode) ? penOfTrueColor(layer.whole(trueColorCode)) : penOfColorNumber(color);
    row.style = styleOf(layer.name(6));
    row.off = color < 0;
    row.frozen = (layer.whole(70) & frozen) != 0;
    const std::size_t before = made_.size();
    addRow(layer.name(2), row);
    const std::optional<std::string> own = ownLayerName(layer, list_);
    if (own && made_.size() > before) made_.back() = {*own, made_.back().hidden, true};
}

// Those for which there is no room go with the last one.
void Looks::addRow(std::string_view name, Row row)
{
    if (!rowNumbers_.emplace(keyOf(name), rows_.size()).second) return;
    row.number = static_cast<std::int16_t>(std::min(rows_.size(), mostLayers - 1)); // below 1,000
    if (rows_.size() < mostLayers) made_.push_back({list_.text(name), row.off || row.frozen});
    rows_.push_back(row);
}

std::size_t Looks::rowOf(const DxfRecord& record, const std::optional<Inherited>& from)
{
    std::string_view name = record.name(8);
    if (name.empty()) name = commonLayer;
    if (from && name == commonLayer) return from->layer;
    const auto spelled = rowsAsSpelled_.find(name);
    return spelled != rowsAsSpelled_.end() ? spelled->second : rowOf(name);
}

std::size_t Looks::rowOf(std::string_view name)
{
    const std::string key = keyOf(name);
    if (!rowNumbers_.contains(key)) addRow(name, {});
    return rowsAsSpelled_[name] = rowNumbers_.find(key)->second;
}

// Two names that differ in small and capital letters alone are one.
std::string Looks::keyOf(std::string_view name) const
{
    return foldedName(list_.text(name));
}

std::int16_t Looks::styleOf(std::string_view name)
{
    const auto [spelled, isNew] = stylesAsSpelled_.try_emplace(name);
    if (!isNew) return spelled->second;
    const auto lineType = list_.lineTypes.find(name);
    const bool hasDashes = lineType != list_.lineTypes.end() && lineType->second.has(49);
    return spelled->second = hasDashes ? styleOfDashes(lineType->second) : styleOfName(name);
}

std::int16_t Looks::styleOf(std::string_view name, const Row& row, const std::optional<Inherited>& from)
{
    if (isByLayer(name)) return row.style;
    if (isSameName(name, "BYBLOCK")) return from ? from->look.style : std::int16_t{0};
    return styleOf(name);
}

std::int32_t Looks::penOf(int colorNumber, const DxfRecord& record, const std::optional<Inherited>& from)
{
    if (colorNumber == byLayer) return rows_[rowOf(record, from)].color;
    if (colorNumber == byBlock) return from ? from->look.color : penOfColorNumber(byBlock);
    return list_.isOurs ? penOfOurs(colorNumber) : penOfColorNumber(colorNumber);
}

// What a frozen insert hides goes onto the layer that hides it.
Look Looks::of(const DxfRecord& record, const std::optional<Inherited>& from)
{
    const Row row = rows_[rowOf(record, from)];
    Look look;
    look.color = record.has(trueColorCode) ? penOfTrueColor(record.whole(trueColorCode))
                                           : penOf(record.whole(62, byLayer), record, from);
    look.style = styleOf(record.name(6), row, from);
    look.layer = row.number;
    look.hidden = row.off || row.frozen;
    if (!look.hidden && from && from->hidesAll) {
        look.hidden = true;
        look.layer = from->look.layer;
    }
    return look;
}

Inherited Looks::passedOn(const DxfRecord& insert, const std::optional<Inherited>& from)
{
    const std::size_t layer = rowOf(insert, from);
    const bool hidesAll = rows_[layer].frozen || (from && from->hidesAll);
    return {of(insert, from), layer, hidesAll};
}

std::int16_t Looks::workLayer()
{
    const auto current = rowNumbers_.find(keyOf(list_.variableName("$CLAYER", 8)));
    const std::size_t wished = current == rowNumbers_.end() ? 0 : current->second;
    if (wished < made_.size() && !made_[wished].hidden) return rows_[wished].number;
    const auto shown = std::ranges::find_if(made_, [](const MadeLayer& one) { return !one.hidden; });
    if (shown != made_.end()) return rows_[static_cast<std::size_t>(shown - made_.begin())].number;
    if (made_.size() < mostLayers) made_.push_back({std::to_string(made_.size()), false});
    return static_cast<std::int16_t>(made_.size() - 1); // below 1,000
}

} // namespace mirtane
