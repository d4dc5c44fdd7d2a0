#pragma once

// Records moved, turned and mapped: by the columns of their kinds, so that no routine names a kind.

#include "tables/kinds.h"

namespace mirtane {

// Puts each pair among pairs (bits of field) through map, which takes and gives a Point.
template <class Map> void mapPairs(EntityRecord& r, std::uint16_t pairs, Map map)
{
    if ((pairs & field::p1) != 0) r.p1 = map(r.p1);
    if ((pairs & field::p2) != 0) r.p2 = map(r.p2);
    if ((pairs & field::p3) != 0) r.p3 = map(r.p3);
    if ((pairs & field::p4) != 0) r.p4 = map(r.p4);
    if ((pairs & field::p5) != 0) r.p5 = map(r.p5);
}

// Shifts an object by world units. A coordinate that overflows keeps its value.
void shift(EntityRecord& r, float dx, float dy);

// Brings an angle into a full turn by adding or taking away one, which is all that the sum of two needs.
double withinTurn(double radians);

// A rotation about a centre, counter-clockwise on the screen.
class Turn {
  public:
    Turn(Point centre, double radians);

    // The centre stays where it is. A coordinate that overflows keeps its value.
    Point of(Point p) const;
    // The object's pairs and its angles: the ends of an arc, the rotation of a text.
    void apply(EntityRecord& r) const;

  private:
    Point centre_;
    double radians_, cos_, sin_;
};

// Sets the start, end and middle of an arc from its centre, radius and angles.
void placeArcPoints(EntityRecord& arc);

} // namespace mirtane
