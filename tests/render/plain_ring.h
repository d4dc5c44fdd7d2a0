#pragma once

// Circles and arcs pixel by pixel, in the plainest way: each place of the ring is worked out by itself, and
// drawn if it is in the image. What the raster draws is held against it.

#include "render/raster_dashes.h"

#include <cmath>
#include <numbers>

namespace mirtane::probe {

class PlainRing {
  public:
    PlainRing(Raster& image, double cx, double cy, double r)
        : image_(image), cx_(whole(std::floor(cx))), cy_(whole(std::floor(cy))), square_(squareDrawn(r)),
          half_(whole(std::sqrt(square_ / 2) + 0.5))
    {
    }

    void circle(const Stroke& stroke) { draw(placeAt(0), length() - 1, stroke); }

    void arc(double a1, double a2, const Stroke& stroke)
    {
        double sweep = a2 - a1;
        if (sweep < 0 || sweep > turn + 1e-6) sweep = std::fmod(sweep, turn);
        if (sweep < 0) sweep += turn;
        const std::int64_t from = placeAt(a1);
        std::int64_t steps = placeAt(a2) - from;
        if (steps < 0) steps += length();
        if (sweep < turn / 4 && steps > length() / 2) steps = 0;
        if (sweep > turn * 3 / 4 && steps < length() / 2) steps = length() - 1;
        draw(from, steps, stroke);
    }

  private:
    static constexpr double turn = 2 * std::numbers::pi;

    static std::int64_t whole(double value) { return static_cast<std::int64_t>(value); } // small numbers

    static double squareDrawn(double r)
    {
        const double half = std::floor(r + 0.5) - 0.5;
        const bool single = r >= 3.5 && r >= half && r * r - 1 < half * half;
        return single ? std::nextafter(half, 0.0) * std::nextafter(half, 0.0) : r * r;
    }

    std::int64_t side() const { return 2 * half_ + 1; }
    std::int64_t length() const { return 4 * side(); }

    std::int64_t placeAt(double angle) const
    {
        double a = std::fmod(angle + turn / 8, turn);
        if (a < 0) a += turn;
        const std::int64_t quarter = std::min(whole(a / (turn / 4)), std::int64_t{3});
        const double fromMiddle = a - turn / 8 - static_cast<double>(quarter) * (turn / 4); // 0 to 3
        const std::int64_t offset = whole(std::floor(std::sqrt(square_) * std::sin(fromMiddle) + 0.5));
        return quarter * side() + half_ + std::clamp(offset, -half_, half_);
    }

    void draw(std::int64_t from, std::int64_t steps, const Stroke& stroke)
    {
        forDashes(stroke, 0, steps, [&](std::int64_t first, std::int64_t count) {
            for (std::int64_t step = first; step < first + count; ++step)
                plot((from + step) % length(), stroke.color);
        });
    }

    void plot(std::int64_t place, std::uint32_t color)
    {
        const std::int64_t quarter = place / side();
        const std::int64_t up = place % side() - half_;
        const auto rest = square_ - static_cast<double>(up * up); // small numbers
        const std::int64_t out = whole(std::sqrt(std::max(rest, 0.0)) + 0.5);
        const std::int64_t xs[] = {out, -up, -out, up};
        const std::int64_t ys[] = {-up, -out, up, out};
        const std::int64_t x = cx_ + xs[quarter];
        const std::int64_t y = cy_ + ys[quarter];
        if (x < 0 || x >= image_.width() || y < 0 || y >= image_.height()) return;
        image_.pixels()[static_cast<std::size_t>(y * image_.width() + x)] = color; // in the image
    }

    Raster& image_;
    std::int64_t cx_, cy_;
    double square_;
    std::int64_t half_;
};

} // namespace mirtane::probe
