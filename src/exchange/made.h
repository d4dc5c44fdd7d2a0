#pragma once

#include "exchange/look.h"
#include "exchange/vec.h"
#include "tables/kind.h"

#include <array>
#include <cstdint>
#include <map>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace mirtane {

// The height of capitals of ours, of a text's size.
inline constexpr double capitals = 2.0 / 3;

struct MadeText {
    std::string words;              // UTF-8, one line, no codes left in it
    std::string face;               // empty for the program's own
    std::int16_t justification = 0; // 0 left, 1 right, 2 centre
    bool underlined = false;
};

// An object that a file gave, in the file's units, y up: the fields of a record, as exact as they came.
// Points p[0] to p[4] are p1 to p5 of the record's kind, all as that kind has them (of a text: p[0] alone,
// the left upper corner of the line, as our texts stand).
struct Made {
    Kind kind{};
    std::array<Vec, 5> p{};
    double radius = 0; // of a circle, an arc, an angular dimension
    double from = 0;   // ends of an arc or of an angular dimension, radians, counter-clockwise
    double to = 0;
    double ratio = 1;         // of an ellipse
    double size = 0;          // of a text; the arrow's, and so the text's, of a dimension
    double rotation = 0;      // of its text, degrees
    bool turnedRound = false; // a text written the other way, so that it can be read where it was mirrored
    std::int16_t arrow = 1;   // of a dimension: 1 closed, 2 open, 3 slash
    MadeText text{};
    Look look{};
};

// What an arc covers, whose end may be the smaller angle where it passes through 0.
inline double turnOf(const Made& arc)
{
    return arc.to < arc.from ? arc.to - arc.from + 2 * std::numbers::pi : arc.to - arc.from;
}

struct MadeLayer {
    std::string name; // UTF-8
    bool hidden = false;
    bool isOwn = false; // a layer of a drawing of ours, which stays though nothing is on it
};

// What was left out, and why ("" for a type that is never drawn), how often.
using LeftOut = std::map<std::pair<std::string, std::string>, std::int64_t>;

struct MadeDrawing {
    std::vector<Made> objects;
    std::vector<MadeLayer> layers;
    std::int16_t workLayer = 0;
    LeftOut leftOut;
    std::int64_t withoutRoom = 0; // objects past the table's end
};

} // namespace mirtane
