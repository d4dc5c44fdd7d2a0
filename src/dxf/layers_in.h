#pragma once

#include "model/layers.h"

#include <string_view>
#include <unordered_map>

namespace mirtane {

// The layer table as a file fills it, row by row.
class DxfLayers {
  public:
    // Empties the table. The names given to add() must outlive this.
    explicit DxfLayers(LayerTable& table);

    // Adds a row; the first is the working layer. A row beyond the table is counted and lost.
    void add(std::string_view name);

    // Sets layer to that of an object on the layer of that name: the first row so named, or one past the
    // last row where there is none.
    void find(std::string_view name, std::int16_t& layer) const;

  private:
    LayerTable& table_;
    std::unordered_map<std::string_view, std::int16_t> rows_;
};

} // namespace mirtane
