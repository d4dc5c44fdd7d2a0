#pragma once

#include "model/session.h"

namespace mirtane {

// Marks every object that lies wholly in the window between window1 and window2, edges included, whichever
// corners they are; they come out in order. Marks that are there already stay. A filtered selection passes
// over what does not meet the filter's layer, kind (7: all dimensions and leaders), colour and style. The
// caller redraws.
void selectInWindow(Session& s, bool filtered);

// The same without a window.
void selectAll(Session& s, bool filtered);

} // namespace mirtane
