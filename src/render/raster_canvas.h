#pragma once

#include "geometry/point.h"
#include "render/canvas.h"
#include "render/raster.h"

#include <functional>

namespace mirtane {

// A surface on an image of its own pixels. All but text is drawn here; who derives from it writes the text
// into image() and says what it touched. Clearing, drawing and going back to the clean picture allocate
// nothing.
class RasterCanvas : public Canvas {
  public:
    // Device pixels, and how many of them make one pixel of the window system (1 if it is no positive
    // number). The world window is one unit to the pixel until it is set. Image and clean picture are black.
    RasterCanvas(int width, int height, double ratio = 1);

    // The world window keeps its left, its top and its units to the pixel. The upper left of the image and of
    // the clean picture stay as they were, the rest is black. The pixels move in memory, and at no other
    // time.
    void resizePixels(int width, int height, double ratio);

    const Raster& picture() const { return image_; }
    double ratio() const { return ratio_; }

    // World units at a place of the image, and back. What is drawn at worldAt(x, y), x and y whole, is pixel
    // (x, y).
    Point worldAt(double px, double py) const;
    PixelPoint pixelAt(Point world) const;

    // The part of the image that may have changed since the last call, all of it at first.
    PixelRect takeDirty();
    // What refresh() calls; nothing until it is set.
    void setRefreshHook(std::function<void()> hook) { refreshHook_ = std::move(hook); }

    void clear() override;
    void setColor(std::int32_t color) override;
    void setStyle(std::int16_t style) override;
    void line(float x1, float y1, float x2, float y2) override;
    void circle(float cx, float cy, float r) override;
    void arc(float cx, float cy, float r, double a1, double a2) override;
    void point(float x, float y) override;
    bool smallEllipse(const View& view, const Chords& chords) override;

    Scale getScale() const override { return scale_; }
    void setScale(const Scale& scale) override;
    Size getPixelSize() const override { return {image_.width(), image_.height()}; }
    Size getOuterSize() const override;

    void snapshot() override;
    void restoreSnapshot() override;
    void clearSnapshot() override;
    void refresh() override;

  protected:
    Raster& image() { return image_; }
    std::uint32_t color() const { return stroke_.color; } // 0xFFRRGGBB
    double pixelsPerUnitX() const { return perUnitX_; }
    double pixelsPerUnitY() const { return perUnitY_; }
    // The pixels between two corners, in any order, both corners included, are about to change or have
    // changed.
    void touch(double x0, double y0, double x1, double y1);

  private:
    void setRatio(double ratio);
    void touchAll() { fresh_ = image_.bounds(); }
    void touchRing(PixelPoint centre, double reachX, double reachY);
    void fold();

    Raster image_;
    Raster clean_;
    double ratio_ = 1;
    Scale scale_;
    double perUnitX_ = 1, perUnitY_ = 1;
    Stroke stroke_;
    // Touched since the others last took it in; where image and clean picture may differ; what the window
    // lacks.
    PixelRect fresh_, touched_, dirty_;
    std::function<void()> refreshHook_;
};

} // namespace mirtane
