#pragma once

// Colours and line types as a DXF file names them. The numbers of the colours are this program's own scale,
// not the usual one of the format; files of many years hold them.

#include <cstdint>
#include <optional>
#include <string_view>

namespace mirtane {

// The value of a colour's group, six characters wide; a colour of no number of its own has that of blue.
std::string_view dxfColor(std::int32_t color);

// The colour of a number; any other number than 1 to 15 is blue.
std::int32_t colorOfDxf(int number);

// The line type of a style; "CONTINUOUS" for one that is none.
std::string_view dxfLineType(std::int16_t style);

// The style of a line type; nothing for an unknown one.
std::optional<std::int16_t> styleOfDxf(std::string_view lineType);

} // namespace mirtane
