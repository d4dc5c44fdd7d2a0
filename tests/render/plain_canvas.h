#pragma once

#include "render/raster_canvas.h"

#include <vector>

namespace mirtane::probe {

// A surface without text.
class PlainCanvas : public RasterCanvas {
  public:
    using RasterCanvas::image;
    using RasterCanvas::RasterCanvas;
    using RasterCanvas::touch;

    void setFontName(std::string_view) override {}
    void setFontSize(float) override {}
    void setUnderline(bool) override {}
    float textWidth(std::string_view) const override { return 0; }
    void text(float, float, int, std::string_view) override {}
};

inline std::vector<std::uint32_t> pixelsOf(const RasterCanvas& canvas)
{
    const auto pixels = canvas.picture().pixels();
    return {pixels.begin(), pixels.end()};
}

} // namespace mirtane::probe
