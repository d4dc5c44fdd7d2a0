#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// The name of the DXF file of a drawing, and of the drawing of a DXF file: the last four characters, whatever
// they are, give way to ".dxf" or ".mtd".
std::string dxfNameOf(std::string_view drawingName);
std::string drawingNameOf(std::string_view dxfName);

} // namespace mirtane
