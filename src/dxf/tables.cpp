#include "dxf/tables.h"

#include "tables/pens.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace mirtane {
namespace {

// As a file writes them, six characters wide.
constexpr std::string_view writtenColors[] = {"     1", "     2", "     3", "     4",
                                              "     5", "     6", "     7", "     8"};
static_assert(std::size(writtenColors) == std::size(pens));

// The numbers run through the pens twice; the first time the last of them is the grey that stands for it.
constexpr int greyNumber = 8;
constexpr int lastNumber = 15;

// By style, from 0 on.
constexpr std::string_view writtenLineTypes[] = {"CONTINUOUS", "DASHED", "DOT", "DASHDOT", "PHANTOM"};

struct LineTypeRow {
    std::string_view name;
    std::int16_t style;
};

constexpr LineTypeRow readLineTypes[] = {
    {"CONTINUOUS", 0}, {"GENLT_0", 0}, {"BROKEN", 1},  {"HIDDEN", 1},  {"DASHED", 1},
    {"GENLT_1", 1},    {"GENLT_2", 1}, {"GENLT_3", 1}, {"GENLT_4", 1}, {"DOT", 2},
    {"GENLT_9", 2},    {"DASHDOT", 3}, {"BORDER", 3},  {"GENLT_5", 3}, {"GENLT_6", 3},
    {"PHANTOM", 4},    {"DIVIDE", 4},  {"GENLT_7", 4}, {"GENLT_8", 4},
};

// The row of a table that has a row to each number from 0 on, or its first.
template <class Row, std::size_t count> Row rowOrFirst(const Row (&rows)[count], int number)
{
    const bool inTable = number >= 0 && static_cast<std::size_t>(number) < count; // not negative
    return rows[inTable ? number : 0];
}

} // namespace

std::string_view dxfColor(std::int32_t color)
{
    const auto* const found = std::ranges::find(pens, color == fileGrey ? pens[7].color : color, &Pen::color);
    return writtenColors[found == std::end(pens) ? 0 : found - std::begin(pens)];
}

std::int32_t colorOfDxf(int number)
{
    if (number == greyNumber) return fileGrey;
    if (number < 1 || number > lastNumber) number = 1;
    return pens[static_cast<std::size_t>(number - 1) % std::size(pens)].color; // not negative
}

std::string_view dxfLineType(std::int16_t style)
{
    return rowOrFirst(writtenLineTypes, style);
}

std::optional<std::int16_t> styleOfDxf(std::string_view lineType)
{
    for (const LineTypeRow& row : readLineTypes) {
        if (row.name == lineType) return row.style;
    }
    return {};
}

} // namespace mirtane
