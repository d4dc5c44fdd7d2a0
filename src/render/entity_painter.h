#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Paints one object in the pen as set, by the painter of its kind, for whatever is shown and stands in no
// slot: a selection on its way, an associate before it is placed. Nothing is culled but by the painters
// themselves. A kind outside 1 to 10 draws nothing.
void paintEntity(Canvas& pic1, const View& view, const EntityRecord& r);

} // namespace mirtane
