#pragma once

// What a dimension or leader is drawn of, besides its text: lines and arcs. The surface, what follows the
// pointer and the printed page all take their strokes from here.

#include "model/entity_store.h"

namespace mirtane {

// Arrow styles: s1 of kinds 7, 8 and 9, style of kind 10.
namespace arrow {
inline constexpr std::int16_t closed = 1;
inline constexpr std::int16_t open = 2;
inline constexpr std::int16_t slash = 3;
} // namespace arrow

// The fields of a record that have a say in its strokes, named as there. World units, angles in radians.
struct DimensionShape {
    Kind kind{};
    Point p1, p2, p3, p4;
    float s1 = 0, s2 = 0, rad = 0;
    double a1 = 0, a2 = 0;
    std::int16_t style = 0;
};

DimensionShape shapeOf(const EntityRecord& r);
// at is the index of a slot that exists.
DimensionShape shapeAt(const EntityStore& store, std::size_t at);

// Takes strokes one by one, in the order they are drawn. Their coordinates are finite.
class StrokeSink {
  public:
    virtual void line(Point a, Point b) = 0;
    // Counter-clockwise from a1 to a2, radians, beginning at start.
    virtual void arc(Point centre, Point start, float r, double a1, double a2) = 0;

  protected:
    ~StrokeSink() = default;
};

// Strokes of a piece whose direction can't be had, as its two points are one, are left out, and so are those
// with a coordinate that faults. An arrow style that is none of the three draws no arrow.
void linearDimStrokes(const DimensionShape& d, StrokeSink& out);  // p1 to p4, s1, s2
void radialDimStrokes(const DimensionShape& d, StrokeSink& out);  // p1 to p4, s1, s2
void leaderStrokes(const DimensionShape& d, StrokeSink& out);     // p1 to p3, s1, and a2 for the arrow size
void angularDimStrokes(const DimensionShape& d, StrokeSink& out); // p1 to p4, s1, rad, a1, a2, style

// Those of its kind, 7 to 10; none for another.
void dimensionStrokes(const DimensionShape& d, StrokeSink& out);

} // namespace mirtane
