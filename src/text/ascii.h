#pragma once

// Letters and blanks of ASCII. All other characters, and the bytes that they are made of, stay as they are.

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

bool isSameButForCase(std::string_view a, std::string_view b);

// Without the blanks before and behind it.
std::string_view trimmed(std::string_view text, std::string_view blanks = " \t");

} // namespace mirtane
