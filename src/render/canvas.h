#pragma once

#include <cstdint>
#include <string_view>

namespace mirtane {

struct View;
struct Chords;

// The world window of a surface: world units, y down.
struct Scale {
    float left = 0, top = 0, width = 0, height = 0;
};

struct Size {
    int width = 0, height = 0;
};

// Surface colours, 0xBBGGRR.
inline constexpr std::int32_t white = 0xFFFFFF;
inline constexpr std::int32_t black = 0x000000;

// Pen styles; the dashes are the pen's own and keep their size at every zoom.
namespace pen {
inline constexpr std::int16_t solid = 0;
inline constexpr std::int16_t dash = 1;
inline constexpr std::int16_t dot = 2;
inline constexpr std::int16_t dashDot = 3;
inline constexpr std::int16_t dashDotDot = 4;
} // namespace pen

// A drawing surface with a retained image and one clean picture to go back to. Coordinates are world units
// under the current scale, angles radians counter-clockwise on the screen. Anything may be passed, also NaN
// and coordinates far outside: what can't be drawn is left out.
class Canvas {
  public:
    virtual ~Canvas() = default;

    virtual void clear() = 0;
    virtual void setColor(std::int32_t color) = 0; // 0xBBGGRR
    virtual void setStyle(std::int16_t style) = 0; // 0 to 4, others draw solid
    virtual void line(float x1, float y1, float x2, float y2) = 0;
    virtual void circle(float cx, float cy, float r) = 0;
    virtual void arc(float cx, float cy, float r, double a1,
                     double a2) = 0;          // counter-clockwise from a1 to a2
    virtual void point(float x, float y) = 0; // one pixel
    // An ellipse that has been cut into chords, drawn of fewer where it is so small that its pixels can't
    // tell. False if it was not drawn: then it is lines, one by one.
    virtual bool smallEllipse(const View&, const Chords&) { return false; }

    virtual Scale getScale() const = 0;
    virtual void setScale(const Scale& scale) = 0;
    virtual Size getPixelSize() const = 0;
    virtual Size getOuterSize() const = 0; // twips, 15 to the pixel

    virtual void setFontName(std::string_view utf8) = 0;
    virtual void setFontSize(float size) = 0; // world units; the surface takes the nearest whole point size
    virtual void setUnderline(bool on) = 0;
    // Width in world units of a string in the current font.
    virtual float textWidth(std::string_view utf8) const = 0;
    // Writes a string in the current font and colour, (x, y) its upper left corner before it is turned by
    // whole degrees about that corner.
    virtual void text(float x, float y, int degrees, std::string_view utf8) = 0;

    virtual void snapshot() = 0;        // the image becomes the clean picture
    virtual void restoreSnapshot() = 0; // the clean picture becomes the image
    virtual void clearSnapshot() = 0;   // the clean picture becomes empty
    virtual void refresh() = 0;         // shows the image on the screen
};

} // namespace mirtane
