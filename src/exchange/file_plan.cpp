#include "exchange/file_plan.h"

#include "exchange/pens_out.h"
#include "geometry/arc.h"
#include "render/dimension_strokes.h"
#include "tables/kinds.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace mirtane {
namespace {

bool isFinitePoint(Point p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

bool pointsAreFinite(const EntityRecord& r, std::uint16_t mask)
{
    const Point points[] = {r.p1, r.p2, r.p3, r.p4, r.p5};
    for (unsigned i = 0; i < std::size(points); ++i) {
        if ((mask >> i & 1U) != 0 && !isFinitePoint(points[i])) return false;
    }
    return true;
}

bool valuesAreFinite(const EntityRecord& r, std::uint16_t mask)
{
    const std::pair<std::uint16_t, double> values[] = {
        {field::p3x, r.p3.x}, {field::s1, r.s1}, {field::s2, r.s2}, {field::rad, r.rad},
        {field::a1, r.a1},    {field::a2, r.a2}, {field::a3, r.a3}};
    return std::ranges::all_of(values, [mask](const auto& value) {
        return (mask & value.first) == 0 || std::isfinite(value.second);
    });
}

bool hasSize(const EntityRecord& r)
{
    if (r.kind == Kind::arc) return r.rad > 0 && hasSweep(r.a1, r.a2);
    if (isRound(r.kind)) return r.rad > 0;
    if (r.kind == Kind::ellipse) return r.p1 != r.p2 && r.p3.x != 0;
    if (r.kind == Kind::text) return r.p2.x > 0 && !r.t1.empty();
    return true;
}

bool isWritten(const DrawingOut& drawing, std::int32_t slot)
{
    const std::size_t at = EntityStore::at(slot);
    const Stat stat = drawing.store.stat[at];
    if (stat == Stat::out || stat == Stat::none || !isDrawnKind(drawing.store.kind[at])) return false;
    return !drawing.layer || drawing.store.layer[at] == *drawing.layer;
}

// Whether a layer says more than its number does.
bool isTold(const Layer& layer)
{
    return layer.layerName != std::to_string(layer.layerNumber) || layer.layerShown == layer::hidden;
}

} // namespace

bool canBeWritten(const EntityRecord& r)
{
    const KindRow* const row = kindRow(r.kind);
    return row != nullptr && pointsAreFinite(r, row->mapped) && valuesAreFinite(r, row->values) && hasSize(r);
}

bool hasSweep(double a1, double a2)
{
    constexpr double leastSweep = 1e-10;
    return sweepSeen(a1, a2) >= leastSweep;
}

std::optional<ArrowLook> arrowLookOf(const EntityRecord& r)
{
    if (!isDimension(r.kind)) return std::nullopt;
    const bool angular = r.kind == Kind::angularDimension;
    const float style = angular ? static_cast<float>(r.style) : r.s1; // of 16 bits
    std::int16_t arrow = arrow::open;
    for (const std::int16_t known : {arrow::closed, arrow::slash}) {
        if (style == known) arrow = known;
    }
    if (r.kind == Kind::leader && arrow != arrow::closed) arrow = arrow::open; // as leaders are drawn
    float size = angular ? r.s1 : r.s2;
    if (r.kind == Kind::leader) keep(size, r.a2);
    return ArrowLook{arrow, size, r.s2, r.t2};
}

const BlockOut& FilePlan::arrowBlock(std::int16_t arrow) const
{
    return arrowBlocks_[static_cast<std::size_t>(arrow - 1)]; // from 1 on
}

FilePlan::FilePlan(const DrawingOut& drawing)
{
    takeSlots(drawing);
    takeLayers(drawing);
    takePens(drawing.store);
    for (const char* name : {"MIRTANE_CLOSED", "MIRTANE_OPEN", "MIRTANE_SLASH"})
        arrowBlocks_.push_back({name, newHandle()});
    DxfNames styleNames;
    styleNames.add("Standard");
    takeFace(drawing.attributes.textFont, styleNames);
    for (const std::int32_t slot : slots_) {
        const EntityRecord r = drawing.store.record(slot);
        if (hasWords(r.kind)) takeFace(r.t2, styleNames);
        if (isDimension(r.kind)) takeDimension(slot, r);
    }
}

void FilePlan::takeSlots(const DrawingOut& drawing)
{
    for (std::int32_t i = 1; i < drawing.store.end(); ++i) {
        if (!isWritten(drawing, i)) continue;
        const EntityRecord r = drawing.store.record(i);
        if (!canBeWritten(r)) {
            ++leftOut_;
            continue;
        }
        slots_.push_back(i);
        feedBounds(box_, drawing.store, i, hasWords(r.kind) ? drawing.widthOf(r) : 0);
    }
}

// A layer's row is its number as far as the drawing's own table goes, so that they come back in their order.
// A file needs one of the name "0" besides.
void FilePlan::takeLayers(const DrawingOut& drawing)
{
    std::set<std::int32_t> used;
    for (const std::int32_t slot : slots_) used.insert(drawing.store.layer[EntityStore::at(slot)]);
    const std::int32_t count = std::clamp(drawing.layers.layerCount, 0, LayerTable::rowLimit);
    std::int32_t last = std::min<std::int32_t>(drawing.attributes.workLayer, count - 1);
    for (std::int32_t i = 0; i < count; ++i) {
        if (used.contains(i) || isTold(*drawing.layers.find(i))) last = std::max(last, i);
    }
    DxfNames names;
    for (std::int32_t i = 0; i <= last; ++i) addLayer(i, drawing, names);
    for (const std::int32_t number : used) addLayer(number, drawing, names);
    if (std::ranges::find(layers_, "0", &LayerOut::name) == layers_.end()) layers_.push_back({"0"});
    const auto working = rowOf_.find(drawing.attributes.workLayer);
    if (working != rowOf_.end()) workLayer_ = layers_[working->second].name;
}

void FilePlan::addLayer(std::int32_t number, const DrawingOut& drawing, DxfNames& names)
{
    if (!rowOf_.emplace(number, layers_.size()).second) return;
    const Layer* const row = drawing.layers.find(number);
    const bool named = row != nullptr && number < drawing.layers.layerCount;
    const std::string own = named ? row->layerName : std::to_string(number);
    layers_.push_back({names.add(own), 0xFFFFFF, named && row->layerShown == layer::hidden, own});
}

// The first of those that most of its objects have.
void FilePlan::takePens(const EntityStore& store)
{
    std::vector<std::map<std::int32_t, std::int32_t>> uses(layers_.size());
    for (const std::int32_t slot : slots_) {
        const std::size_t at = EntityStore::at(slot);
        ++uses[rowOf_.at(store.layer[at])][penOut(store.color[at]).color];
    }
    for (std::size_t i = 0; i < layers_.size(); ++i) {
        const auto most = std::ranges::max_element(uses[i], {}, [](const auto& use) { return use.second; });
        if (most != uses[i].end()) layers_[i].color = most->first;
    }
}

void FilePlan::takeFace(const std::string& face, DxfNames& names)
{
    if (faces_.contains(face)) return;
    faces_[face] = {names.add(face), face, newHandle()};
}

void FilePlan::takeDimension(std::int32_t slot, const EntityRecord& r)
{
    if (r.kind != Kind::leader) pictures_[slot] = {"*D" + std::to_string(pictures_.size() + 1), newHandle()};
    const ArrowLook look = *arrowLookOf(r);
    if (arrowStyles_.contains(look)) return;
    arrowStyles_[look] = {"MIRTANE-" + std::to_string(arrowStyles_.size() + 1), newHandle()};
}

} // namespace mirtane
