#include "hatch_fill_model.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mirtane::fake {
namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double nothing = 1e-9; // shorter is no length
constexpr double nudge = 1e-5;

Vec operator+(Vec a, Vec b)
{
    return {a.x + b.x, a.y + b.y};
}

Vec operator-(Vec a, Vec b)
{
    return {a.x - b.x, a.y - b.y};
}

Vec operator*(double k, Vec a)
{
    return {k * a.x, k * a.y};
}

double dot(Vec a, Vec b)
{
    return a.x * b.x + a.y * b.y;
}

double cross(Vec a, Vec b)
{
    return a.x * b.y - a.y * b.x;
}

double distance(Vec a, Vec b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

double distanceToSide(Vec p, Vec a, Vec b)
{
    const double length2 = dot(b - a, b - a);
    const double t = length2 > 0 ? std::clamp(dot(p - a, b - a) / length2, 0.0, 1.0) : 0;
    return distance(p, a + t * (b - a));
}

double fraction(double t)
{
    return t - std::floor(t);
}

// Appends where a to b meets the side, as a part of the way.
void addCutOfLine(Vec a, Vec b, Vec c, Vec d, std::vector<double>& cuts)
{
    const double across = cross(b - a, d - c);
    if (std::abs(across) < nothing) return;
    const double t = cross(c - a, d - c) / across;
    const double u = cross(c - a, b - a) / across;
    if (t > 0 && t < 1 && u > -nothing && u < 1 + nothing) cuts.push_back(t);
}

void sortApart(std::vector<double>& cuts)
{
    std::ranges::sort(cuts);
    const auto same = [](double a, double b) { return b - a < nothing; };
    const auto repeated = std::ranges::unique(cuts, same);
    cuts.erase(repeated.begin(), repeated.end());
}

} // namespace

Vec Curve::at(double t) const
{
    if (kind == Kind::line) return a + t * (b - a);
    const double angle = start + t * sweep;
    return {a.x + radius * std::cos(angle), a.y - radius * std::sin(angle)};
}

double Curve::length() const
{
    if (kind == Kind::point) return 1;
    return kind == Kind::line ? distance(a, b) : radius * sweep;
}

double Curve::partAt(Vec p) const
{
    return dot(p - a, b - a) / dot(b - a, b - a);
}

FillModel::FillModel(const HatchFill& fill) : fill_(fill)
{
    const double scale = fill.scale;
    width_ = std::abs(scale * fill.rows[0].hatchTileW);
    height_ = std::abs(scale * fill.rows[0].hatchTileH);
    for (const BoundaryLeg& leg : fill.boundary) {
        sides_.push_back({toTile(leg.from), toTile(leg.to)});
        const Vec a = sides_.back().a;
        low_ = {std::min(low_.x, a.x), std::min(low_.y, a.y)};
        high_ = {std::max(high_.x, a.x), std::max(high_.y, a.y)};
    }
}

Vec FillModel::toTile(Point p) const
{
    const Point first = fill_.boundary[0].from;
    const Vec off{static_cast<double>(p.x) - first.x, static_cast<double>(p.y) - first.y}; // widened
    const double c = std::cos(fill_.rotation), s = std::sin(fill_.rotation);
    return {dot(off, {c, -s}), dot(off, {s, c})};
}

// -- cells --

std::vector<FillModel::Cell> FillModel::cells() const
{
    std::vector<Cell> all;
    const auto last = [](double high, double size) { return static_cast<int>(std::ceil(high / size)); };
    for (int row = -last(-low_.y, height_); row < last(high_.y, height_); ++row) {
        for (int column = -last(-low_.x, width_); column < last(high_.x, width_); ++column) {
            if (isReached({column, row})) all.push_back({column, row});
        }
    }
    return all;
}

bool FillModel::isReached(Cell cell) const
{
    const double left = cell.column * width_, right = (cell.column + 1) * width_;
    const double top = cell.row * height_, bottom = (cell.row + 1) * height_;
    return sideIsReached({left, top}, {left, bottom}) || sideIsReached({right, top}, {right, bottom}) ||
           sideIsReached({left, top}, {right, top}) || sideIsReached({left, bottom}, {right, bottom});
}

// Whether some length of the cell's side from a to b lies inside. What is on the boundary counts as what is
// right of it or below it.
bool FillModel::sideIsReached(Vec a, Vec b) const
{
    std::vector<double> cuts{0, 1};
    for (const Side& side : sides_) {
        addCutOfLine(a, b, side.a, side.b, cuts);
        for (const Vec corner : {side.a, side.b}) {
            const double t = dot(corner - a, b - a) / dot(b - a, b - a);
            if (t > 0 && t < 1) cuts.push_back(t);
        }
    }
    sortApart(cuts);
    const Vec beside = a.x == b.x ? Vec{nudge, 0} : Vec{0, nudge};
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const Vec middle = a + (cuts[i - 1] + cuts[i]) / 2 * (b - a);
        if (isInside(middle + beside) || liesAlong(a, b, middle)) return true;
    }
    return false;
}

// Whether a side of the boundary along the line through a and b passes over p on it.
bool FillModel::liesAlong(Vec a, Vec b, Vec p) const
{
    return std::ranges::any_of(sides_, [&](const Side& side) {
        return std::abs(cross(side.a - a, b - a)) < nothing && std::abs(cross(side.b - a, b - a)) < nothing &&
               distance(side.a, side.b) > nothing && distanceToSide(p, side.a, side.b) < nothing;
    });
}

// By a ray in a direction that no side has.
bool FillModel::isInside(Vec p) const
{
    const Vec ray{0.8191520442889918, 0.5735764363510461};
    bool odd = false;
    for (const Side& side : sides_) {
        const double sideOfA = cross(ray, side.a - p), sideOfB = cross(ray, side.b - p);
        if ((sideOfA > 0) == (sideOfB > 0)) continue;
        const Vec hit = side.a + sideOfA / (sideOfA - sideOfB) * (side.b - side.a);
        if (dot(ray, hit - p) > 0) odd = !odd;
    }
    return odd;
}

bool FillModel::isDoubtful() const
{
    constexpr double near = 1e-3;
    const auto isNearGrid = [](double v, double size) { return std::abs(std::remainder(v, size)) < near; };
    for (std::size_t i = 1; i < sides_.size(); ++i) {
        if (isNearGrid(sides_[i].a.x, width_) || isNearGrid(sides_[i].a.y, height_)) return true;
    }
    for (double x = std::floor(low_.x / width_) * width_; x < high_.x; x += width_) {
        for (double y = std::floor(low_.y / height_) * height_; y < high_.y; y += height_) {
            if (std::hypot(x, y) < width_ / 2) continue; // the first corner
            for (const Side& side : sides_) {
                if (distanceToSide({x, y}, side.a, side.b) < near) return true;
            }
        }
    }
    return false;
}

// -- curves --

std::vector<Expected> FillModel::curves() const
{
    std::vector<Expected> all;
    for (const Cell cell : cells()) {
        for (const HatchRow& row : fill_.rows) {
            if (row.hatchName == fill_.name) all.push_back(clipped(placed(row, cell)));
        }
    }
    return all;
}

Curve FillModel::placed(const HatchRow& row, Cell cell) const
{
    const Vec origin{(cell.column + (row.hatchTileW < 0 ? 1 : 0)) * width_,
                     (cell.row + (row.hatchTileH < 0 ? 1 : 0)) * height_};
    const double scale = fill_.scale;
    Curve curve{row.hatchKind, row.hatchStyle};
    curve.a = origin + scale * Vec{row.h1.x, row.h1.y};
    curve.b = origin + scale * Vec{row.h2.x, row.h2.y};
    curve.radius = row.hatchKind == Kind::point ? 0 : scale * row.hatchRad;
    curve.start = row.hatchKind == Kind::arc ? row.hatchA1 : 0;
    curve.sweep = row.hatchKind == Kind::arc ? turn * fraction((row.hatchA2 - row.hatchA1) / turn) : turn;
    return curve;
}

// What is on the boundary counts as what is below it, and where that is the boundary too, right of it.
Expected FillModel::clipped(const Curve& curve) const
{
    const auto stays = [&](double t) { return isInside(curve.at(t) + Vec{nudge / 1000, nudge}); };
    std::vector<double> cuts = cutsOf(curve);
    Expected expected{curve, {}, isDoubtful(curve)};
    if (curve.kind == Kind::line && distance(curve.a, curve.b) < nothing) return expected;
    if (curve.kind == Kind::circle && cuts.size() < 2) {
        if (stays(0)) expected.inside.push_back({0, 1});
        return expected;
    }
    if (curve.kind == Kind::circle) {
        cuts.push_back(cuts.front() + 1);
    } else {
        cuts.insert(cuts.begin(), 0);
        cuts.push_back(1);
    }
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        if (stays((cuts[i - 1] + cuts[i]) / 2)) expected.inside.push_back({cuts[i - 1], cuts[i]});
    }
    return expected;
}

std::vector<double> FillModel::cutsOf(const Curve& curve) const
{
    std::vector<double> cuts;
    if (curve.kind == Kind::point) return cuts;
    for (const Side& side : sides_) {
        if (curve.kind == Kind::line)
            addCutOfLine(curve.a, curve.b, side.a, side.b, cuts);
        else
            addCutsOfCircle(side, curve, cuts);
    }
    sortApart(cuts);
    return cuts;
}

void FillModel::addCutsOfCircle(const Side& side, const Curve& curve, std::vector<double>& cuts) const
{
    const double length = distance(side.a, side.b);
    if (length == 0) return;
    const Vec way = 1 / length * (side.b - side.a);
    const double foot = dot(curve.a - side.a, way);
    const double off = std::abs(cross(curve.a - side.a, way));
    if (off > curve.radius + nothing) return;
    const double half = std::sqrt(std::max(0.0, curve.radius * curve.radius - off * off));
    for (const double along : {foot - half, foot + half}) {
        if (along < -nothing || along > length + nothing) continue;
        const Vec hit = side.a + along * way - curve.a;
        const double t = turn * fraction((std::atan2(-hit.y, hit.x) - curve.start) / turn) / curve.sweep;
        const bool isAtAnEnd = t < nothing || t > 1 - nothing;
        if (!isAtAnEnd)
            cuts.push_back(t);
        else if (curve.kind == Kind::circle)
            cuts.push_back(0);
    }
}

// A corner or a side that all but touches a circle, or a point.
bool FillModel::isDoubtful(const Curve& curve) const
{
    if (curve.kind == Kind::line) return false;
    const double near = curve.kind == Kind::point ? 1e-3 : 0.03;
    const auto allButTouches = [&](double distance) {
        const double off = std::abs(distance - curve.radius);
        return off > nothing && off < near;
    };
    return std::ranges::any_of(sides_, [&](const Side& side) {
        return allButTouches(distance(curve.a, side.a)) ||
               allButTouches(distanceToSide(curve.a, side.a, side.b));
    });
}

} // namespace mirtane::fake
