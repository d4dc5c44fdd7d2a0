#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// Sixteen hexadecimal digits that tell one text from another, for names of files.
std::string hashOf(std::string_view text);

} // namespace mirtane
