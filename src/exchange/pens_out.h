#pragma once

// Pens and line styles as other programs know them.

#include <cstdint>
#include <span>
#include <string_view>

namespace mirtane {

struct PenOut {
    std::int32_t color; // of our pen, 0xBBGGRR
    int number;         // of the colour in the file
    int hundredths;     // of a millimetre, how wide it is on paper: one of the widths that a file may name
};

// The pen that an object is drawn in; of a colour that no pen has, the nearest.
const PenOut& penOut(std::int32_t color);

struct LineTypeOut {
    std::string_view name, description;
    std::span<const double> dashes; // inches; gaps are below 0, points are 0
};

// Of a style; solid for one that is none.
const LineTypeOut& lineTypeOut(std::int16_t style);
std::span<const LineTypeOut> lineTypesOut();

} // namespace mirtane
