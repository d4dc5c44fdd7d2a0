#pragma once

// Letters and blanks of ASCII. All other characters, and the bytes that they are made of, stay as they are.

#include <algorithm>
#include <string>
#include <string_view>

namespace mirtane {

constexpr char smallLetter(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; // stays among the letters
}

constexpr char capitalLetter(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; // stays among the letters
}

std::string inSmallLetters(std::string_view text);
std::string inCapitals(std::string_view text);

constexpr bool isSameButForCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, capitalLetter, capitalLetter);
}

// Without the blanks before and behind it. Character by character, since the library's search of a set calls
// another for each.
constexpr std::string_view trimmed(std::string_view text, std::string_view blanks = " \t")
{
    const auto isBlank = [blanks](char c) {
        return std::ranges::any_of(blanks, [c](char blank) { return blank == c; });
    };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

} // namespace mirtane
