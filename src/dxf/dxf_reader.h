#pragma once

// A DXF file taken in as the drawing. The text is read line by line, in one pass and without copies; what is
// not understood is passed over, and nothing in it is ever a fault.
//
// To open a DXF file: forgetOwners; set the names (dxf_names.h); readDxf; stepNo 0; redraw; fit the view to
// the drawing; show the attributes and the layers in the controls; finishDxf; enter the current function
// again.

#include "model/session.h"
#include "render/entity_bounds.h"

#include <span>

namespace mirtane {

// Replaces the drawing by the objects of the file: the slots, the layer table, the undo records, and the
// attributes colour, style, text size and font, which are those of the last object. The first row of the
// file's layer table becomes the working layer. Fields that a record does not have keep what their slot last
// held. Objects past the table's end are counted and lost. widthOf measures texts; decimalPoint is taken in
// numbers beside ".".
void readDxf(Session& s, std::string_view text, const TextWidthOf& widthOf, char decimalPoint = '.');
void readDxf(Session& s, std::span<const std::uint8_t> file, const TextWidthOf& widthOf,
             char decimalPoint = '.');

// Adds the names of the layers to the drawing, and takes it as saved. It comes last, behind the view.
void finishDxf(Session& s);

} // namespace mirtane
