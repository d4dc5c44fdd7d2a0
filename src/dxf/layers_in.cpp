#include "dxf/layers_in.h"

#include "dxf/source.h"
#include "geometry/fault.h"

namespace mirtane {

DxfLayers::DxfLayers(LayerTable& table) : table_(table)
{
    table_.layerCount = 0;
}

void DxfLayers::add(std::string_view name)
{
    const std::int32_t number = table_.layerCount++;
    Layer* const row = table_.find(number);
    if (row == nullptr) return;
    keep(row->layerNumber, number);
    row->layerName = dxfWords(name);
    row->layerShown = number == 0 ? layer::working : layer::on;
    row->layerUsed = layer::inUse;
    rows_.emplace(name, row->layerNumber);
}

void DxfLayers::find(std::string_view name, std::int16_t& layer) const
{
    const auto found = rows_.find(name);
    if (found != rows_.end()) {
        layer = found->second;
    } else {
        keep(layer, table_.layerCount);
    }
}

} // namespace mirtane
