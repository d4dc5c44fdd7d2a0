#pragma once

// A DXF file of any program, read in full.
//
// To open one: forgetOwners; readInFull; takeReading; setTextAnchors; stepNo 0; redraw; fit the view to the
// drawing; show the layers in the controls; finishDxf; enter the current function again.

#include "exchange/made.h"
#include "exchange/placing.h"
#include "model/session.h"
#include "render/entity_bounds.h"

namespace mirtane {

// Inches to a unit of a file that does not say what its units are.
struct UnitsIfNone {
    double inches = 1;
};

struct FullReading {
    MadeDrawing drawing;
    Placing placing;
    std::int64_t inexact = 0; // objects too far off for 32 bits to hold a hundredth of a unit
    bool hasUnits = true;
    bool isDxf = true;
    bool isCut = false; // the file has no end
};

FullReading readInFull(std::string_view bytes, UnitsIfNone units = {});

struct TakenReading {
    std::size_t objects = 0;
    std::int64_t withoutRoom = 0;
};

// Replaces the drawing and the layers by what was read; the names of the layers have their room. widthOf
// measures texts.
TakenReading takeReading(Session& s, const FullReading& reading, const TextWidthOf& widthOf);

} // namespace mirtane
