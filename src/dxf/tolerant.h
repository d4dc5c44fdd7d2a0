#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// A DXF file of another program in the layout that readDxf() knows: group codes padded to three characters,
// CR LF, Windows-1252, and of all records only those, and their groups, that it reads. Polylines of the light
// form become ordinary ones, a polyline's flag, colour and line type hold for all of it, and a centred or
// right-justified text is a left one, at the left point that the file gives for it. Blocks get names that the
// reader takes for blocks. Text of any sort is taken; a file that was cut gives what is there of it, and what
// is no DXF gives a file without objects.
std::string tolerantDxf(std::string_view text);

} // namespace mirtane
