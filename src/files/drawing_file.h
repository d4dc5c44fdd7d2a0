#pragma once

// A drawing as bytes: its records back to back, slot 0 (the header) first, to the end of the file. There is
// no signature and no count, so any bytes are taken; what can't be a whole record ends the reading.
//
// To open a drawing: replaceDrawing; fit the view to drawingBounds (render/entity_bounds.h); show the
// attributes and the layers in the controls; setTextAnchors; redraw; fixUpLinesAndCircles. To merge a layer:
// mergeLayer; show the layers; redraw. To save: put drawingBytes on the disk; once they are there, afterSave.

#include "files/disk.h"
#include "files/untaken.h"
#include "model/session.h"
#include "render/entity_bounds.h"

namespace mirtane {

enum class SaveWhat {
    drawing,  // what is "on", "sel" or "off"
    layer,    // all slots of the chosen layer, whatever their stat
    selected, // what is "sel", and all layer names, whatever their stat
};

// Puts the current attributes into slot 0. The fields that no attribute uses keep what they held.
void refreshHeader(Session& s);

// The file, with the current attributes as its header. Nothing in the session changes.
Bytes drawingBytes(const Session& s, SaveWhat what);

// What a save that succeeded changes: slot 0 is the header just written; "sel" becomes "on" but for a layer;
// savedCount becomes entCount for a whole drawing.
void afterSave(Session& s, SaveWhat what);

// Replaces the drawing by the records of the file (at most 60,001): the slots, all "on", the undo records,
// savedCount, dimensionCount, the layer tables and the attributes of the header. Names of owners, the view,
// the controls and the fields that are computed anew (see above) are left to the caller. A file without one
// whole record gives an empty drawing, and attributes and slot 0 as they were.
Untaken replaceDrawing(Session& s, const Bytes& file);

// Adds the records of the file (at most 60,001) to the drawing, on one layer; its header stays as a dead
// object and its layer names are dropped. Attributes, undo records, savedCount and view stay.
Untaken mergeLayer(Session& s, const Bytes& file, std::int16_t layer);

// Sets p4 of each text, the point at which it is painted: the point as entered, moved back along the
// direction of the text by as much of its width as the justification asks for. A fault leaves a coordinate as
// it was.
void setTextAnchors(EntityStore& store, const TextWidthOf& widthOf);

// Sets p3 of each line to its middle and p2 of each circle to the point at its left, which snaps and edits
// read. A fault (a line of no length) leaves a coordinate as it was.
void fixUpLinesAndCircles(EntityStore& store);

} // namespace mirtane
