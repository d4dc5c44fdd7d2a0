#pragma once

#include "geometry/point.h"

namespace mirtane {

// What the writer of DXF files remembers from one object to the next, and from one file to the next: a value
// that can't be computed is then the one before it. One of these lives as long as the program.
struct DxfScratch {
    Point lineFrom, lineTo; // file coordinates
    Point textSecond;       // the second point of the last object that gave one, in that object's units
    Point unit;             // the last direction
    float arrowSize = 0;    // file units
};

// In 32 bits; 0 for points too far apart.
float lengthBetween(Point a, Point b);

// The direction of to from from, of length 1. A part of it that can't be had is that of scratch.unit, which
// takes the result.
Point directionBetween(DxfScratch& scratch, Point from, Point to);

} // namespace mirtane
