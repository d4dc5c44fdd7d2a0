#pragma once

// Picking marks objects for the edit functions; the marks are the objects' own, there is no list of them.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Finds the object nearest to mousePos within the search radius, of those shown; in "Text Edit" only texts
// and dimensions. Gives its slot, also in snapBestIndex and pickedIndex; with none it gives -1, and
// pickedIndex is none.
std::int32_t pickObject(Session& s, const Canvas& pic1);

// A click of "Object Select": picks, turns the mark of what was hit, and begins the next step 0. Lines to
// texts that are marked remember the click in p5, for the edits that ask which part was picked. True if a
// mark has changed; the caller then redraws.
bool togglePick(Session& s, const Canvas& pic1);

// Marks what the last action made, as far as it is still there and shown.
void selectLast(Session& s);

} // namespace mirtane
