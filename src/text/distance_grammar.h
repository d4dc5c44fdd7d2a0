#pragma once

#include <string_view>

namespace mirtane {

inline constexpr double centimetresPerMetre = 100;

// A length as a person types it: feet'inches, or with metric metres'centimetres. A text with no "'" is all
// inches or centimetres. A "-" in front makes it negative; any other "-" and a second "'" are skipped, so
// 5'-6 is 5'6. A unit that can't be read, or is too large for a float, counts as 0. Never fails.

// The length in inches.
float readInches(std::string_view text, bool metric);

// The length in world units, twelve to the inch.
float readDistance(std::string_view text, bool metric);

} // namespace mirtane
