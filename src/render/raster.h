#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirtane {

struct Coverage;

// A rectangle of pixels; right and bottom lie just outside it.
struct PixelRect {
    int left = 0, top = 0, right = 0, bottom = 0;

    bool empty() const { return left >= right || top >= bottom; }
    // The smallest rectangle that holds both; an empty one adds nothing.
    void unite(const PixelRect& other);

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// A place in an image, x to the right and y down; the pixel is the floor of it.
struct PixelPoint {
    double x = 0, y = 0;
};

// How a line is drawn: 0xFFRRGGBB, a pen style of canvas.h, and the device pixels to one pixel of its dashes.
struct Stroke {
    std::uint32_t color = 0xFFFFFFFF;
    std::int16_t style = 0;
    int dashScale = 1;
};

// An image of 32-bit pixels, 0xFFRRGGBB, row by row without gaps, and the drawing of lines one pixel thin
// into it. Coordinates are in pixels, x to the right and y down; a point belongs to the pixel at the floor of
// its coordinates. Any coordinate may be passed: what lies outside is clipped, a line or circle with a NaN or
// an infinity in it is left out. Clipping never moves a pixel.
//
// Dashes are counted in pixels along the longer side of a line, and along the ring of a circle or an arc.
// They begin anew with each call.
class Raster {
  public:
    static constexpr int largestSide = 32767;

    // Sizes are brought into 1 to largestSide. The image is black.
    Raster(int width, int height);

    // What was there stays in the upper left; what is new is black. Pixels move in memory.
    void resize(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    PixelRect bounds() const { return {0, 0, width_, height_}; }
    std::span<const std::uint32_t> pixels() const { return pixels_; }
    std::span<std::uint32_t> pixels() { return pixels_; }
    // (x, y) must lie in the image.
    std::uint32_t at(int x, int y) const { return pixels_[index(x, y)]; }

    void fill(std::uint32_t color);
    // Copies a part of an image of the same size; the part must lie in the image.
    void copy(const Raster& from, const PixelRect& part);

    void point(double x, double y, std::uint32_t color);
    // Both end pixels belong to the line, and it has the same pixels from either end.
    void line(double x1, double y1, double x2, double y2, const Stroke& stroke);
    // A circle about the middle of the centre's pixel. A negative radius is left out.
    void circle(double cx, double cy, double r, const Stroke& stroke);
    // The pixels of that circle from angle a1 counter-clockwise to a2, radians; a2 below a1 passes through
    // angle 0. Equal angles give one pixel, a full turn or what rounds to it the whole circle.
    void arc(double cx, double cy, double r, double a1, double a2, const Stroke& stroke);

    // The ellipse whose half axes end at u and v from its centre, of as few chords as look round; dashes
    // begin anew with each. False, and nothing drawn, if it takes more than a few dozen.
    bool smallEllipse(PixelPoint centre, PixelPoint u, PixelPoint v, const Stroke& stroke);

    // The colour over what is there, as far as each pixel is covered, by a shape for images of this width.
    // (x, y) is the place that it is laid at.
    void lay(const Coverage& shape, std::int64_t x, std::int64_t y, std::uint32_t color);

  private:
    std::size_t index(int x, int y) const;

    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t> pixels_;
};

} // namespace mirtane
