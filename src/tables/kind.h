#pragma once

// The kinds of objects. A switch over them has no default, so that a new kind is a warning at each place that
// it must reach. What the other floors ask of a kind besides is a column of its row in tables/kinds.h.

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace mirtane {

// What the fields of an object mean depends on its kind; a field that a kind does not use keeps what it held.
// A file holds the kind as a number of 16 bits, and so any value may come from one.
enum class Kind : std::int16_t {
    line = 1,        // p1 start, p2 end
    circle,          // p1 centre, rad
    arc,             // p1 centre; p2 start, p3 end, p4 middle; rad; a1 to a2
    ellipse,         // p1 end of the first axis, p2 centre, p3.x ratio of the axes
    point,           // p1
    text,            // p1 as entered, p4 as painted; p2 size and justification
    linearDimension, // p1, p2 measured; p3, p4 dimension line; p5 text
    radialDimension,
    leader,
    angularDimension,
};

inline constexpr Kind everyKind[] = {
    Kind::line,
    Kind::circle,
    Kind::arc,
    Kind::ellipse,
    Kind::point,
    Kind::text,
    Kind::linearDimension,
    Kind::radialDimension,
    Kind::leader,
    Kind::angularDimension,
};
inline constexpr std::size_t drawnKinds = std::size(everyKind);

// Slots that are no objects: never painted, picked or exported. They are no enumerators, so that no switch
// has to name them.
inline constexpr Kind noKind{0};
inline constexpr Kind headerKind{24};          // slot 0: the drawing's attributes
inline constexpr Kind layerNameKind{25};       // p1.x layer number plus 2, t1 the name
inline constexpr Kind polylineSegmentKind{30}; // while a DXF file is read: p1 start, p2 end, p3.x bulge
inline constexpr Kind blockInsertKind{35};     // likewise: p1 place, p2 scales, a1 rotation, dxfTag the block

constexpr std::int16_t numberOf(Kind kind)
{
    return static_cast<std::int16_t>(kind); // its underlying type
}

// Where a kind stands in everyKind; one that does not, does not compile.
consteval std::size_t placeInEveryKind(Kind kind)
{
    for (std::size_t i = 0; i < drawnKinds; ++i) {
        if (everyKind[i] == kind) return i;
    }
    throw "everyKind lacks a kind";
}

// The place of a kind in a table that has a row for each of them; drawnKinds for what is no enumerator.
constexpr std::size_t placeOf(Kind kind)
{
    switch (kind) {
    case Kind::line:
        return placeInEveryKind(Kind::line);
    case Kind::circle:
        return placeInEveryKind(Kind::circle);
    case Kind::arc:
        return placeInEveryKind(Kind::arc);
    case Kind::ellipse:
        return placeInEveryKind(Kind::ellipse);
    case Kind::point:
        return placeInEveryKind(Kind::point);
    case Kind::text:
        return placeInEveryKind(Kind::text);
    case Kind::linearDimension:
        return placeInEveryKind(Kind::linearDimension);
    case Kind::radialDimension:
        return placeInEveryKind(Kind::radialDimension);
    case Kind::leader:
        return placeInEveryKind(Kind::leader);
    case Kind::angularDimension:
        return placeInEveryKind(Kind::angularDimension);
    }
    return drawnKinds;
}

// Whether objects of the kind are painted, picked and edited.
constexpr bool isDrawnKind(Kind kind)
{
    return placeOf(kind) < drawnKinds;
}

constexpr bool isDimension(Kind kind)
{
    return kind == Kind::linearDimension || kind == Kind::radialDimension || kind == Kind::leader ||
           kind == Kind::angularDimension;
}

constexpr bool isRound(Kind kind)
{
    return kind == Kind::circle || kind == Kind::arc;
}

// A piece of an associate has the fields of its object's kind, and its number and this: 11 to 20. A kind that
// is added takes a number that is none of a piece, nor 24, 25, 30 or 35.
inline constexpr int pieceOffset = 10;

constexpr Kind pieceOf(Kind kind)
{
    return static_cast<Kind>(numberOf(kind) + pieceOffset); // of a drawn kind, so that it fits
}

// The kind of object that a piece stands for; no drawn kind for what is no piece.
constexpr Kind objectOf(Kind piece)
{
    return static_cast<Kind>(numberOf(piece) - pieceOffset); // wraps at the end of 16 bits, far from any kind
}

// No kind has a number that stands for something else, nor has its piece.
consteval bool numbersAreFree()
{
    for (const Kind kind : everyKind) {
        for (const Kind taken : {kind, pieceOf(kind)}) {
            if (taken == noKind || taken == headerKind || taken == layerNameKind) return false;
            if (taken == polylineSegmentKind || taken == blockInsertKind) return false;
        }
        if (isDrawnKind(pieceOf(kind)) || isDrawnKind(objectOf(kind))) return false;
    }
    return true;
}
static_assert(numbersAreFree());

} // namespace mirtane
