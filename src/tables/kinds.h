#pragma once

// Which fields the drawn kinds, 1 to 10, have: one table of data for every routine that copies, moves, turns
// or maps objects. The pieces of an associate have the fields of their kind less 10.

#include "tables/entity_record.h"

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
    std::uint16_t moved;  // pairs that a move shifts
    std::uint16_t mapped; // pairs that a mirror, a rotation and a scale map
    std::uint16_t values; // the fields that are no coordinates
    bool hasLineStyle;
    bool sweeps;                    // a1 and a2 are the ends of an arc, radians
    double EntityRecord::*rotation; // of its text, degrees; null for a kind without text
    Point EntityRecord::*textStart; // where its text is painted; null for a kind without text
};

// The row of a kind from 1 to 10, null for any other.
const KindRow* kindRow(Kind kind);

// Whether objects of the kind have words, and a font.
bool hasWords(Kind kind);

// Whether the style of its objects is that of their lines. That of an angular dimension is its arrow.
bool hasLineStyle(Kind kind);

// Size of the text of a kind that has one, world units.
float textSizeOf(const EntityRecord& r);

} // namespace mirtane
