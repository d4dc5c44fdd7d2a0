#include "platform/qt/surface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr qsizetype longestFontName = 31;
constexpr double largestPoints = 100000; // letters of which a screen shows the inside alone
constexpr int largestFace = 1024;        // pixels; higher letters are enlarged
constexpr double farthestPixel = 1e6;

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); // texts are short
}

int pixelsOf(int points)
{
    return points * 96 / 72;
}

QFont fontOf(const std::string& name)
{
    const QString family = textOf(name).left(longestFontName);
    QFont font;
    font.setFamilies(family == QLatin1String("Garamond") ? QStringList{family, QStringLiteral("EB Garamond")}
                                                         : QStringList{family});
    font.setHintingPreference(QFont::PreferNoHinting); // widths in proportion at every zoom
    return font;
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
    font.setPixelSize(
        std::max(1, static_cast<int>(std::lround(height * share)))); // at most largestFace times share
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

// 0 for a size that can't be had.
double Surface::exactPoints() const
{
    const double points = pixelsPerUnitX() * fontSize_;
    return points > 0 ? std::min(points, largestPoints) : 0;
}

const Surface::Face& Surface::faceOf(int height) const
{
    if (face_.height == height && face_.name == fontName_) return face_;
    QFont font = fontOf(fontName_);
    setLineHeight(font, std::min(height, largestFace));
    const double enlarged =
        height > largestFace ? static_cast<double>(height) / largestFace : 1.0; // whole numbers
    face_ = {fontName_, height, font, QFontMetricsF(font).ascent(), enlarged};
    return face_;
}

float Surface::textWidth(std::string_view utf8) const
{
    const double exact = exactPoints();
    if (exact == 0) return 0;
    const int points = static_cast<int>(std::lround(exact)); // at most largestPoints
    const int measured = points > 0 ? points : 100;
    const Face& face = faceOf(pixelsOf(measured));
    const double pixels = QFontMetricsF(face.font).horizontalAdvance(textOf(utf8)) * face.enlarged;
    const double shrunk = points > 0 ? pixels : pixels * exact / measured;
    return static_cast<float>(shrunk / pixelsPerUnitX()); // world units are 32-bit
}

void Surface::text(float x, float y, int degrees, std::string_view utf8)
{
    const int height = pixelsOf(static_cast<int>(std::lround(exactPoints()))); // at most largestPoints
    const PixelPoint at = pixelAt({x, y});
    if (height == 0 || !isNear(at)) return;
    write(faceOf(height), {std::round(at.x), std::round(at.y)}, degrees, textOf(utf8));
}

void Surface::write(const Face& face, PixelPoint at, int degrees, const QString& text)
{
    QTransform turned = QTransform::fromTranslate(at.x, at.y);
    turned.rotate(-degrees); // the toolkit turns clockwise
    turned.scale(face.enlarged, face.enlarged);
    QFont font = face.font;
    font.setUnderline(underline_);
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    const double line = lineHeightOf(font);
    // Slanted and swash letters reach beyond their own width.
    const QRectF covered = turned.mapRect(QRectF(-line / 2, -line / 2, width + line, line * 2));
    touch(covered.left(), covered.top(), covered.right(), covered.bottom());

    Raster& raster = image();
    auto* bytes = reinterpret_cast<uchar*>(raster.pixels().data()); // as in shown()
    QImage pixels(bytes, raster.width(), raster.height(), raster.width() * 4, QImage::Format_RGB32);
    QPainter painter(&pixels);
    painter.setClipRect(pixels.rect());
    painter.setTransform(turned);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(color()));
    painter.drawText(QPointF(0, face.ascent), text);
}

} // namespace mirtane
