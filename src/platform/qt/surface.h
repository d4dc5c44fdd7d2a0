#pragma once

#include "render/raster_canvas.h"
#include "render/type_case.h"

#include <QFont>
#include <QImage>

#include <array>
#include <memory>
#include <string>

namespace mirtane {

class Typesetter;
struct SetLine;

// pic1 on an image: the raster draws all, text too, of which the toolkit says where its letters stand and
// what shape they have. Very large letters, very long texts and letters that are pictures the toolkit writes
// into the same pixels itself. It needs a QGuiApplication and no window.
//
// The size of text follows the zoom in whole points: one world unit of size gives as many points as it gives
// pixels, rounded, and a point is 96/72 pixels of the height of a line, from its highest to its lowest
// letter.
class Surface : public RasterCanvas {
  public:
    Surface(int width, int height, double ratio = 1);
    Surface(Surface&& other) noexcept;
    ~Surface() override;

    // The picture, on the surface's own pixels: good until the surface is resized or gone.
    QImage shown() const;

    void setFontName(std::string_view utf8) override;
    void setFontSize(float size) override;
    void setUnderline(bool on) override;
    // The width that the text would have if there were parts of points: in proportion to the size, so that
    // what is worked out from it and stored is the same at every zoom.
    float textWidth(std::string_view utf8) const override;
    // Text of no whole point is a stroke of its length.
    void text(float x, float y, int degrees, std::string_view utf8) override;

  private:
    // A font of the toolkit whose lines are so many pixels high once they are enlarged by the factor.
    struct Face {
        std::string name;
        int height = 0;
        QFont font;
        double ascent = 0, line = 0; // before it is enlarged
        double enlarged = 1;
        double underline = 0, thickness = 0; // how far below the base line, and how strong
    };

    int lineHeight() const;
    // The face of that line height, in pixels, in the current font; good until the next call.
    const Face& sizedFace(int height) const;
    void writeSmall(PixelPoint at, int degrees, std::string_view utf8);
    void writeSet(const Face& face, const LinePlace& place, const SetLine& line);
    void underlineSet(const Face& face, const LinePlace& place, double width);
    void write(const Face& face, PixelPoint at, int degrees, const QString& text);

    std::string fontName_ = "Garamond";
    float fontSize_ = 48; // world units
    bool underline_ = false;
    // The last ones made: most texts of a drawing are alike, and making one is slow.
    mutable std::array<Face, 64> faces_;
    mutable std::size_t oldestFace_ = 0;
    std::unique_ptr<Typesetter> typesetter_;
};

} // namespace mirtane
