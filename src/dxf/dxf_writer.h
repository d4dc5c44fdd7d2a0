#pragma once

// A drawing as a DXF file of release AC1009: a fixed head, and the selected objects as lines, circles, arcs
// and texts, all on the layer "clay". The file depends on the objects and their order alone, byte for byte.
//
// To save: put bytes on the disk; then, if whole, changeStat(sel, on), redraw, and give the surface the
// focus. An unfinished file is put on the disk too, and nothing else then happens.

#include "dxf/scratch.h"
#include "model/entity_store.h"

namespace mirtane {

struct DxfFile {
    std::vector<std::uint8_t> bytes; // Windows-1252
    bool whole = true;               // false: a dimension of an unknown arrow style ended the file
};

// The objects that are "sel". decimalPoint stands in the numbers that are computed; fixed ones keep ".".
// Nothing in the drawing changes.
DxfFile dxfFile(const EntityStore& store, DxfScratch& scratch, char decimalPoint = '.');

} // namespace mirtane
