// The surface's view onto its image: world units to pixels, and the bookkeeping of what was touched. Outside
// touched_ and fresh_ image and clean picture are the same, so a rubber band costs the copy of what it
// covered.

#include "render/raster_canvas.h"

#include "geometry/fault.h"
#include "render/chords.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace mirtane {

namespace {

constexpr std::uint32_t background = 0xFF000000;
constexpr int twipsPerPixel = 15;
// World coordinates of 32 bits come back from worldAt() a trifle low as often as high; without this a line
// would end one pixel beside the click that set it.
constexpr double roundingSlack = 1.0 / 1024;

std::uint32_t opaque(std::int32_t color)
{
    const auto bgr = static_cast<std::uint32_t>(color); // bits, not a number
    return 0xFF000000U | (bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF);
}

// A coordinate brought into 0 to size; NaN becomes 0.
int within(double v, int size)
{
    if (!(v > 0)) return 0;
    return v < size ? static_cast<int>(v) : size; // above 0 and below size, an int
}

} // namespace

RasterCanvas::RasterCanvas(int width, int height, double ratio) : image_(width, height), clean_(width, height)
{
    setRatio(ratio);
    dirty_ = image_.bounds();
    setScale(
        {0, 0, static_cast<float>(image_.width()), static_cast<float>(image_.height())}); // exact, below 2^24
}

void RasterCanvas::setRatio(double ratio)
{
    ratio_ = std::isfinite(ratio) && ratio > 0 ? ratio : 1;
    stroke_.dashScale = static_cast<int>(std::clamp(std::round(ratio_), 1.0, 64.0)); // within int
}

void RasterCanvas::resizePixels(int width, int height, double ratio)
{
    image_.resize(width, height);
    clean_.resize(width, height);
    setRatio(ratio);
    fresh_ = touched_ = dirty_ = image_.bounds();
    // From the units to the pixel, not from the last width, so that sizes there and back leave no rounding
    // behind.
    keep(scale_.width, image_.width() / perUnitX_);
    keep(scale_.height, image_.height() / perUnitY_);
}

Point RasterCanvas::worldAt(double px, double py) const
{
    return {static_cast<float>(scale_.left + px / perUnitX_), // world coordinates are 32-bit
            static_cast<float>(scale_.top + py / perUnitY_)};
}

PixelPoint RasterCanvas::pixelAt(Point world) const
{
    return {(double{world.x} - scale_.left) * perUnitX_ + roundingSlack,
            (double{world.y} - scale_.top) * perUnitY_ + roundingSlack};
}

PixelRect RasterCanvas::takeDirty()
{
    fold();
    return std::exchange(dirty_, {});
}

void RasterCanvas::clear()
{
    image_.fill(background);
    touchAll();
}

void RasterCanvas::setColor(std::int32_t color)
{
    stroke_.color = opaque(color);
}

void RasterCanvas::setStyle(std::int16_t style)
{
    stroke_.style = style;
}

void RasterCanvas::line(float x1, float y1, float x2, float y2)
{
    const PixelPoint a = pixelAt({x1, y1});
    const PixelPoint b = pixelAt({x2, y2});
    touch(a.x, a.y, b.x, b.y);
    image_.line(a.x, a.y, b.x, b.y, stroke_);
}

void RasterCanvas::circle(float cx, float cy, float r)
{
    const PixelPoint centre = pixelAt({cx, cy});
    const double radius = r * perUnitX_;
    touchRing(centre, radius, radius);
    image_.circle(centre.x, centre.y, radius, stroke_);
}

void RasterCanvas::arc(float cx, float cy, float r, double a1, double a2)
{
    const PixelPoint centre = pixelAt({cx, cy});
    const double radius = r * perUnitX_;
    touchRing(centre, radius, radius);
    image_.arc(centre.x, centre.y, radius, a1, a2, stroke_);
}

void RasterCanvas::point(float x, float y)
{
    const PixelPoint at = pixelAt({x, y});
    touch(at.x, at.y, at.x, at.y);
    image_.point(at.x, at.y, stroke_.color);
}

bool RasterCanvas::smallEllipse(const View&, const Chords& c)
{
    const PixelPoint centre = pixelAt(c.centre);
    const double across = c.r * c.ratio;
    const PixelPoint u{c.r * c.ux * perUnitX_, -c.r * c.uy * perUnitY_};
    const PixelPoint v{-across * c.uy * perUnitX_, -across * c.ux * perUnitY_};
    if (!image_.smallEllipse(centre, u, v, stroke_)) return false;
    touchRing(centre, std::abs(u.x) + std::abs(v.x), std::abs(u.y) + std::abs(v.y));
    return true;
}

void RasterCanvas::setScale(const Scale& scale)
{
    scale_ = scale;
    perUnitX_ = image_.width() / double{scale.width};
    perUnitY_ = image_.height() / double{scale.height};
}

Size RasterCanvas::getOuterSize() const
{
    const auto twips = [this](int pixels) {
        return static_cast<int>(std::min(std::round(pixels / ratio_ * twipsPerPixel), 1e9)); // within int
    };
    return {twips(image_.width()), twips(image_.height())};
}

void RasterCanvas::snapshot()
{
    fold();
    clean_.copy(image_, touched_);
    touched_ = {};
}

void RasterCanvas::restoreSnapshot()
{
    fold();
    image_.copy(clean_, touched_);
    dirty_.unite(touched_);
    touched_ = {};
}

void RasterCanvas::clearSnapshot()
{
    fold();
    clean_.fill(background);
    touched_ = image_.bounds();
}

void RasterCanvas::refresh()
{
    if (refreshHook_) refreshHook_();
}

void RasterCanvas::touch(double x0, double y0, double x1, double y1)
{
    if (fresh_ == image_.bounds()) return;
    const int width = image_.width();
    const int height = image_.height();
    fresh_.unite({within(std::min(x0, x1), width), within(std::min(y0, y1), height),
                  within(std::max(x0, x1) + 1, width), within(std::max(y0, y1) + 1, height)});
}

void RasterCanvas::touchRing(PixelPoint centre, double reachX, double reachY)
{
    constexpr double room = 2; // the centre goes to the middle of its pixel, the ring to the nearest pixels
    touch(centre.x - reachX - room, centre.y - reachY - room, centre.x + reachX + room,
          centre.y + reachY + room);
}

void RasterCanvas::fold()
{
    touched_.unite(fresh_);
    dirty_.unite(fresh_);
    fresh_ = {};
}

} // namespace mirtane
