// Circles and arcs. The ring of a circle is four sides between the diagonals (right, top, left, bottom), each
// with one pixel to every row or column that it spans. A place on the ring counts those pixels
// counter-clockwise from the lower end of the right side. Of each side only the rows or columns of the image
// are visited, so the greatest circle costs no more than the image's edges.

#include "geometry/arc.h"
#include "render/raster_dashes.h"

#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace mirtane {

namespace {

constexpr double turn = 2 * std::numbers::pi;
// Pixels; beyond it coordinates of 32 bits say nothing about a place in the image.
constexpr double farthestCentre = 1099511627776; // 2^40

struct Ring {
    std::int64_t cx, cy;
    double square;     // of the radius
    std::int64_t half; // rows from the middle of a side to its ends

    std::int64_t side() const { return 2 * half + 1; }
    std::int64_t length() const { return 4 * side(); }
    // The pixels of the ring are no further from its centre than that, level and upright.
    std::int64_t reach() const { return std::max(out(0), half); }
    // How far the ring lies out at so many rows from the middle of a side.
    std::int64_t out(std::int64_t offset) const
    {
        const auto u = static_cast<double>(offset);        // below 2^41, exact
        const double rest = std::max(square - u * u, 0.0); // the end of a side may lie just beyond the circle
        return static_cast<std::int64_t>(std::sqrt(rest) + 0.5); // at most 2^41
    }
};

// The square of the radius as drawn. A radius just above a half would put a single pixel out at the four
// extremes, which looks like a fault; it is taken as just below. Tiny circles are too coarse for that.
double squareDrawn(double r)
{
    const double half = std::floor(r + 0.5) - 0.5;
    const bool single = r >= 3.5 && r >= half && r * r - 1 < half * half;
    return single ? std::nextafter(half, 0.0) * std::nextafter(half, 0.0) : r * r;
}

std::optional<Ring> ringOf(double cx, double cy, double r)
{
    if (!(std::fabs(cx) < farthestCentre && std::fabs(cy) < farthestCentre && r >= 0 && r < farthestCentre))
        return std::nullopt;
    const double square = squareDrawn(r);
    return Ring{static_cast<std::int64_t>(std::floor(cx)), // both below 2^40
                static_cast<std::int64_t>(std::floor(cy)), square,
                static_cast<std::int64_t>(std::sqrt(square / 2) + 0.5)}; // below 2^40
}

bool isWhollyIn(const Raster& image, const Ring& ring)
{
    const std::int64_t reach = ring.reach();
    return ring.cx >= reach && ring.cx < image.width() - reach && ring.cy >= reach &&
           ring.cy < image.height() - reach;
}

// From 0 to a turn.
double withinATurn(double angle)
{
    if (angle >= 0 && angle < turn) return angle; // nearly all are, and the remainder is slow
    const double a = std::fmod(angle, turn);
    return a < 0 ? a + turn : a;
}

// The place at an angle; angles at a side's end go to the nearest of its pixels.
std::int64_t placeAt(const Ring& ring, double angle)
{
    const double a = withinATurn(angle + turn / 8);
    const auto side = std::min(static_cast<std::int64_t>(a / (turn / 4)), std::int64_t{3}); // 0 to 3
    const double fromMiddle = a - turn / 8 - static_cast<double>(side) * (turn / 4);
    const double rows = std::sqrt(ring.square) * std::sin(fromMiddle);
    const auto offset = static_cast<std::int64_t>(std::floor(rows + 0.5)); // below 2^41
    return side * ring.side() + ring.half + std::clamp(offset, -ring.half, ring.half);
}

// Draws runs of a ring into an image, pixel by pixel where it lies inside.
class RingPencil {
  public:
    RingPencil(Raster& image, const Ring& ring, const Stroke& stroke)
        : image_(image), ring_(ring), stroke_(stroke), whole_(isWhollyIn(image, ring))
    {
    }

    // The places from one on, so many steps more, counted for the dashes from 0.
    void draw(std::int64_t place, std::int64_t steps)
    {
        std::int64_t done = 0;
        while (done <= steps) {
            const std::int64_t side = place / ring_.side();
            const std::int64_t row = place % ring_.side();
            const std::int64_t count = std::min(ring_.side() - row, steps - done + 1);
            drawSide(side, row, count, done);
            done += count;
            place = (place + count) % ring_.length();
        }
    }

  private:
    // The sides at the right and at the bottom are walked up and to the right, the others the opposite way:
    // an offset from the middle counts up on the screen or to the right.
    void drawSide(std::int64_t side, std::int64_t row, std::int64_t count, std::int64_t done)
    {
        const bool upright = side % 2 == 0;
        const std::int64_t sign = side == 0 || side == 3 ? 1 : -1;
        if (whole_) return drawSeen(side, sign, row, count, done);
        std::int64_t low = upright ? ring_.cy - image_.height() + 1 : -ring_.cx;
        std::int64_t high = upright ? ring_.cy : image_.width() - 1 - ring_.cx;
        if (sign < 0) low = -std::exchange(high, -low);
        const std::int64_t first = std::max(row, low + ring_.half);
        const std::int64_t last = std::min(row + count - 1, high + ring_.half);
        forDashes(stroke_, done + first - row, done + last - row, [&](std::int64_t step, std::int64_t run) {
            for (std::int64_t t = step - done + row; run > 0; ++t, --run) plot(side, sign * (t - ring_.half));
        });
    }

    // A part of a side all of whose pixels lie in the image.
    void drawSeen(std::int64_t side, std::int64_t sign, std::int64_t row, std::int64_t count,
                  std::int64_t done)
    {
        const std::int64_t width = image_.width();
        std::uint32_t* const centre = image_.pixels().data() + ring_.cy * width + ring_.cx;
        const bool upright = side % 2 == 0;
        const std::int64_t along = upright ? -width : 1;
        const std::int64_t outward = (upright ? 1 : width) * sign;
        const Ring ring = ring_; // of our own: no pixel that is written can be a part of it
        const std::uint32_t color = stroke_.color;
        forDashes(stroke_, done, done + count - 1, [=](std::int64_t step, std::int64_t run) {
            std::int64_t offset = sign * (step - done + row - ring.half);
            for (; run > 0; --run, offset += sign) {
                centre[offset * along + ring.out(offset) * outward] = color;
            }
        });
    }

    void plot(std::int64_t side, std::int64_t offset)
    {
        const std::int64_t out = side == 0 || side == 3 ? ring_.out(offset) : -ring_.out(offset);
        const bool upright = side % 2 == 0;
        const std::int64_t x = ring_.cx + (upright ? out : offset);
        const std::int64_t y = upright ? ring_.cy - offset : ring_.cy + out;
        if (x < 0 || x >= image_.width() || y < 0 || y >= image_.height()) return;
        image_.pixels()[static_cast<std::size_t>(y * image_.width() + x)] = stroke_.color; // in the image
    }

    Raster& image_;
    const Ring& ring_;
    const Stroke& stroke_;
    bool whole_;
};

// A solid circle wholly in the image: one root gives eight pixels.
void drawWhole(std::uint32_t* centre, std::ptrdiff_t row, const Ring& ring, std::uint32_t color)
{
    for (std::int64_t u = 0; u <= ring.half; ++u) {
        const std::int64_t v = ring.out(u);
        for (std::uint32_t* p : {centre + u * row, centre - u * row}) p[v] = p[-v] = color;
        for (std::uint32_t* p : {centre + v * row, centre - v * row}) p[u] = p[-u] = color;
    }
}

} // namespace

void Raster::circle(double cx, double cy, double r, const Stroke& stroke)
{
    const std::optional<Ring> ring = ringOf(cx, cy, r);
    if (!ring) return;
    if (isWhollyIn(*this, *ring) && (stroke.style < 1 || stroke.style > 4)) {
        drawWhole(pixels_.data() + ring->cy * width_ + ring->cx, width_, *ring, stroke.color);
        return;
    }
    RingPencil(*this, *ring, stroke).draw(placeAt(*ring, 0), ring->length() - 1);
}

void Raster::arc(double cx, double cy, double r, double a1, double a2, const Stroke& stroke)
{
    const std::optional<Ring> ring = ringOf(cx, cy, r);
    if (!ring || !std::isfinite(a1) || !std::isfinite(a2)) return;
    const double sweep = sweepSeen(a1, a2);
    const std::int64_t from = placeAt(*ring, a1);
    std::int64_t steps = placeAt(*ring, a2) - from;
    if (steps < 0) steps += ring->length();
    // Both ends may have come to the same pixel, or the second before the first: nothing, or nearly the whole
    // ring.
    if (sweep < turn / 4 && steps > ring->length() / 2) steps = 0;
    if (sweep > turn * 3 / 4 && steps < ring->length() / 2) steps = ring->length() - 1;
    RingPencil(*this, *ring, stroke).draw(from, steps);
}

} // namespace mirtane
