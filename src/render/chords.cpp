#include "render/chords.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mirtane {
namespace {

void drawIfInView(Canvas& pic1, const View& view, Point a, Point b)
{
    if (pieceInView(view, a, b)) pic1.line(a.x, a.y, b.x, b.y);
}

Point moved(Point from, double dx, double dy)
{
    Point p = from;
    keep(p.x, from.x + dx);
    keep(p.y, from.y + dy);
    return p;
}

// Pieces first to last, counted from 1; none if last is below first.
struct PieceRange {
    std::int32_t first;
    std::int32_t last;
};

std::int32_t pieceAt(double share, std::int32_t count)
{
    const double piece = std::floor(std::clamp(share, 0.0, 1.0) * count);
    return static_cast<std::int32_t>(piece); // clamped to 0 to count
}

// Narrows the shares of the way from..to (coordinates) that lie between two limits.
void narrow(double& enters, double& leaves, double from, double to, double low, double high)
{
    const double way = to - from;
    if (way == 0) {
        if (from < low || from > high) leaves = -1;
        return;
    }
    const double a = (low - from) / way;
    const double b = (high - from) / way;
    enters = std::max(enters, std::min(a, b));
    leaves = std::min(leaves, std::max(a, b));
}

PieceRange piecesInView(const View& view, const LinePieces& pieces)
{
    double enters = 0;
    double leaves = 1;
    narrow(enters, leaves, pieces.a.x, pieces.b.x, view.viewLeft, view.viewRight);
    narrow(enters, leaves, pieces.a.y, pieces.b.y, view.viewTop, view.viewBottom);
    if (!(enters <= leaves)) {
        // The line misses the view; a piece may still span its corner without being beyond one side, if the
        // way past the corner is no longer than a piece.
        constexpr double mostPieces = 2;
        if (leaves < 0 || (enters - leaves) * pieces.count > mostPieces) return {1, 0};
        std::swap(enters, leaves);
    }
    return {std::max(1, pieceAt(enters, pieces.count) - 1),
            std::min(pieces.count, pieceAt(leaves, pieces.count) + 2)};
}

Point pointAt(const Chords& c, double angle)
{
    const double along = c.r * std::cos(angle);
    const double across = c.r * std::sin(angle) * c.ratio;
    return moved(c.centre, along * c.ux - across * c.uy, -along * c.uy - across * c.ux);
}

struct Corner {
    double x, y; // with the circle as unit circle, y up
};

std::array<Corner, 4> cornersOnUnitCircle(const View& view, const Chords& c)
{
    std::array<Corner, 4> corners{};
    const float xs[] = {view.viewLeft, view.viewRight, view.viewRight, view.viewLeft};
    const float ys[] = {view.viewTop, view.viewTop, view.viewBottom, view.viewBottom};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        // Widened before the difference, or the corners are one point as seen from far away.
        const double dx = static_cast<double>(xs[i]) - c.centre.x;
        const double dy = static_cast<double>(c.centre.y) - ys[i];
        corners[i].x = quotient(dx * c.ux + dy * c.uy, c.r);
        corners[i].y = quotient(dy * c.ux - dx * c.uy, c.r * c.ratio);
    }
    return corners;
}

bool surroundsCentre(const std::array<Corner, 4>& corners)
{
    int left = 0;
    int right = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Corner& a = corners[i];
        const Corner& b = corners[(i + 1) % corners.size()];
        const double side = a.x * b.y - a.y * b.x;
        if (side >= 0) ++left;
        if (side <= 0) ++right;
    }
    return left == 4 || right == 4;
}

// The directions in which the view is seen from the centre: from first counter-clockwise over width
// (radians).
struct Directions {
    double first;
    double width;
};

double turnTo(double from, double to)
{
    const double turn = std::fmod(to - from, fullTurn);
    return turn < 0 ? turn + fullTurn : turn;
}

Directions directionsOfView(const View& view, const Chords& c)
{
    const std::array<Corner, 4> corners = cornersOnUnitCircle(view, c);
    const Directions all{0, fullTurn};
    if (surroundsCentre(corners)) return all;
    const double middle = std::atan2(corners[0].y + corners[2].y, corners[0].x + corners[2].x);
    double before = 0;
    double behind = 0;
    for (const Corner& corner : corners) {
        const double turn = std::remainder(std::atan2(corner.y, corner.x) - middle, fullTurn);
        if (!std::isfinite(turn)) return all;
        before = std::max(before, -turn);
        behind = std::max(behind, turn);
    }
    return {middle - before, before + behind};
}

// Whether the view lies so far inside that no chord reaches it. On the unit circle a chord is no longer than
// its step; a flat ellipse stretches what lies beside it.
bool isFarInside(const View& view, const Chords& c)
{
    constexpr double rounding = 1e-6; // of points on the surface, as a share of the radius
    const double flat = std::abs(c.ratio);
    const double reach = std::abs(c.sweep / c.count) * std::max(flat, quotient(1, flat));
    return std::ranges::all_of(cornersOnUnitCircle(view, c), [reach](const Corner& corner) {
        return std::hypot(corner.x, corner.y) < 1 - reach - rounding;
    });
}

void drawChordRange(Canvas& pic1, const View& view, const Chords& c, PieceRange range)
{
    const double step = c.sweep / c.count;
    Point previous = range.first == 1 ? c.start : pointAt(c, c.firstAngle + (range.first - 1) * step);
    for (std::int32_t k = range.first; k <= range.last; ++k) {
        const Point next = pointAt(c, c.firstAngle + k * step);
        drawIfInView(pic1, view, previous, next);
        previous = next;
    }
}

} // namespace

bool pieceInView(const View& view, Point a, Point b)
{
    return (a.x >= view.viewLeft || b.x >= view.viewLeft) &&
           (a.x <= view.viewRight || b.x <= view.viewRight) && (a.y >= view.viewTop || b.y >= view.viewTop) &&
           (a.y <= view.viewBottom || b.y <= view.viewBottom);
}

void drawPieces(Canvas& pic1, const View& view, const LinePieces& pieces)
{
    const PieceRange range = piecesInView(view, pieces);
    const double dx =
        (static_cast<double>(pieces.b.x) - pieces.a.x) / pieces.count; // widened before the difference
    const double dy = (static_cast<double>(pieces.b.y) - pieces.a.y) / pieces.count; // likewise
    Point previous = moved(pieces.a, dx * (range.first - 1), dy * (range.first - 1));
    for (std::int32_t k = range.first; k <= range.last; ++k) {
        const Point next = moved(pieces.a, dx * k, dy * k);
        drawIfInView(pic1, view, previous, next);
        previous = next;
    }
}

// The chords in view lie where the view is seen from the centre. Few chords are walked without asking where.
void drawChords(Canvas& pic1, const View& view, const Chords& c)
{
    constexpr std::int32_t few = 256;
    if (!std::isfinite(c.r * c.sweep) || c.count < 1) return;
    if (c.count <= few) return drawChordRange(pic1, view, c, {1, c.count});
    drawChordRange(pic1, view, c, {1, 1}); // its start is the caller's, and may lie anywhere
    if (isFarInside(view, c)) return;
    const double step = c.sweep / c.count;
    const Directions seen = directionsOfView(view, c);
    const double first = turnTo(c.firstAngle, seen.first - step);
    const double last = first + seen.width + 2 * step;
    // A view seen across the start of the line has a part at its end and a part at its beginning.
    for (const double turn : {first - fullTurn, first}) {
        const std::int32_t from = pieceAt(turn / c.sweep, c.count) + 1;
        const std::int32_t to = std::min(c.count, pieceAt((turn + last - first) / c.sweep, c.count) + 1);
        if (turn <= c.sweep && turn + last - first >= 0)
            drawChordRange(pic1, view, c, {std::max(from, 2), to});
    }
}

} // namespace mirtane
