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
                           one.radius, turnOf(one)});
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

// The one text of the picture, if it is as large and as turned as ours would be.
const Made* textOf(std::span<const Made> picture, const Made& ours)
{
    constexpr double little = 0.05, degrees = 2;
    const auto isText = [](const Made& one) { return one.kind == Kind::text; };
    if (std::ranges::count_if(picture, isText) != 1) return nullptr;
    const Made& text = *std::ranges::find_if(picture, isText);
    const bool isAlike = std::abs(text.size - ours.size) <= little * ours.size &&
                         std::abs(std::remainder(text.rotation - ours.rotation, 360)) <= degrees;
    return isAlike ? &text : nullptr;
}

// The text may have a pen of its own, which ours then is not written in.
bool isDrawnLike(const Made& one, const Look& look)
{
    const bool isLine = one.kind == Kind::line || one.kind == Kind::arc;
    return (one.kind == Kind::text || (isLine && one.look.color == look.color)) &&
           one.look.hidden == look.hidden;
}

} // namespace

std::optional<Made> asPictured(Made ours, const Look& look, std::span<const Made> picture)
{
    constexpr double allowed = 0.25; // of the text's size
    const auto isLike = [&look](const Made& one) { return isDrawnLike(one, look); };
    const Made* const text = textOf(picture, ours);
    if (text == nullptr || !std::ranges::all_of(picture, isLike)) return std::nullopt;
    ours.text = text->text;
    ours.text.justification = 0;
    ours.p[4] = ours.p[4] + middleOf(*text) - middleOf(ours);
    const Vec near = ours.p[0];
    const double reach = allowed * ours.size;
    const auto other = strokesOf(picture, near);
    const auto own = strokesOf(ours, near);
    if (!areAmong(own, other, reach) || !areAmong(other, own, reach)) return std::nullopt;
    return ours;
}

} // namespace mirtane
