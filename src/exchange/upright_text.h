#pragma once

#include "exchange/made.h"

namespace mirtane {

// A text on its line, as ours stand. baseline is the point on the line that the justification means. Where a
// block mirrors it, so that its letters would be, it keeps its place and can be read.
Made uprightText(const MadeText& text, Vec baseline, Vec along, Vec up);

} // namespace mirtane
