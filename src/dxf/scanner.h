#pragma once

// A DXF file as lines. Nothing is copied: a line is a view into the text, which must outlive it.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace mirtane {

// The bytes of a file as text in its own code page.
std::string_view textOf(std::span<const std::uint8_t> bytes);

// Takes a text line by line. CR LF, LF and CR end a line; blanks belong to it. The last line may lack its
// end.
class LineScanner {
  public:
    explicit LineScanner(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

    // The next line; false at the end of the text, and line is then empty.
    bool next(std::string_view& line);
    bool atEnd() const { return at_ == end_; }

  private:
    const char* at_;
    const char* end_;
};

// The number of a group code that is padded to three characters, as "  0" and " 62" are; -1 for any other
// line.
inline int groupCode(std::string_view line)
{
    if (line.size() != 3 || line[0] != ' ') return -1;
    const int tens = line[1] == ' ' ? 0 : line[1] - '0';
    const int ones = line[2] - '0';
    const bool padded = line[1] == ' ' || (tens >= 1 && tens <= 9);
    return padded && ones >= 0 && ones <= 9 ? tens * 10 + ones : -1;
}

// The number that text begins with, behind blanks: a sign, digits with at most one point, an exponent. The
// point is "." or decimalPoint. Nothing if there is none or it is too large for a double; one too small for a
// double is 0.
std::optional<double> leadingNumber(std::string_view text, char decimalPoint);

} // namespace mirtane
