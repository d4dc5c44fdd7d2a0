#include "plain.h"

#include "plain_pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace mirtane::bench {
namespace {

// Of a pixel: an end clipped to less than this from the edge can't be rounded onto the next pixel.
constexpr double roundingRoom = 1e-6;

struct Segment {
    double x1, y1, x2, y2;
};

// Narrows from..to, shares of a segment, to where p * share <= q. False when nothing is left.
bool narrow(double p, double q, double& from, double& to)
{
    if (p == 0) return q >= 0;
    const double share = q / p;
    if (p < 0) from = std::max(from, share);
    if (p > 0) to = std::min(to, share);
    return from <= to;
}

// Liang and Barsky's clipping, to 0..right and 0..bottom.
bool clip(Segment& s, double right, double bottom)
{
    const double dx = s.x2 - s.x1;
    const double dy = s.y2 - s.y1;
    double from = 0;
    double to = 1;
    if (!narrow(-dx, s.x1, from, to) || !narrow(dx, right - s.x1, from, to)) return false;
    if (!narrow(-dy, s.y1, from, to) || !narrow(dy, bottom - s.y1, from, to)) return false;
    s = {s.x1 + from * dx, s.y1 + from * dy, s.x1 + to * dx, s.y1 + to * dy};
    return true;
}

// Pixels on, off, on, off, by style.
constexpr int dashes[][6] = {{1}, {18, 6}, {3, 3}, {9, 6, 3, 6}, {9, 3, 3, 3, 3, 3}};
constexpr int dashCounts[] = {1, 2, 2, 4, 6};

class Dashes {
  public:
    explicit Dashes(std::int16_t style) : style_(style) {}

    bool on()
    {
        if (style_ == 0) return true;
        const bool now = run_ % 2 == 0;
        if (++done_ == dashes[style_][run_]) {
            run_ = (run_ + 1) % dashCounts[style_];
            done_ = 0;
        }
        return now;
    }

  private:
    int style_, run_ = 0, done_ = 0;
};

void bresenham(Image image, const Segment& s, std::uint32_t color, Dashes pen)
{
    int x = static_cast<int>(s.x1); // within the image, as it was clipped; so the others
    int y = static_cast<int>(s.y1);
    const int lastX = static_cast<int>(s.x2);
    const int lastY = static_cast<int>(s.y2);
    const int dx = std::abs(lastX - x);
    const int dy = -std::abs(lastY - y);
    const int stepX = x < lastX ? 1 : -1;
    const int stepY = y < lastY ? 1 : -1;
    int error = dx + dy;
    for (;;) {
        if (pen.on()) image.pixels[static_cast<std::size_t>(y * image.width + x)] = color; // not negative
        if (x == lastX && y == lastY) return;
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y += stepY;
        }
    }
}

} // namespace

void drawLines(const EntityStore& store, const Scale& scale, Image image)
{
    const double perUnitX = image.width / double{scale.width};
    const double perUnitY = image.height / double{scale.height};
    const double right = image.width - roundingRoom;
    const double bottom = image.height - roundingRoom;
    for (std::size_t i = 1; i < EntityStore::at(store.end()); ++i) {
        const Point a = store.p1[i];
        const Point b = store.p2[i];
        Segment s{(a.x - scale.left) * perUnitX, (a.y - scale.top) * perUnitY, (b.x - scale.left) * perUnitX,
                  (b.y - scale.top) * perUnitY};
        if (clip(s, right, bottom)) bresenham(image, s, argb(store.color[i]), Dashes(store.style[i]));
    }
}

Limits limitsOf(const EntityStore& store)
{
    Limits all{INFINITY, INFINITY, -INFINITY, -INFINITY};
    for (std::size_t i = 1; i < EntityStore::at(store.end()); ++i) {
        if (store.stat[i] != Stat::on || store.kind[i] != Kind::line) continue;
        const Point a = store.p1[i];
        const Point b = store.p2[i];
        all = {std::min({all.left, a.x, b.x}), std::min({all.top, a.y, b.y}), std::max({all.right, a.x, b.x}),
               std::max({all.bottom, a.y, b.y})};
    }
    return all;
}

} // namespace mirtane::bench
