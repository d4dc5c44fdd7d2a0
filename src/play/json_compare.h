#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mirtane::play {

// The string that a JSON string literal stands for; nothing where text is none.
std::optional<std::string> stringOfJson(std::string_view text);

bool isJson(std::string_view text);

// Whether the answer is what was expected: an expected object is compared by the fields it names alone,
// numbers agree within 1 part in 100,000 or 0.001. Both must be JSON.
bool agrees(std::string_view answer, std::string_view expected);

} // namespace mirtane::play
