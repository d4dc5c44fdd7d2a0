#include "dxf/records_out.h"

#include "dxf/file_units.h"
#include "dxf/tables.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/code_page.h"

#include <string>

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

// The bytes 81, 8D, 8F, 90 and 9D, which the code page leaves open, stand for control characters too.
bool isControl(char byte)
{
    constexpr std::string_view open = "\x81\x8D\x8F\x90\x9D\x7F";
    return (byte >= 0 && byte < ' ') || open.find(byte) != std::string_view::npos;
}

// A line end within a text would end its line in the file, and other control characters end or garble the
// file in one reader or another. The words on both sides of a line end or a tab stay apart.
std::string oneLine(std::string_view utf8)
{
    const std::string bytes = toCodePage(utf8);
    std::string line;
    line.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool ofTwo = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        const bool parts = bytes[i] == '\r' || bytes[i] == '\n' || bytes[i] == '\t';
        if (!isControl(bytes[i])) line += bytes[i];
        if (parts && !ofTwo) line += ' ';
    }
    return line;
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
