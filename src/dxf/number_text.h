#pragma once

#include <array>
#include <string_view>

namespace mirtane {

// Room for the text of any number.
using NumberBuffer = std::array<char, 32>;

// The general form of a number: at most 7 significant digits of a float, 15 of a double, no zeros at the end
// and no point on a whole number, a form with E for very large and very small ones ("1E-07"). Zero has no
// sign, and what is no number is written as 0. decimalPoint stands for ".". The text lies in buffer.
std::string_view dxfNumber(NumberBuffer& buffer, float value, char decimalPoint);
std::string_view dxfNumber(NumberBuffer& buffer, double value, char decimalPoint);

} // namespace mirtane
