#include "render/chords.h"

#include "geometry/fault.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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
    std::int32_t piece = 0;
    keep(piece, std::floor(std::clamp(share, 0.0, 1.0) * count));
    return piece;
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

// The limits of the view, a little wider: a coordinate beyond one is still beyond once it is rounded to 32
// bits.
struct Limits {
    explicit Limits(const View& view)
        : left(view.viewLeft - room(view.viewLeft)), top(view.viewTop - room(view.viewTop)),
          right(view.viewRight + room(view.viewRight)), bottom(view.viewBottom + room(view.viewBottom))
    {
    }

    // Whether something within a reach of a place may lie inside. Nothing does of what is no place.
    bool meet(double x, double reachX, double y, double reachY) const
    {
        return x + reachX >= left && x - reachX <= right && y + reachY >= top && y - reachY <= bottom;
    }

    static double room(double limit) { return std::abs(limit) * coordinateStep; }

    static constexpr double coordinateStep = 1.2e-7; // of 32 bits, as a part of the coordinate
    double left, top, right, bottom;
};

constexpr double rounding = 1e-15; // of what is worked out, as a part of its parts

// So many chords are drawn as one as are together not longer than can be told apart, be it that they are
// shorter than the steps of the window's coordinates or of the radius, or that the window is very narrow.
std::int32_t chordsTaken(const View& view, const Chords& c)
{
    constexpr std::int32_t few = 4096; // as many as a window of any usual shape shows
    if (c.count <= few) return 1;
    const double width = static_cast<double>(view.viewRight) - view.viewLeft; // widened before the difference
    const double height = static_cast<double>(view.viewBottom) - view.viewTop; // likewise
    const double farthest = std::max({std::abs(view.viewLeft), std::abs(view.viewTop),
                                      std::abs(view.viewRight), std::abs(view.viewBottom)});
    const double least =
        std::max({2 * (width + height) / few, Limits::room(farthest), std::abs(c.r) * rounding});
    std::int32_t taken = c.count;
    keep(taken,
         std::clamp(std::ceil(quotient(least * c.count, std::abs(c.r * c.sweep))), 1.0, 1.0 * c.count));
    return taken;
}

// Goes through the chords of a line and passes over each half of it, and each half of that, that lies wholly
// beyond one side of the view.
class ChordWalk {
  public:
    ChordWalk(Canvas& pic1, const View& view, const Chords& chords)
        : pic1_(pic1), view_(view), limits_(view), c_(chords), step_(chords.sweep / chords.count),
          taken_(chordsTaken(view, chords)),
          reachX_(std::abs(chords.r) * std::hypot(chords.ux, chords.ratio * chords.uy)),
          reachY_(std::abs(chords.r) * std::hypot(chords.uy, chords.ratio * chords.ux))
    {
    }

    std::int64_t run()
    {
        walk({1, 1}); // its start is the caller's, and may lie anywhere
        if (c_.count > 1) search({2, c_.count});
        return looked_;
    }

  private:
    void search(PieceRange range)
    {
        constexpr std::int32_t few = 8;
        ++looked_;
        const std::int32_t length = range.last - range.first;
        if (length >= few && isBeyond(range)) return;
        if (length < std::max(few, taken_)) return walk(range);
        const std::int32_t middle = range.first + length / 2;
        search({range.first, middle});
        search({middle + 1, range.last});
    }

    // A point is no further from that of another angle than the angle between them times the radius.
    bool isBeyond(PieceRange range) const
    {
        constexpr double diameter = 2;
        const double from = c_.firstAngle + (range.first - 1) * step_;
        const double to = c_.firstAngle + range.last * step_;
        const double turn = std::abs(to - from) / 2 + (std::abs(from) + std::abs(to)) * rounding;
        const double middle = (from + to) / 2;
        const double along = c_.r * std::cos(middle);
        const double across = c_.r * std::sin(middle) * c_.ratio;
        const double xs[] = {c_.centre.x, along * c_.ux, -across * c_.uy};
        const double ys[] = {c_.centre.y, -along * c_.uy, -across * c_.ux};
        return !limits_.meet(sum(xs), reachX_ * std::min(turn, diameter) + roundingOf(xs), sum(ys),
                             reachY_ * std::min(turn, diameter) + roundingOf(ys));
    }

    static double sum(const double (&parts)[3]) { return parts[0] + parts[1] + parts[2]; }

    static double roundingOf(const double (&parts)[3])
    {
        return (std::abs(parts[0]) + std::abs(parts[1]) + std::abs(parts[2])) * rounding;
    }

    void walk(PieceRange range)
    {
        Point previous = range.first == 1 ? c_.start : at(range.first - 1);
        for (std::int32_t k = range.first - 1; k < range.last;) {
            k = range.last - k > taken_ ? k + taken_ : range.last;
            const Point next = at(k);
            drawIfInView(pic1_, view_, previous, next);
            previous = next;
            ++looked_;
        }
    }

    Point at(std::int32_t k) const { return pointAt(c_, c_.firstAngle + k * step_); }

    Canvas& pic1_;
    const View& view_;
    const Limits limits_;
    const Chords& c_;
    double step_;
    std::int32_t taken_;
    double reachX_, reachY_; // of the whole line from its centre
    std::int64_t looked_ = 0;
};

// An angle that has turned thousands of times leaves its chords too few digits, and what lies beyond a whole
// turn lies over what has been drawn.
Chords withinATurn(const Chords& chords)
{
    constexpr double manyTurns = 100;
    constexpr double turnAndMore = 6.3;
    Chords c = chords;
    if (std::abs(c.firstAngle) > manyTurns) c.firstAngle = std::remainder(c.firstAngle, 2 * std::numbers::pi);
    if (!(std::abs(c.sweep) > turnAndMore)) return c;
    const double step = c.sweep / c.count;
    keep(c.count, std::min(std::ceil(turnAndMore / std::abs(step)), 1.0 * c.count));
    c.sweep = step * c.count;
    return c;
}

} // namespace

bool pieceInView(const View& view, Point a, Point b)
{
    return (a.x >= view.viewLeft || b.x >= view.viewLeft) &&
           (a.x <= view.viewRight || b.x <= view.viewRight) && (a.y >= view.viewTop || b.y >= view.viewTop) &&
           (a.y <= view.viewBottom || b.y <= view.viewBottom);
}

std::int64_t drawPieces(Canvas& pic1, const View& view, const LinePieces& pieces)
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
    return std::max(0, range.last - range.first + 1);
}

std::int64_t drawChords(Canvas& pic1, const View& view, const Chords& chords)
{
    if (!std::isfinite(chords.r * chords.sweep) || chords.count < 1) return 0;
    const Chords c = withinATurn(chords);
    return ChordWalk(pic1, view, c).run();
}

} // namespace mirtane
