// The image itself. What is drawn into it is in raster_lines.cpp, raster_arcs.cpp, raster_ellipses.cpp and
// raster_shapes.cpp.

#include "render/raster.h"

#include <algorithm>

namespace mirtane {

namespace {

constexpr std::uint32_t opaqueBlack = 0xFF000000;

int sideWithin(int side)
{
    return std::clamp(side, 1, Raster::largestSide);
}

std::size_t area(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); // both at least 0
}

} // namespace

void PixelRect::unite(const PixelRect& other)
{
    if (other.empty()) return;
    if (empty()) {
        *this = other;
        return;
    }
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
}

Raster::Raster(int width, int height)
    : width_(sideWithin(width)), height_(sideWithin(height)), pixels_(area(width_, height_), opaqueBlack)
{
}

void Raster::resize(int width, int height)
{
    Raster grown(width, height);
    const int columns = std::min(width_, grown.width_);
    const int rows = std::min(height_, grown.height_);
    for (int y = 0; y < rows; ++y) {
        std::copy_n(pixels_.data() + index(0, y), columns, grown.pixels_.data() + grown.index(0, y));
    }
    *this = std::move(grown);
}

void Raster::fill(std::uint32_t color)
{
    std::fill(pixels_.begin(), pixels_.end(), color);
}

void Raster::copy(const Raster& from, const PixelRect& part)
{
    if (part.empty()) return;
    if (part == bounds()) {
        std::copy(from.pixels_.begin(), from.pixels_.end(), pixels_.begin());
        return;
    }
    for (int y = part.top; y < part.bottom; ++y) {
        const std::size_t first = index(part.left, y);
        std::copy_n(from.pixels_.data() + first, part.right - part.left, pixels_.data() + first);
    }
}

void Raster::point(double x, double y, std::uint32_t color)
{
    if (!(x >= 0 && x < width_ && y >= 0 && y < height_)) return;
    pixels_[index(static_cast<int>(x), static_cast<int>(y))] = color; // within the image, tested above
}

std::size_t Raster::index(int x, int y) const
{
    return area(width_, y) + static_cast<std::size_t>(x); // neither is negative
}

} // namespace mirtane
