#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// Files keep text in code page Windows-1252, one byte a character; in memory it is UTF-8.

bool inCodePage(char32_t code);

// The first character of utf8 that the code page lacks; empty where it has them all.
std::string_view firstBeyondCodePage(std::string_view utf8);

// Whether the bytes of a text for a file are those of its UTF-8: all of them are below 80.
bool isSameInCodePage(std::string_view utf8);

// The bytes of utf8 for a file. A character that the code page lacks, and each malformed byte, becomes "?".
std::string toCodePage(std::string_view utf8);

// Bytes from a file as UTF-8. All 256 of them have a character, and toCodePage() gives the same bytes back:
// the five that the code page leaves open (81 8D 8F 90 9D) stand for the control characters of the same
// number.
std::string fromCodePage(std::string_view bytes);

} // namespace mirtane
