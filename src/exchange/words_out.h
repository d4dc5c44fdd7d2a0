#pragma once

// Words as a DXF file holds them: letters beyond ASCII as "\U+XXXX", and nothing in them that a reader would
// take for a sign of its own.

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

// As our files say of themselves.
inline constexpr std::string_view writtenRelease = "AC1015";
inline constexpr std::string_view writtenCodePage = "ANSI_1252";

std::string dxfLineOfText(std::string_view utf8);
std::string dxfParagraph(std::string_view utf8);

// What no one reads as a text, in pieces, since a file bounds how long one may be.
std::vector<std::string> dxfPieces(std::string_view utf8);
// The start of such a text that goes into one piece: most names of faces are in it whole.
std::string dxfFirstPiece(std::string_view utf8);

// The names of a table: each with no sign that a name may not have, and none like another, in letters small
// or large.
class DxfNames {
  public:
    std::string add(std::string_view utf8);

  private:
    std::set<std::string> taken_;
};

// What a reader makes of such a name.
std::string nameAsRead(std::string_view written);

// Where a text of that justification has its point, as the format counts: 0 left, 1 in the middle, 2 right.
int dxfSideOf(std::int16_t justification);

} // namespace mirtane
