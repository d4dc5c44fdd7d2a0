#pragma once

#include "exchange/dxf_list.h"

namespace mirtane {

// The face of a text style: by its name where the style has it, else by the file of the font. Fonts that are
// drawn with the pen have none.
std::string faceOfStyle(const DxfList& list, const DxfRecord& style);

} // namespace mirtane
