#pragma once

#include "render/raster.h"

#include <cstdint>
#include <vector>

namespace mirtane {

// The pixels that a shape covers, and how far, for laying it into images of one width.
struct Coverage {
    // The rows of the box, one below the other in such an image, hold no more pixels than that.
    static constexpr std::int64_t mostPixels = 1 << 24;

    // The box as seen from the place that the shape is laid at.
    Coverage(const PixelRect& box_, int imageWidth_) : box(box_), imageWidth(imageWidth_) {}

    bool fits() const { return std::int64_t{box.bottom - box.top} * imageWidth <= mostPixels; }

    // Column and row within the box, the share from 1 to 255.
    void ink(int column, int row, int share)
    {
        const std::int64_t offset = std::int64_t{row} * imageWidth + column; // below mostPixels
        inked.push_back(static_cast<std::uint32_t>(offset << 8 | share));
    }

    PixelRect box;
    int imageWidth;
    std::vector<std::uint32_t> inked; // 24 bits of offset from the box's first pixel in the image, 8 of share
};

} // namespace mirtane
