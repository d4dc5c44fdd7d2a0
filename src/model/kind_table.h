#pragma once

// Which fields the drawn kinds, 1 to 10, have: one table of data for every routine that copies, moves, turns
// or maps objects. The pieces of an associate have the fields of their kind less 10.

#include "model/entity_store.h"

namespace mirtane {

// The fields of a record as bits. Every kind has colour, layer and style, which stand for no bit.
namespace field {
inline constexpr std::uint16_t p1 = 1;
inline constexpr std::uint16_t p2 = 2;
inline constexpr std::uint16_t p3 = 4;
inline constexpr std::uint16_t p4 = 8;
inline constexpr std::uint16_t p5 = 16;
inline constexpr std::uint16_t p3x = 32; // a value in a coordinate's place
inline constexpr std::uint16_t s1 = 64;
inline constexpr std::uint16_t s2 = 128;
inline constexpr std::uint16_t rad = 256;
inline constexpr std::uint16_t a1 = 512;
inline constexpr std::uint16_t a2 = 1024;
inline constexpr std::uint16_t a3 = 2048;
inline constexpr std::uint16_t words = 4096; // t1 and t2
} // namespace field

struct KindRow {
    std::uint16_t moved;            // pairs that a move shifts
    std::uint16_t mapped;           // pairs that a mirror, a rotation and a scale map
    std::uint16_t values;           // the fields that are no coordinates
    bool sweeps;                    // a1 and a2 are the ends of an arc, radians
    double EntityRecord::*rotation; // of its text, degrees; null for a kind without text
    Point EntityRecord::*textStart; // where its text is painted; null for a kind without text
};

// The row of a kind from 1 to 10, null for any other.
const KindRow* kindRow(std::int16_t kind);

// Whether objects of the kind are painted, picked and edited: kinds 1 to 10.
bool isDrawnKind(std::int16_t kind);

// Size of the text of a kind that has one, world units.
float textSizeOf(const EntityRecord& r);

// Puts each pair among pairs (bits of field) through map, which takes and gives a Point.
template <class Map> void mapPairs(EntityRecord& r, std::uint16_t pairs, Map map)
{
    if ((pairs & field::p1) != 0) r.p1 = map(r.p1);
    if ((pairs & field::p2) != 0) r.p2 = map(r.p2);
    if ((pairs & field::p3) != 0) r.p3 = map(r.p3);
    if ((pairs & field::p4) != 0) r.p4 = map(r.p4);
    if ((pairs & field::p5) != 0) r.p5 = map(r.p5);
}

// Writes into a slot the fields that the record's kind has; the slot's other fields keep what they hold, and
// so does its stat. A kind outside 1 to 10 and a slot that does not exist are passed over.
void writeFieldsOfKind(EntityStore& store, std::int32_t slot, const EntityRecord& r);

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
