#pragma once

// Resolves the layers, the colours and the line types of a file's records.

#include "exchange/dxf_list.h"
#include "exchange/look.h"
#include "exchange/made.h"
#include "model/layers.h"

#include <algorithm>
#include <optional>

namespace mirtane {

// What the records of a block inherit from the insert that draws it.
struct Inherited {
    Look look;
    std::size_t layer = 0; // row of the insert's layer
    bool hidesAll = false; // as its layer is frozen
};

// Layers that every file has to have, whatever is drawn on them.
bool isLayerOfEveryFile(std::string_view name);

class Looks {
  public:
    explicit Looks(const DxfList& list);

    Look of(const DxfRecord& record, const std::optional<Inherited>& from);
    // For an insert whose content is about to be drawn.
    Inherited passedOn(const DxfRecord& insert, const std::optional<Inherited>& from);
    std::int32_t penOf(int colorNumber, const DxfRecord& record, const std::optional<Inherited>& from);

    // The layers of the file in its order, those that only its records name behind them, at most as many as
    // there is room for.
    const std::vector<MadeLayer>& layers() const { return made_; }
    // Those that the last one stands for as well.
    std::size_t layersWithoutRoom() const { return rows_.size() - std::min(rows_.size(), mostLayers); }
    // Where what is drawn next goes: one of the layers that are shown. There may be a new one for that.
    std::int16_t workLayer();

  private:
    static constexpr std::size_t mostLayers = LayerTable::rowLimit;

    struct Row {
        std::int16_t number = 0; // of our layer
        std::int32_t color = 0xFFFFFF;
        std::int16_t style = 0;
        bool off = false;
        bool frozen = false;
    };

    void addRow(std::string_view name, Row row);
    void addRow(const DxfRecord& layer);
    std::size_t rowOf(const DxfRecord& record, const std::optional<Inherited>& from);
    std::size_t rowOf(std::string_view name);
    std::string keyOf(std::string_view name) const;
    std::int16_t styleOf(std::string_view name, const Row& row, const std::optional<Inherited>& from);
    std::int16_t styleOf(std::string_view name);

    const DxfList& list_;
    std::vector<Row> rows_;
    std::map<std::string, std::size_t> rowNumbers_; // by the name with small letters
    // Of the names as records have them, so that each is looked into once.
    std::map<std::string_view, std::size_t> rowsAsSpelled_;
    std::map<std::string_view, std::int16_t> stylesAsSpelled_;
    std::vector<MadeLayer> made_;
};

// What a line type looks like: one of our line styles, by its dashes, or, if it has none of its own, by its
// name.
std::int16_t styleOfDashes(const DxfRecord& lineType);
std::int16_t styleOfName(std::string_view lineType);

} // namespace mirtane
