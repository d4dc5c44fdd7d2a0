// exchange/spline.cpp: a spline at a parameter, by de Boor's rule on points that carry their weight.

#include "exchange/spline.h"

#include <algorithm>
#include <array>
#include <memory>

namespace mirtane {
namespace {

constexpr int highestDegree = 15;

// A point times its weight, and the weight.
struct Weighted {
    double x = 0, y = 0, w = 0;
};

Weighted between(const Weighted& a, const Weighted& b, double part)
{
    return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part, a.w + (b.w - a.w) * part};
}

struct Knotted {
    std::size_t degree = 3;
    std::vector<double> knots;
    std::vector<Weighted> points;

    double first() const { return knots[degree]; }
    double last() const { return knots[points.size()]; }
    std::size_t spanAt(double t, Side side) const;
    CurvePoint at(double t, Side side) const;
};

// The index of the knot at which the formula for t begins. A span is never empty.
std::size_t Knotted::spanAt(double t, Side side) const
{
    const auto begin = knots.begin() + static_cast<std::ptrdiff_t>(degree); // far below any limit
    const auto end = knots.begin() + static_cast<std::ptrdiff_t>(points.size()) + 1;
    const auto above =
        side == Side::after ? std::upper_bound(begin, end, t) : std::lower_bound(begin, end, t);
    auto span = above == begin ? begin : above - 1;
    if (span >= end - 1) span = std::lower_bound(begin, end, last()) - 1;
    while (span > begin && *span == *(span + 1)) --span;
    return static_cast<std::size_t>(span - knots.begin()); // not before the first
}

CurvePoint Knotted::at(double t, Side side) const
{
    const std::size_t span = spanAt(t, side);
    std::array<Weighted, highestDegree + 1> d;
    std::copy_n(points.begin() + static_cast<std::ptrdiff_t>(span - degree), degree + 1, d.begin());
    Weighted rise;
    for (std::size_t round = 1; round <= degree; ++round) {
        for (std::size_t j = degree; j >= round; --j) {
            const double low = knots[span - degree + j];
            const double width = knots[span + 1 + j - round] - low;
            if (round == degree) {
                const double k = static_cast<double>(degree) / width;
                rise = {(d[j].x - d[j - 1].x) * k, (d[j].y - d[j - 1].y) * k, (d[j].w - d[j - 1].w) * k};
            }
            d[j] = between(d[j - 1], d[j], (t - low) / width);
        }
    }
    const Weighted& p = d[degree];
    const Vec here{p.x / p.w, p.y / p.w};
    return {here, {(rise.x - here.x * rise.w) / p.w, (rise.y - here.y * rise.w) / p.w}};
}

bool areFinite(const Spline& s)
{
    const auto finite = [](double v) { return std::isfinite(v); };
    const auto near = [](Vec p) { return std::abs(p.x) < farthestPoint && std::abs(p.y) < farthestPoint; };
    return std::ranges::all_of(s.points, near) && std::ranges::all_of(s.knots, finite);
}

std::vector<double> evenKnots(std::size_t degree, std::size_t points)
{
    std::vector<double> knots(degree, 0.0);
    for (std::size_t i = 0; i + degree <= points; ++i) knots.push_back(static_cast<double>(i));
    knots.insert(knots.end(), degree, knots.back());
    return knots;
}

// Whether the range between the outer knots is one.
bool fitPoints(const std::vector<double>& knots, std::size_t degree, std::size_t points)
{
    return knots.size() == points + degree + 1 && std::ranges::is_sorted(knots) &&
           knots[degree] < knots[points];
}

Knotted knotted(const Spline& s)
{
    Knotted k{static_cast<std::size_t>(s.degree), s.knots, {}}; // from 1 to the highest
    const auto above0 = [](double w) { return w > 0 && std::isfinite(w); };
    const bool isWeighted = s.weights.size() == s.points.size() && std::ranges::all_of(s.weights, above0);
    for (std::size_t i = 0; i < s.points.size(); ++i) {
        const double w = isWeighted ? s.weights[i] : 1;
        k.points.push_back({s.points[i].x * w, s.points[i].y * w, w});
    }
    if (!fitPoints(k.knots, k.degree, k.points.size())) k.knots = evenKnots(k.degree, k.points.size());
    return k;
}

// Where as many knots are one as the degree says, the curve may turn.
std::vector<std::vector<double>> smoothRanges(const Knotted& k)
{
    std::vector<std::vector<double>> ranges(1);
    auto knot = k.knots.begin() + static_cast<std::ptrdiff_t>(k.degree); // far below any limit
    while (true) {
        const auto next = std::upper_bound(knot, k.knots.end(), *knot);
        ranges.back().push_back(*knot);
        if (*knot >= k.last()) return ranges;
        const auto same = static_cast<std::size_t>(next - knot); // next is behind knot
        if (same >= k.degree && *knot > k.first()) ranges.push_back({*knot});
        knot = next;
    }
}

} // namespace

std::vector<Curve> curvesOf(Spline spline)
{
    if (spline.degree < 1 || spline.degree > highestDegree || !areFinite(spline)) return {};
    if (spline.points.size() <= static_cast<std::size_t>(spline.degree)) return {}; // above 0
    const auto whole = std::make_shared<const Knotted>(knotted(spline));
    std::vector<Curve> curves;
    for (std::vector<double>& range : smoothRanges(*whole))
        curves.push_back({[whole](double t, Side side) { return whole->at(t, side); }, std::move(range)});
    return curves;
}

} // namespace mirtane
