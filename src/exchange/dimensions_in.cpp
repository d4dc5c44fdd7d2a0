// exchange/dimensions_in.cpp: a dimension becomes one of ours, if there is such a kind and ours shows what
// the block that pictures it does; else it is drawn by that block.

#include "exchange/curve_records.h"
#include "exchange/dimension_likeness.h"
#include "exchange/dimension_variables.h"
#include "exchange/mtext_layout.h"
#include "exchange/percent_codes.h"
#include "geometry/fault.h"
#include "render/dimension_strokes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <optional>

namespace mirtane {
namespace {

constexpr double degrees = 180 / std::numbers::pi;

namespace type {
constexpr int rotated = 0, aligned = 1, angular = 2, diameter = 3, radius = 4, angularByPoints = 5;
}

// Points of the record, as seen in the drawing.
class DimensionPoints {
  public:
    DimensionPoints(const DxfRecord& record, const DrawingMaker& maker) : record_(record), maker_(maker) {}
    Vec at(int code) const { return maker_.flat(record_.point(code)); }
    Vec way(double angle) const
    {
        const Vec w = wayAt(angle);
        return maker_.flatWay({w.x, w.y, 0});
    }
    bool has(int code) const { return record_.has(code); }

  private:
    const DxfRecord& record_;
    const DrawingMaker& maker_;
};

// As many places as the style has, without noughts behind the last that counts.
std::string numberShown(double value, int decimals)
{
    constexpr double readable = 1e15;
    constexpr int mostDecimals = 8; // that a dimension style can ask for
    std::array<char, 64> shown{};
    const auto end = std::to_chars(shown.begin(), shown.end(), std::abs(value) < readable ? value : 0.0,
                                   std::chars_format::fixed, std::clamp(decimals, 0, mostDecimals));
    std::string text(shown.begin(), end.ptr);
    if (text.find('.') == std::string::npos) return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

// What is measured stands for "<>" and where nothing is said.
std::string wordsOf(const DxfRecord& record, const DxfList& list, const std::string& measured)
{
    std::string said = list.text(record, 1);
    if (said.empty()) return measured;
    const std::size_t at = said.find("<>");
    if (at != std::string::npos) said.replace(at, 2, measured);
    const auto lines = paragraphLines(said, {});
    return lines.empty() ? std::string() : plainLine(lines.front().words).words;
}

double widthOf(const Made& dimension)
{
    constexpr double letter = 0.7; // of a figure, in heights
    return letter * dimension.size * static_cast<double>(dimension.text.words.size());
}

// Upright text: never upside down.
double uprightDegrees(double angle)
{
    const double turned = std::remainder(angle * degrees, 360.0);
    const double upright = turned > 91 ? turned - 180 : turned <= -89 ? turned + 180 : turned;
    return upright < 0 ? upright + 360 : upright;
}

// The upper left corner of its text, from its middle.
void placeText(Made& made, Vec middle)
{
    const Vec along = wayAt(made.rotation / degrees);
    made.p[4] = middle - 0.5 * widthOf(made) * along + 0.5 * made.size * turnedLeft(along);
}

// Where the endless line through a along a way comes nearest to p.
Vec footOn(Vec a, Vec way, Vec p)
{
    return a + quotient(dot(p - a, way), dot(way, way)) * way;
}

struct Measured {
    Made made;
    double value = 0;
    Vec middle; // of the text, where the record has none
    std::string_view before, behind;
};

std::optional<Measured> linear(const DxfRecord& record, const DimensionPoints& p)
{
    const bool isAligned = (record.whole(70) & 7) == type::aligned;
    const Vec way = isAligned ? p.at(14) - p.at(13) : p.way(record.number(50) / degrees);
    Measured m;
    m.made.kind = Kind::linearDimension;
    m.made.p = {p.at(13), p.at(14), footOn(p.at(10), way, p.at(14)), footOn(p.at(10), way, p.at(13)), {}};
    m.value = length(m.made.p[2] - m.made.p[3]);
    m.made.rotation = uprightDegrees(directionOf(way));
    m.middle = 0.5 * (m.made.p[2] + m.made.p[3]);
    return m;
}

std::optional<Measured> radial(const DxfRecord& record, const DimensionPoints& p)
{
    const bool isDiameter = (record.whole(70) & 7) == type::diameter;
    const Vec centre = isDiameter ? 0.5 * (p.at(10) + p.at(15)) : p.at(10);
    Measured m;
    m.made.kind = Kind::radialDimension;
    m.before = isDiameter ? "\u00D8" : "R";
    const Vec elbow = p.has(11) ? p.at(11) : p.at(15);
    m.made.p = {centre, elbow, {}, p.at(15), {}};
    m.value = length(p.at(15) - centre) * (isDiameter ? 2 : 1);
    m.middle = elbow;
    return m;
}

// Where the lines through a, b and c, d meet.
Vec crossing(Vec a, Vec b, Vec c, Vec d)
{
    return a + quotient(cross(c - a, d - c), cross(b - a, d - c)) * (b - a);
}

double turnBetween(double from, double to)
{
    const double turn = std::fmod(to - from, 2 * std::numbers::pi);
    return turn < 0 ? turn + 2 * std::numbers::pi : turn;
}

std::optional<Measured> angular(const DxfRecord& record, const DimensionPoints& p)
{
    const bool byPoints = (record.whole(70) & 7) == type::angularByPoints;
    const Vec vertex = byPoints ? p.at(15) : crossing(p.at(13), p.at(14), p.at(15), p.at(10));
    Vec first = byPoints ? p.at(13) : p.at(14);
    Vec second = byPoints ? p.at(14) : p.at(10);
    const Vec onArc = p.at(byPoints ? 10 : 16);
    const double through = directionOf(onArc - vertex);
    double from = directionOf(first - vertex);
    double to = directionOf(second - vertex);
    if (turnBetween(from, through) > turnBetween(from, to)) {
        std::swap(first, second);
        std::swap(from, to);
    }
    Measured m;
    m.made.kind = Kind::angularDimension;
    m.middle = onArc;
    m.behind = "\u00B0";
    m.made.radius = length(onArc - vertex);
    m.made.from = from;
    m.made.to = from + turnBetween(from, to);
    m.made.p = {vertex, first, second, vertex + m.made.radius * wayAt(from), {}};
    m.value = turnBetween(from, to) * degrees;
    m.made.rotation = uprightDegrees(from + turnBetween(from, to) / 2 - std::numbers::pi / 2);
    return m;
}

std::optional<Measured> measuredBy(const DxfRecord& record, const DimensionPoints& points)
{
    switch (record.whole(70) & 7) {
    case type::rotated:
    case type::aligned:
        return linear(record, points);
    case type::angular:
    case type::angularByPoints:
        return angular(record, points);
    case type::diameter:
    case type::radius:
        return radial(record, points);
    default:
        return std::nullopt;
    }
}

// As the file says, if it does: its program knew what was measured. A length that is just that of the points
// is shown by the style's factor.
double figureOf(const DxfRecord& record, const Measured& m, double factor)
{
    constexpr double near = 1e-6;
    const bool isAngle = m.made.kind == Kind::angularDimension;
    const double said = record.number(42) * (isAngle ? degrees : 1);
    const bool isSaid = said > 0 && std::isfinite(said) && std::abs(said - m.value) > near * m.value;
    if (isSaid) return said;
    return isAngle ? m.value : m.value * factor;
}

Made ownDimension(const DxfRecord& record, Measured m, const DimensionPoints& points, const DxfList& list)
{
    const DimensionVariables variables = dimensionVariables(record, list);
    m.made.size = variables.text;
    m.made.arrow = variables.arrowStyle;
    const std::string shown = numberShown(figureOf(record, m, variables.measures), variables.decimals);
    m.made.text.words = wordsOf(record, list, std::string(m.before).append(shown).append(m.behind));
    if (m.made.kind == Kind::radialDimension) {
        m.made.p[2] = m.made.p[1] + Vec{m.made.size, 0};
        m.made.p[4] = m.made.p[1] + m.made.size * Vec{1.2, 0.625};
    } else {
        const Vec above = 0.8 * m.made.size * turnedLeft(wayAt(m.made.rotation / degrees));
        placeText(m.made, points.has(11) ? points.at(11) : m.middle + above);
    }
    return m.made;
}

// Ours, if the file's can be one; other types have the same numbers for other ways to measure.
std::optional<Made> ownDimension(const DxfRecord& record, const DrawingMaker& maker)
{
    if (!isSameName(record.type, "DIMENSION")) return std::nullopt;
    const DimensionPoints points(record, maker);
    auto measured = measuredBy(record, points);
    if (!measured) return std::nullopt;
    return ownDimension(record, std::move(*measured), points, maker.list());
}

bool isLevelOrUpright(const Made& made)
{
    constexpr double little = 1e-6;
    const Vec line = made.p[2] - made.p[3];
    return std::min(std::abs(line.x), std::abs(line.y)) <= little * length(line);
}

// Whether it may stand in the place of its picture. In a block that is scaled it would measure something
// else.
bool mayStandForPicture(const Made& own, const DrawingMaker& maker)
{
    return !maker.isInBlock() && own.arrow != 0 &&
           (own.kind != Kind::linearDimension || isLevelOrUpright(own));
}

} // namespace

void takeDimension(const DxfRecord& record, DrawingMaker& maker)
{
    const std::size_t before = maker.drawn();
    auto own = ownDimension(record, maker);
    const bool hasPicture = maker.picture(record.name(2), moved(record.point(12)));
    if (!own && !hasPicture) return maker.leftOut(record.type, "without a picture");
    if (hasPicture) {
        if (own && mayStandForPicture(*own, maker))
            own = asPictured(std::move(*own), maker.look, maker.drawnSince(before));
        else
            own.reset();
    }
    if (!own) return;
    if (!hasPicture && own->arrow == 0) own->arrow = arrow::closed;
    maker.takeBack(before);
    maker.add(std::move(*own));
}

} // namespace mirtane
