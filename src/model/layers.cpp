#include "model/layers.h"

#include <algorithm>

namespace mirtane {

Layer* LayerTable::find(std::int32_t number)
{
    if (number < 0 || number >= rowLimit) return nullptr;
    return &layers[static_cast<std::size_t>(number)]; // not negative, tested above
}

const Layer* LayerTable::find(std::int32_t number) const
{
    if (number < 0 || number >= rowLimit) return nullptr;
    return &layers[static_cast<std::size_t>(number)]; // not negative, tested above
}

void LayerTable::resetRow(std::int32_t number, std::int32_t workLayer)
{
    Layer* row = find(number);
    if (row == nullptr) return;
    row->layerUsed = layer::unused;
    row->layerShown = number == workLayer ? layer::working : layer::on;
    row->layerName = std::to_string(number);
    row->layerNumber = static_cast<std::int16_t>(number); // below 1,000: the row was found
}

std::vector<std::string> LayerTable::rows() const
{
    std::vector<std::string> texts;
    const std::int32_t count = std::clamp(layerCount, 0, rowLimit);
    for (std::int32_t i = 0; i < count; ++i) texts.push_back(find(i)->row());
    return texts;
}

void resetLayers(LayerTable& table)
{
    table.layerCount = 16;
    for (std::int32_t i = 0; i < table.layerCount; ++i) table.resetRow(i, 1);
}

void markUsed(LayerTable& table, std::int32_t number)
{
    Layer* row = table.find(number);
    if (row != nullptr && row->layerUsed != layer::inUse) row->layerUsed = layer::inUse;
}

} // namespace mirtane
