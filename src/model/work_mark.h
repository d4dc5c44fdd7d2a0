#pragma once

#include "model/session.h"

namespace mirtane {

// How far the work on the drawing has come: two marks differ if something that a drawing file holds was done
// between them.
WorkMark workMark(const Session& s);

} // namespace mirtane
