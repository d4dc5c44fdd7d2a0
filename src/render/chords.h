#pragma once

#include "geometry/point.h"
#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Whether a piece with these ends is not wholly beyond one side of the view. An end on the edge counts as
// inside.
bool pieceInView(const View& view, Point a, Point b);

// A straight line cut into count pieces of equal length.
struct LinePieces {
    Point a, b;
    std::int32_t count;
};

// A round line cut into count chords: x = centre + r (cos a, -sin a) turned onto the axis (ux, uy) and
// flattened across it by ratio, a running counter-clockwise from firstAngle over sweep (radians). The first
// chord starts at start.
struct Chords {
    Point centre;
    Point start;
    double r;
    double firstAngle;
    double sweep;
    std::int32_t count;
    double ux = 1, uy = 0;
    double ratio = 1;
};

// Each draws the pieces that are in view, and says how many it had to look at. That is bounded by what is in
// view and not by the count: pieces that can't be seen are not walked, however far an object reaches.
std::int64_t drawPieces(Canvas& pic1, const View& view, const LinePieces& pieces);
std::int64_t drawChords(Canvas& pic1, const View& view, const Chords& chords);

} // namespace mirtane
