#include "plain.h"

#include "plain_pixels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mirtane::bench {
namespace {

// A place in the image: pixels, y down.
struct Spot {
    double x, y;
};

struct Sheet {
    const EntityStore& store;
    const Scale& scale;
    Image image;
    double perUnitX, perUnitY;

    Spot at(Point p) const { return {(p.x - scale.left) * perUnitX, (p.y - scale.top) * perUnitY}; }

    void put(int x, int y, std::uint32_t color) const
    {
        if (x < 0 || x >= image.width || y < 0 || y >= image.height) return;
        image.pixels[static_cast<std::size_t>(y * image.width + x)] = color; // within the image, tested above
    }
    void put(double x, double y, std::uint32_t color) const
    {
        if (!(x >= 0 && x < image.width && y >= 0 && y < image.height)) return;
        put(static_cast<int>(x), static_cast<int>(y), color); // the same
    }
};

void point(const Sheet& sheet, std::size_t i)
{
    const Spot p = sheet.at(sheet.store.p1[i]);
    sheet.put(p.x, p.y, argb(sheet.store.color[i]));
}

// The midpoint method, eight pixels a step.
void circle(const Sheet& sheet, std::size_t i)
{
    const std::uint32_t color = argb(sheet.store.color[i]);
    const Spot p = sheet.at(sheet.store.p1[i]);
    const int cx = static_cast<int>(std::floor(p.x)); // objects of the bench lie about the picture
    const int cy = static_cast<int>(std::floor(p.y));
    int x = static_cast<int>(std::lround(sheet.store.rad[i] * sheet.perUnitX)); // likewise
    int error = 1 - x;
    for (int y = 0; y <= x; ++y) {
        for (const int dx : {-x, x}) {
            sheet.put(cx + dx, cy + y, color);
            sheet.put(cx + dx, cy - y, color);
        }
        for (const int dx : {-y, y}) {
            sheet.put(cx + dx, cy + x, color);
            sheet.put(cx + dx, cy - x, color);
        }
        error += error < 0 ? 2 * y + 3 : 2 * (y - x--) + 5;
    }
}

// A way round: centre + u cos a + v sin a from one angle over a sweep, each step turning both by so much that
// the longer axis goes on by a pixel.
void walk(const Sheet& sheet, Spot centre, Spot u, Spot v, double from, double sweep, std::uint32_t color)
{
    const double reach = std::max({std::hypot(u.x, u.y), std::hypot(v.x, v.y), 1.0});
    const double turnCos = std::cos(1 / reach);
    const double turnSin = std::sin(1 / reach);
    double c = std::cos(from);
    double s = std::sin(from);
    for (int steps = static_cast<int>(sweep * reach); steps >= 0; --steps) { // some hundreds at most
        sheet.put(centre.x + u.x * c + v.x * s, centre.y + u.y * c + v.y * s, color);
        const double next = c * turnCos - s * turnSin;
        s = s * turnCos + c * turnSin;
        c = next;
    }
}

void arc(const Sheet& sheet, std::size_t i)
{
    const EntityStore& e = sheet.store;
    const double r = e.rad[i] * sheet.perUnitX;
    const double sweep = e.a2[i] - e.a1[i];
    walk(sheet, sheet.at(e.p1[i]), {r, 0}, {0, -r}, e.a1[i], sweep < 0 ? sweep + 2 * std::numbers::pi : sweep,
         argb(e.color[i]));
}

void ellipse(const Sheet& sheet, std::size_t i)
{
    const EntityStore& e = sheet.store;
    const Spot centre = sheet.at(e.p2[i]);
    const Spot end = sheet.at(e.p1[i]);
    const Spot u{end.x - centre.x, end.y - centre.y};
    const double ratio = e.p3[i].x;
    walk(sheet, centre, u, {u.y * ratio, -u.x * ratio}, 0, 2 * std::numbers::pi, argb(e.color[i]));
}

} // namespace

void drawShapes(const EntityStore& store, const Scale& scale, Image image)
{
    const Sheet sheet{store, scale, image, image.width / double{scale.width},
                      image.height / double{scale.height}};
    for (std::size_t i = 1; i < EntityStore::at(store.end()); ++i) {
        if (store.kind[i] == Kind::circle) circle(sheet, i);
        if (store.kind[i] == Kind::arc) arc(sheet, i);
        if (store.kind[i] == Kind::ellipse) ellipse(sheet, i);
        if (store.kind[i] == Kind::point) point(sheet, i);
    }
}

} // namespace mirtane::bench
