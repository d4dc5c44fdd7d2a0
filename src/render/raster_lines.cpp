// Straight lines. A line runs between the whole pixels of its two ends. It is walked along its longer side,
// one pixel a step; after k steps it has gone across by floor((2 k across + bias) / (2 along)) pixels. Which
// steps lie in the image follows from that in whole numbers, so a clipped line has the very pixels of the
// whole one.

#include "render/raster_dashes.h"

#include <cmath>
#include <cstddef>

namespace mirtane {

namespace {

// Beyond this many pixels a line is shortened before it is walked: products of two such lengths fit 64 bits.
constexpr double farthest = 268435456; // 2^28

struct Range {
    std::int64_t first, last;

    bool empty() const { return first > last; }
    void confine(const Range& other)
    {
        first = std::max(first, other.first);
        last = std::min(last, other.last);
    }
};

std::int64_t floorOf(double v)
{
    // At most farthest, so both ways are exact; std::floor would be a call on older processors.
    const auto whole = static_cast<std::int64_t>(v);
    return static_cast<double>(whole) > v ? whole - 1 : whole;
}

std::int64_t quotientUp(std::int64_t a, std::int64_t b)
{
    return a / b + (a % b > 0 ? 1 : 0); // b above 0
}

// The steps, each +1 or -1 by sign, that lead from a coordinate into 0 to size - 1.
Range stepsInside(std::int64_t from, std::int64_t sign, std::int64_t size)
{
    return sign > 0 ? Range{-from, size - 1 - from} : Range{from - (size - 1), from};
}

bool near(double v)
{
    return std::fabs(v) < farthest; // false for NaN
}

// Narrows t0 to t1 to the part of from + t * delta within the farthest coordinates.
void narrow(double from, double delta, double& t0, double& t1)
{
    if (delta == 0) {
        if (!near(from)) t1 = -1;
        return;
    }
    const double a = (-farthest - from) / delta;
    const double b = (farthest - from) / delta;
    t0 = std::max(t0, std::min(a, b));
    t1 = std::min(t1, std::max(a, b));
}

// Shortens a line to the farthest coordinates; false if nothing of it is left, or if it has no direction.
bool shorten(double& x1, double& y1, double& x2, double& y2)
{
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    if (!std::isfinite(dx) || !std::isfinite(dy)) return false;
    double t0 = 0;
    double t1 = 1;
    narrow(x1, dx, t0, t1);
    narrow(y1, dy, t0, t1);
    if (!(t0 <= t1)) return false;
    const auto within = [](double v) { return std::clamp(v, -farthest, farthest); };
    x2 = within(x1 + t1 * dx);
    y2 = within(y1 + t1 * dy);
    x1 = within(x1 + t0 * dx);
    y1 = within(y1 + t0 * dy);
    return true;
}

// A line as it is walked: its start, the way of a step along and across (+1 or -1) and the whole way of each.
struct Walk {
    std::int64_t alongFrom, acrossFrom;
    std::int64_t alongSign, acrossSign;
    std::int64_t along, across;
    std::int64_t bias;

    Walk(std::int64_t alongFrom_, std::int64_t alongTo, std::int64_t acrossFrom_, std::int64_t acrossTo)
        : alongFrom(alongFrom_), acrossFrom(acrossFrom_), alongSign(alongTo < alongFrom_ ? -1 : 1),
          acrossSign(acrossTo < acrossFrom_ ? -1 : 1), along((alongTo - alongFrom_) * alongSign),
          across((acrossTo - acrossFrom_) * acrossSign),
          // Halfway between two pixels the greater coordinate is taken, from whichever end the line is
          // walked.
          bias(acrossSign > 0 ? along : along - 1)
    {
    }

    // The steps whose pixels lie in an image of these sizes along and across.
    Range visible(std::int64_t alongSize, std::int64_t acrossSize) const
    {
        Range steps{0, along};
        steps.confine(stepsInside(alongFrom, alongSign, alongSize));
        const Range offsets = stepsInside(acrossFrom, acrossSign, acrossSize);
        if (across == 0) return offsets.first <= 0 && offsets.last >= 0 ? steps : Range{0, -1};
        const std::int64_t twice = 2 * along;
        steps.confine({quotientUp(twice * offsets.first - bias, 2 * across),
                       quotientUp(twice * (offsets.last + 1) - bias, 2 * across) - 1});
        return steps;
    }
};

// Draws runs of steps of a walk. The way across is a fixed-point number of 48 bits of fraction, a little
// above the true one: over the steps of an image the excess stays below the distance to the next pixel, which
// is at least 1 / (2 along), above 2^-31.
class Pencil {
  public:
    Pencil(const Walk& walk, std::int64_t first, std::uint32_t* origin, std::ptrdiff_t alongStride,
           std::ptrdiff_t acrossStride, std::uint32_t color)
        : first_(first), alongStride_(alongStride * walk.alongSign),
          acrossStride_(acrossStride * walk.acrossSign), color_(color)
    {
        const std::int64_t twice = std::max<std::int64_t>(2 * walk.along, 1); // a single pixel has no length
        const std::int64_t way = 2 * first * walk.across + walk.bias;
        const std::int64_t crossed = walk.along == 0 || first == 0 ? 0 : way / twice;
        const std::int64_t rest = walk.along == 0 ? 0 : way - crossed * twice;
        const auto length = static_cast<double>(twice); // below 2^31, exact
        slope_ =
            static_cast<std::int64_t>(static_cast<double>(2 * walk.across) / length * one) + 1; // at most 1
        start_ = static_cast<std::int64_t>(static_cast<double>(rest) / length * one) + 2;       // below 1
        pixel_ = origin + (walk.alongFrom + walk.alongSign * first) * alongStride +
                 (walk.acrossFrom + walk.acrossSign * crossed) * acrossStride;
        level_ = walk.across == 0 && alongStride_ == 1;
    }

    void draw(std::int64_t step, std::int64_t count) const
    {
        const std::int64_t skipped = step - first_;
        std::uint32_t* p = pixel_ + skipped * alongStride_;
        if (level_) {
            std::fill_n(p, count, color_);
            return;
        }
        std::int64_t across = start_ + skipped * slope_;
        for (; count > 0; --count) {
            p[(across >> fractionBits) * acrossStride_] = color_;
            p += alongStride_;
            across += slope_;
        }
    }

  private:
    static constexpr int fractionBits = 48;
    static constexpr double one = 281474976710656; // 2^48

    std::int64_t first_;
    std::ptrdiff_t alongStride_, acrossStride_;
    std::uint32_t color_;
    std::int64_t slope_ = 0;
    std::int64_t start_ = 0;
    std::uint32_t* pixel_ = nullptr;
    bool level_ = false;
};

bool insideImage(const Raster& image, std::int64_t x, std::int64_t y)
{
    return x >= 0 && x < image.width() && y >= 0 && y < image.height();
}

} // namespace

void Raster::line(double x1, double y1, double x2, double y2, const Stroke& stroke)
{
    if ((x1 < 0 && x2 < 0) || (y1 < 0 && y2 < 0)) return;
    if ((x1 >= width_ && x2 >= width_) || (y1 >= height_ && y2 >= height_)) return;
    if (!(near(x1) && near(y1) && near(x2) && near(y2)) && !shorten(x1, y1, x2, y2)) return;

    const std::int64_t fromX = floorOf(x1), fromY = floorOf(y1);
    const std::int64_t toX = floorOf(x2), toY = floorOf(y2);
    const bool flat = std::abs(toX - fromX) >= std::abs(toY - fromY);
    const Walk walk = flat ? Walk(fromX, toX, fromY, toY) : Walk(fromY, toY, fromX, toX);
    Range steps{0, walk.along};
    if (!insideImage(*this, fromX, fromY) || !insideImage(*this, toX, toY)) {
        steps = flat ? walk.visible(width_, height_) : walk.visible(height_, width_);
        if (steps.empty()) return;
    }
    const std::ptrdiff_t row = width_;
    const Pencil pencil(walk, steps.first, pixels_.data(), flat ? 1 : row, flat ? row : 1, stroke.color);
    forDashes(stroke, steps.first, steps.last,
              [&](std::int64_t step, std::int64_t count) { pencil.draw(step, count); });
}

} // namespace mirtane
