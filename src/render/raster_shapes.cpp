// Shapes that cover pixels in part.

#include "render/coverage.h"

namespace mirtane {

namespace {

constexpr std::uint32_t redAndBlue = 0xFF00FF;
constexpr std::uint32_t green = 0x00FF00;

// A colour that goes over others. Red and blue are reckoned in one go: what one borrows from the other it
// gives back, and what overflows is masked away.
struct Ink {
    explicit Ink(std::uint32_t color) : outer(color & redAndBlue), inner(color & green) {}

    void over(std::uint32_t& pixel, std::uint32_t inked) const
    {
        const std::uint32_t part = (inked & 0xFF) + 1; // of 256: a pixel covered whole has no other colour
        const std::uint32_t outerBelow = pixel & redAndBlue;
        const std::uint32_t innerBelow = pixel & green;
        pixel = 0xFF000000U | ((((outer - outerBelow) * part >> 8) + outerBelow) & redAndBlue) |
                ((((inner - innerBelow) * part >> 8) + innerBelow) & green);
    }

    std::uint32_t outer, inner;
};

} // namespace

void Raster::lay(const Coverage& shape, std::int64_t x, std::int64_t y, std::uint32_t color)
{
    const std::int64_t left = x + shape.box.left, right = x + shape.box.right;
    const std::int64_t top = y + shape.box.top, bottom = y + shape.box.bottom;
    if (right <= 0 || left >= width_ || bottom <= 0 || top >= height_) return;
    const Ink ink(color);
    const std::int64_t width = width_;
    if (left >= 0 && right <= width && top >= 0 && bottom <= height_) {
        std::uint32_t* const from = pixels_.data() + top * width + left;
        for (const std::uint32_t inked : shape.inked) ink.over(from[inked >> 8], inked);
        return;
    }
    for (const std::uint32_t inked : shape.inked) {
        const std::int64_t offset = inked >> 8;
        const std::int64_t column = left + offset % width;
        const std::int64_t row = top + offset / width;
        if (column < 0 || column >= width || row < 0 || row >= height_) continue;
        ink.over(pixels_[static_cast<std::size_t>(row * width + column)], inked); // in the image
    }
}

} // namespace mirtane
