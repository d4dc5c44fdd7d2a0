#include "platform/qt/surface.h"

#include "geometry/fault.h"
#include "platform/qt/fonts.h"
#include "platform/qt/typesetter.h"
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
constexpr std::size_t longestSet = 100;    // bytes; no hand has typed a longer one
constexpr std::size_t longestDrawn = 2000; // letters, of any text

constexpr int pixelsPerInch = 96;
constexpr int pointsPerInch = 72;

constexpr double heightPerSize = static_cast<double>(pixelsPerInch) / pointsPerInch;

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

// Whether a text of so many bytes may have a letter in the picture, without asking how wide it is.
bool mayReach(PixelPoint at, int height, std::size_t bytes, const Raster& picture)
{
    constexpr double widestLetter = 4; // line heights to a byte; the widest letters have several
    const double reach = (static_cast<double>(bytes) * widestLetter + 2) * (height + 1.0);
    return at.x + reach >= 0 && at.x - reach < picture.width() && at.y + reach >= 0 &&
           at.y - reach < picture.height();
}

// Whether letters of that em are kept: those that are higher than most, or many in so wide a picture, are
// not.
bool isKept(int em, const Raster& picture)
{
    constexpr std::int64_t highestLetter = 16; // ems, when it lies on its side
    return em <= TypeCase::largestEm && em * highestLetter * picture.width() <= Coverage::mostPixels;
}

// A pixel within reach of any line that is near.
PixelRect pixelOf(PixelPoint at)
{
    const int x = wholeWithin(at.x, -largestWholeSide, largestWholeSide);
    const int y = wholeWithin(at.y, -largestWholeSide, largestWholeSide);
    return {x, y, x + 1, y + 1};
}

bool isNear(PixelPoint at)
{
    return std::abs(at.x) < farthestPixel && std::abs(at.y) < farthestPixel;
}

} // namespace

Surface::Surface(int width, int height, double ratio)
    : RasterCanvas(width, height, ratio), typesetter_(std::make_unique<Typesetter>())
{
}

Surface::Surface(Surface&& other) noexcept = default;
Surface::~Surface() = default;

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
    const QFontMetricsF metrics(font);
    face = {fontName_,
            height,
            font,
            metrics.ascent(),
            lineHeightOf(font),
            enlarged,
            metrics.underlinePos(),
            metrics.lineWidth()};
    return face;
}

float Surface::textWidth(std::string_view utf8) const
{
    if (!(fontSize_ > 0)) return 0;
    const Face& face = sizedFace(measuredFace);
    const double advance = QFontMetricsF(face.font).horizontalAdvance(drawnText(utf8));
    float width = 0;
    keep(width, quotient(advance * fontSize_ * heightPerSize, face.line));
    return width;
}

void Surface::text(float x, float y, int degrees, std::string_view utf8)
{
    const PixelPoint exact = pixelAt({x, y});
    if (!isNear(exact)) return;
    const PixelPoint at{std::nearbyint(exact.x), std::nearbyint(exact.y)};
    const int height = lineHeight();
    if (!mayReach(at, height, utf8.size(), picture())) return;
    if (height == 0) return writeSmall(at, degrees, utf8);
    const Face& face = sizedFace(height);
    if (utf8.size() <= longestSet && isKept(face.font.pixelSize(), picture())) {
        const SetLine& line = typesetter_->line(fontName_, utf8);
        if (line.outlined) return writeSet(face, {at, face.ascent, face.font.pixelSize(), degrees}, line);
    }
    write(face, at, degrees, drawnText(utf8));
}

// Nothing but its length can be seen of it, which its beginning tells if it is a very long one.
void Surface::writeSmall(PixelPoint at, int degrees, std::string_view utf8)
{
    if (!(fontSize_ > 0) || utf8.empty()) return;
    const Face& face = sizedFace(measuredFace);
    const double em = face.font.pixelSize() / face.line * pixelsPerUnitX() * fontSize_ * heightPerSize;
    const LinePlace place{at, 0, 0, degrees};
    const std::string_view beginning = utf8.substr(0, longestSet);
    const auto times = static_cast<double>(std::min(utf8.size(), longestDrawn)) /
                       static_cast<double>(beginning.size()); // some thousand
    const PixelPoint end = place.at(typesetter_->line(fontName_, beginning).width * times * em, 0);
    touch(at.x, at.y, end.x, end.y);
    image().line(at.x, at.y, end.x, end.y, {color()});
}

void Surface::writeSet(const Face& face, const LinePlace& place, const SetLine& line)
{
    const double width = line.width * place.em;
    const double high = face.line;
    // Slanted and swash letters reach beyond their own width.
    PixelRect covered;
    for (const double along : {-high / 2, width + high / 2}) {
        for (const double below : {-high / 2, high * 1.5}) covered.unite(pixelOf(place.at(along, below)));
    }
    const PixelRect all = picture().bounds();
    if (covered.right <= 0 || covered.left >= all.right || covered.bottom <= 0 || covered.top >= all.bottom)
        return;
    touch(covered.left, covered.top, covered.right, covered.bottom);
    if (underline_) underlineSet(face, place, width);
    typesetter_->letters().write(image(), line.letters, place, color());
}

// Lines side by side, half a pixel apart so that no pixel between them is left out.
void Surface::underlineSet(const Face& face, const LinePlace& place, double width)
{
    constexpr double step = 0.5;
    const double strong = std::max(std::round(face.thickness), 1.0) - 1;
    const double top = std::round(place.ascent + face.underline - strong / 2);
    for (double below = top; below <= top + strong; below += step) {
        const PixelPoint from = place.at(0, below);
        const PixelPoint to = place.at(std::max(width - 1, 0.0), below);
        image().line(from.x, from.y, to.x, to.y, {color()});
    }
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
