#pragma once

// Associates: named groups of objects that are placed again and again. The pieces of one are hidden slots of
// the drawing's table, relative to its reference point, of the drawn kind plus 10.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// How an associate lies in the drawing.
struct Placement {
    Point at;            // of its reference point
    double rotation = 0; // radians, counter-clockwise on the screen
    bool reversed = false;
};

// The object, of a kind from 1 to 10, that a piece (a record of a kind from 11 to 20) becomes. False, and
// object as it was, where nothing is placed: for other kinds, and when reversed for text and dimensions,
// which have no mirrored form.
bool placePiece(const EntityRecord& piece, const Placement& placement, EntityRecord& object);

// "Create Associate", once its name is typed: makes the pieces of the selected objects, which stay in the
// drawing. That is nothing undo would take back.
void createAssociateStep(Session& s, Canvas& pic1);

// "Place Associate": a click ends the choice of a name, the next places the objects, in one group.
void placeAssociateStep(Session& s, Canvas& pic1);

// The associate at the pointer, in the rubber-band pen.
void placeAssociateBand(Session& s, Canvas& pic1);

} // namespace mirtane
