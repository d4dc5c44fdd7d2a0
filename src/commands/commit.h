#pragma once

#include "model/insertion.h"
#include "render/canvas.h"

namespace mirtane {

// Paints an object that stands in the scratch points.
using ScratchPainter = void (*)(const Session&, Canvas&);

void paintScratchLine(const Session& s, Canvas& pic1);   // ptC to ptD
void paintScratchCircle(const Session& s, Canvas& pic1); // centre ptF, workRadius
void paintScratchArc(const Session& s, Canvas& pic1);   // centre ptA, start ptB, workRadius, arcStart, arcEnd
void paintScratchPoint(const Session& s, Canvas& pic1); // ptA

// The end of every drawing function: paints the object over the clean picture in the given pen style and the
// current colour, keeps that picture, inserts the object and commits it as one action.
// The caller then resets its own state.
void commitEntity(Session& s, Canvas& pic1, void (*insert)(Session&), ScratchPainter paint,
                  std::int16_t penStyle);
void commitEntity(Session& s, Canvas& pic1, void (*insert)(Session&), ScratchPainter paint); // in curStyle

// stepNo and workRadius 0, the prompt of the next object, the rubber-band pen.
void readyForNext(Session& s, Canvas& pic1);

} // namespace mirtane
