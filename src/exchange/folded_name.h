#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// A name in UTF-8 with all letters small, so that two that differ in that alone are one: Latin, Greek and
// Cyrillic.
std::string foldedName(std::string_view utf8);

} // namespace mirtane
