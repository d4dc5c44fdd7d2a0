#include "dxf/tables.h"

#include <cstddef>
#include <iterator>

namespace mirtane {
namespace {

struct ColorRow {
    std::int32_t color; // 0xBBGGRR
    std::string_view value;
};

constexpr ColorRow writtenColors[] = {
    {0xFF0000, "     1"}, {0x00FF00, "     2"}, {0xFFFF00, "     3"},
    {0x0000FF, "     4"}, {0xFF00FF, "     5"}, {0x0080FF, "     6"},
    {0x00FFFF, "     7"}, {0xE0E0E0, "     8"}, {0xFFFFFF, "     8"},
};

constexpr std::int32_t blue = 0xFF0000;

// By number, from 0 on.
constexpr std::int32_t readColors[] = {
    blue,     0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x0080FF, 0x00FFFF,
    0xE0E0E0, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x0080FF, 0x00FFFF,
};

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
    for (const ColorRow& row : writtenColors) {
        if (row.color == color) return row.value;
    }
    return dxfColor(blue);
}

std::int32_t colorOfDxf(int number)
{
    return rowOrFirst(readColors, number);
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
