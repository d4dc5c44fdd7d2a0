#include "exchange/dimension_likeness.h"

#include "exchange/placing.h"
#include "exchange/tangent_arcs.h"
#include "render/dimension_strokes.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace mirtane {
namespace {

// Strokes of a dimension in the file's units again, about a point near it.
class Strokes final : public StrokeSink {
  public:
    void line(Point a, Point b) override { all.push_back(straightStroke(file(a), file(b))); }
    void arc(Point centre, Point start, float, double a1, double a2) override
    {
        const double turn = a2 - a1 < 0 ? a2 - a1 + 2 * std::numbers::pi : a2 - a1;
        const Vec middle = file(centre), from = file(start), out = from - middle;
        const Vec along = std::cos(turn) * out + std::sin(turn) * turnedLeft(out);
        all.push_back({from, middle + along, middle, length(out), turn});
    }

    std::vector<Stroke> all;

  private:
    static Vec file(Point p) { return {p.x, -p.y}; }
};

std::vector<Stroke> strokesOf(const Made& ours, Vec near)
{
    Strokes strokes;
    dimensionStrokes(shapeOf(recordOf(ours, {.worldPerFile = 1, .move = -near})), strokes);
    return std::move(strokes.all);
}

std::vector<Stroke> strokesOf(std::span<const Made> picture, Vec near)
{
    std::vector<Stroke> strokes;
    for (const Made& one : picture) {
        if (one.kind == Kind::line) strokes.push_back(straightStroke(one.p[0] - near, one.p[1] - near));
        if (one.kind != Kind::arc) continue;
        const Vec centre = one.p[0] - near;
        strokes.push_back({centre + one.radius * wayAt(one.from), centre + one.radius * wayAt(one.to), centre,
                           one.radius, one.to - one.from});
    }
    return strokes;
}

bool areAmong(std::span<const Stroke> strokes, std::span<const Stroke> others, double reach)
{
    return std::ranges::all_of(strokes, [&](const Stroke& stroke) {
        return std::ranges::all_of(std::array{0.0, 0.25, 0.5, 0.75, 1.0}, [&](double part) {
            const Vec p = pointOn(stroke, part);
            return std::ranges::any_of(others,
                                       [&](const Stroke& other) { return distanceTo(other, p) <= reach; });
        });
    });
}

std::string withoutBlanks(std::string words)
{
    std::erase(words, ' ');
    return words;
}

// Where the words of a text have their middle, by the width that most faces have.
Vec middleOf(const Made& text)
{
    constexpr double letter = 0.7; // in heights
    constexpr std::int16_t right = 1, centre = 2;
    const Vec along = wayAt(text.rotation * std::numbers::pi / 180);
    const double width = letter * text.size * static_cast<double>(text.text.words.size()); // a short line
    const double half = text.text.justification == centre  ? 0
                        : text.text.justification == right ? -width / 2
                                                           : width / 2;
    const bool isOwn = text.kind != Kind::text;
    return (isOwn ? text.p[4] : text.p[0]) + half * along - text.size / 2 * turnedLeft(along);
}

bool saysTheSame(const Made& ours, std::span<const Made> picture, double reach)
{
    const auto isText = [](const Made& one) { return one.kind == Kind::text; };
    if (std::ranges::count_if(picture, isText) != 1) return false;
    const Made& text = *std::ranges::find_if(picture, isText);
    return withoutBlanks(text.text.words) == withoutBlanks(ours.text.words) &&
           std::abs(text.size - ours.size) <= 0.05 * ours.size &&
           length(middleOf(text) - middleOf(ours)) <= reach;
}

bool isDrawnLike(const Made& one, const Look& look)
{
    const bool isShape = one.kind == Kind::line || one.kind == Kind::arc || one.kind == Kind::text;
    return isShape && one.look.color == look.color && one.look.hidden == look.hidden;
}

} // namespace

bool showsTheSame(const Made& ours, const Look& look, std::span<const Made> picture)
{
    constexpr double allowed = 0.5; // of the text's size
    const double reach = allowed * ours.size;
    const auto isLike = [&look](const Made& one) { return isDrawnLike(one, look); };
    if (!std::ranges::all_of(picture, isLike) || !saysTheSame(ours, picture, reach)) return false;
    const Vec near = ours.p[0];
    const auto own = strokesOf(ours, near);
    const auto other = strokesOf(picture, near);
    return areAmong(own, other, reach) && areAmong(other, own, reach);
}

} // namespace mirtane
