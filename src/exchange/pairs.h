#pragma once

#include "exchange/dxf_groups.h"

#include <string>
#include <vector>

namespace mirtane {

// The pairs of code and value that a text is made up of. A line that should be a code and is no number is
// passed over, and so are comments. Values are views into text.
std::vector<DxfGroup> dxfPairs(std::string_view text);

// A binary file as the text that it stands for; the other says whether it is one.
bool isBinaryDxf(std::string_view bytes);
std::string textOfBinaryDxf(std::string_view bytes);

} // namespace mirtane
