#pragma once

#include "model/session.h"
#include "render/canvas.h"
#include "render/dimension_strokes.h"

namespace mirtane {

// The strokes of a dimension on the surface, in the pen as set; its text is paintDimText's. Nothing is culled
// but by the painters of lines and arcs.
void paintLinearDim(Canvas& pic1, const View& view, const DimensionShape& d);
void paintRadialDim(Canvas& pic1, const View& view, const DimensionShape& d);
void paintLeader(Canvas& pic1, const View& view, const DimensionShape& d);
void paintAngularDim(Canvas& pic1, const View& view, const DimensionShape& d);

// By kind, 7 to 10; nothing for another.
void paintDimension(Canvas& pic1, const View& view, const DimensionShape& d);

} // namespace mirtane
