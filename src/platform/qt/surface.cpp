#include "platform/qt/surface.h"

#include "geometry/fault.h"
#include "platform/qt/fonts.h"
#include "platform/qt/whole.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr double largestPoints = 100000; // letters of which a screen shows the inside alone
constexpr int largestFace = 1024;        // pixels; higher letters are enlarged
constexpr int measuredFace = 256;        // pixels; the longest string of twice as high letters overflows
constexpr double farthestPixel = 1e6;

constexpr int pixelsPerInch = 96;
constexpr int pointsPerInch = 72;

int pixelsOf(int points)
{
    return points * pixelsPerInch / pointsPerInch;
}

double lineHeightOf(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return metrics.ascent() + metrics.descent();
}

void setLineHeight(QFont& font, int height)
{
    constexpr int sample = 256;
    font.setPixelSize(sample);
    const double share = sample / std::max(lineHeightOf(font), 1.0);
    font.setPixelSize(wholeWithin(height * share, 1, largestFace * sample));
}

bool isNear(PixelPoint at)
{
    return std::abs(at.x) < farthestPixel && std::abs(at.y) < farthestPixel;
}

} // namespace

QImage Surface::shown() const
{
    const Raster& raster = picture();
    // An image of bytes that are pixels of 32 bits.
    const auto* bytes = reinterpret_cast<const uchar*>(raster.pixels().data());
    return {bytes, raster.width(), raster.height(), raster.width() * 4, QImage::Format_RGB32};
}

void Surface::setFontName(std::string_view utf8)
{
    fontName_ = utf8;
}

void Surface::setFontSize(float size)
{
    fontSize_ = size;
}

void Surface::setUnderline(bool on)
{
    underline_ = on;
}

// Of the letters as written; 0 for none.
int Surface::lineHeight() const
{
    std::int32_t points = 0;
    keep(points, std::clamp(pixelsPerUnitX() * fontSize_, 0.0, largestPoints));
    return pixelsOf(points);
}

const Surface::Face& Surface::sizedFace(int height) const
{
    for (const Face& face : faces_) {
        if (face.height == height && face.name == fontName_) return face;
    }
    QFont font = faceOf(textOf(fontName_));
    setLineHeight(font, std::min(height, largestFace));
    const double enlarged =
        height > largestFace ? static_cast<double>(height) / largestFace : 1.0; // whole numbers
    Face& face = faces_[oldestFace_];
    oldestFace_ = (oldestFace_ + 1) % faces_.size();
    face = {fontName_, height, font, QFontMetricsF(font).ascent(), lineHeightOf(font), enlarged};
    return face;
}

float Surface::textWidth(std::string_view utf8) const
{
    if (!(fontSize_ > 0)) return 0;
    constexpr double heightPerSize = static_cast<double>(pixelsPerInch) / pointsPerInch;
    const Face& face = sizedFace(measuredFace);
    const double advance = QFontMetricsF(face.font).horizontalAdvance(drawnText(utf8));
    float width = 0;
    keep(width, quotient(advance * fontSize_ * heightPerSize, face.line));
    return width;
}

void Surface::text(float x, float y, int degrees, std::string_view utf8)
{
    const int height = lineHeight();
    const PixelPoint at = pixelAt({x, y});
    if (height == 0 || !isNear(at)) return;
    write(sizedFace(height), {std::nearbyint(at.x), std::nearbyint(at.y)}, degrees, drawnText(utf8));
}

namespace {

// Of a text that no hand has typed the letters that can be seen: large ones cost a millisecond each.
void drawLetters(QPainter& painter, const QTextLine& words, const QPointF& corner, const QRectF& seen)
{
    const int first = words.xToCursor(seen.left());
    const int last = words.xToCursor(seen.right());
    for (const QGlyphRun& run : words.glyphRuns(std::max(0, first - 1), last - first + 2)) {
        painter.drawGlyphRun(corner, run);
    }
}

} // namespace

void Surface::write(const Face& face, PixelPoint at, int degrees, const QString& text)
{
    QTransform turned = QTransform::fromTranslate(at.x, at.y);
    turned.rotate(0.0 - degrees); // the toolkit turns clockwise; the least whole number has no opposite
    turned.scale(face.enlarged, face.enlarged);
    QFont font = face.font;
    font.setUnderline(underline_);
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine words = layout.createLine();
    layout.endLayout();
    if (!words.isValid()) return;
    const double width = words.naturalTextWidth();
    const double line = face.line;
    // Slanted and swash letters reach beyond their own width.
    const QRectF covered = turned.mapRect(QRectF(-line / 2, -line / 2, width + line, line * 2));
    touch(covered.left(), covered.top(), covered.right(), covered.bottom());

    Raster& raster = image();
    auto* bytes = reinterpret_cast<uchar*>(raster.pixels().data()); // as in shown()
    QImage pixels(bytes, raster.width(), raster.height(), raster.width() * 4, QImage::Format_RGB32);
    QPainter painter(&pixels);
    painter.setClipRect(pixels.rect());
    painter.setTransform(turned);
    painter.setPen(QColor::fromRgb(color()));
    // Letters that another font lends may be higher; they must not push the line down.
    const QPointF corner(0, face.ascent - words.ascent());
    constexpr qsizetype longestTyped = 100;
    if (text.size() <= longestTyped) return layout.draw(&painter, corner);
    const QRectF seen = turned.inverted().mapRect(QRectF(pixels.rect())).adjusted(-line, 0, line, 0);
    drawLetters(painter, words, corner, seen);
}

} // namespace mirtane
