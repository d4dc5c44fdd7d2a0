#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

namespace layer {
inline constexpr std::string_view inUse = "Yes:"; // once an object has been put on the layer
inline constexpr std::string_view unused = "No :";
inline constexpr std::string_view on = "On :";
inline constexpr std::string_view hidden = "Off:";
inline constexpr std::string_view working = "Wk :";

// p1.x of the record that holds a layer's name is its layer's number plus this.
inline constexpr double nameOffset = 2;
} // namespace layer

struct Layer {
    std::string layerUsed{layer::unused};
    std::string layerShown{layer::on};
    std::string layerName;
    std::int16_t layerNumber = 0;

    // As the list shows it: "No :Wk :1".
    std::string row() const { return layerUsed + layerShown + layerName; }
};

struct LayerTable {
    static constexpr std::int32_t rowLimit = 1000;

    // The row of a layer number, or null where the table has none.
    Layer* find(std::int32_t number);
    const Layer* find(std::int32_t number) const;

    // Row number as a new drawing has it: unused, shown ("Wk :" for workLayer), its number as its name.
    void resetRow(std::int32_t number, std::int32_t workLayer);

    // Rows 0 to layerCount - 1 as the list shows them.
    std::vector<std::string> rows() const;

    std::array<Layer, rowLimit> layers;
    std::int32_t layerCount = 16; // nothing holds it below the table's 1,000 rows
};

// The sixteen layers of a new drawing, layer 1 the working layer.
void resetLayers(LayerTable& table);

// Sets "Yes:" for a layer that has a row.
void markUsed(LayerTable& table, std::int32_t number);

} // namespace mirtane
