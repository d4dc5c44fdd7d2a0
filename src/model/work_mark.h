#pragma once

#include "model/session.h"

namespace mirtane {

// How far the work on the drawing has come: two marks differ if something that a drawing file holds was done
// between them.
WorkMark workMark(const Session& s);

// Which slots are alive, up to the last that is. What an undo or a redo has brought back to where it was has
// the same ones, though the work has gone on.
std::vector<bool> livingSlots(const EntityStore& store);

} // namespace mirtane
