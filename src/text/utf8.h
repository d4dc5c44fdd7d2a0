#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

// All text in memory is UTF-8. What comes from a file or the clipboard may be malformed: each byte that
// belongs to no character then counts as a character by itself, so that no byte is lost and none is counted
// twice.

struct Utf8Step {
    char32_t code = 0;    // of a malformed byte: the byte
    std::size_t size = 0; // in bytes; 0 when the text was empty
    bool wellFormed = false;
};

Utf8Step firstCharacter(std::string_view text);

// code as UTF-8; "?" for a surrogate and for what is beyond U+10FFFF.
std::string encodeUtf8(char32_t code);

// text cut into its characters; joined again they are text.
std::vector<std::string> utf8Characters(std::string_view text);

// How many characters text has.
std::size_t utf8Length(std::string_view text);

// Whether a character is one of 0 to 9.
inline bool isDigit(char32_t code)
{
    return code >= U'0' && code <= U'9';
}

} // namespace mirtane
