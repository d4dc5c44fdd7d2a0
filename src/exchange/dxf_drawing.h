#pragma once

// A drawing as a DXF file of release AC1015 that other programs can work on: layers with their names and
// pens, line types, faces, real dimensions and leaders, in inches. What dxf/ writes is for programs that know
// the plainest records alone.

#include "exchange/file_plan.h"

namespace mirtane {

struct DxfDrawing {
    std::string bytes;        // Windows-1252, and ASCII but for names
    std::int32_t leftOut = 0; // objects that show nothing and can't be written
};

// All objects of the drawing, those of hidden layers too. Nothing in it changes.
DxfDrawing dxfDrawing(const DrawingOut& drawing);

} // namespace mirtane
