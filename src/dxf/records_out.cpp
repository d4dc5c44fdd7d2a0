#include "dxf/records_out.h"

#include "dxf/file_units.h"
#include "dxf/tables.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/code_page.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr std::string_view solid = "CONTINUOUS";
constexpr float sizeToHeight = 18; // world units of a text size to one file unit of its height

void keepPoint(Point& target, Point p)
{
    keep(target.x, p.x);
    keep(target.y, p.y);
}

// Across the writing direction, so that the file's base line lies under the text.
double downward(double degrees)
{
    const double b = degrees * radiansPerDegree - quarterTurn;
    return b < 0 ? b + fullTurn : b;
}

std::string_view justificationValue(float justification)
{
    if (justification == 2) return "     1";
    if (justification == 1) return "     2";
    return "     0";
}

// A line end within a text would end its line in the file.
std::string oneLine(std::string_view utf8)
{
    std::string bytes = toCodePage(utf8);
    std::ranges::replace(bytes, '\r', ' ');
    std::ranges::replace(bytes, '\n', ' ');
    return bytes;
}

} // namespace

void DxfRecords::setPen(std::int32_t color, std::int16_t style)
{
    color_ = dxfColor(color);
    lineType_ = dxfLineType(style);
}

void DxfRecords::begin(std::string_view name, std::string_view lineType)
{
    out_.line(name);
    out_.pair("  8", "clay");
    out_.pair("  6", lineType);
    out_.pair(" 62", color_);
}

void DxfRecords::line(Point from, Point to)
{
    keepPoint(scratch_.lineFrom, from);
    keepPoint(scratch_.lineTo, to);
    begin("LINE", lineType_);
    out_.pair(" 10", scratch_.lineFrom.x);
    out_.pair(" 20", scratch_.lineFrom.y);
    out_.pair(" 30", "0.0");
    out_.pair(" 11", scratch_.lineTo.x);
    out_.pair(" 21", scratch_.lineTo.y);
    out_.pair(" 31", "0.0");
    out_.line("  0");
}

void DxfRecords::round(std::string_view name, Point centre, float radius)
{
    begin(name, lineType_);
    out_.pair(" 10", centre.x);
    out_.pair(" 20", centre.y);
    out_.pair(" 30", "0.0");
    out_.pair(" 40", radius);
}

// The line that closes a circle or an arc has two characters, as in every file that the program ever wrote.
void DxfRecords::circle(Point centre, float radius)
{
    round("CIRCLE", centre, radius);
    out_.line(" 0");
}

void DxfRecords::arc(Point centre, float radius, double a1, double a2)
{
    round("ARC", centre, radius);
    out_.pair(" 50", a1 * degreesPerRadian);
    out_.pair(" 51", a2 * degreesPerRadian);
    out_.line(" 0");
}

void DxfRecords::text(const DxfWords& text)
{
    const double down = downward(text.degrees);
    const Point base = toFile(polarPoint(text.base, text.size, down));
    const Point second = toFile(polarPoint(scratch_.textSecond, text.size, down));
    begin("TEXT", solid);
    out_.pair(" 10", base.x);
    out_.pair(" 20", base.y);
    out_.pair(" 30", "0.0");
    out_.pair(" 11", second.x);
    out_.pair(" 21", second.y);
    out_.pair(" 31", "0.0");
    out_.pair(" 40", text.size / sizeToHeight);
    out_.pair(" 41", "1.0");
    out_.pair(" 50", text.degrees);
    out_.pair("  1", oneLine(text.words));
    out_.pair("  7", "ROMANC");
    out_.pair(" 72", justificationValue(text.justification));
    out_.line("  0");
}

} // namespace mirtane
