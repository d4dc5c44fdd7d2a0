#include "platform/qt/page_painter.h"

#include "geometry/arc.h"
#include "platform/posix/disk.h"
#include "platform/qt/fonts.h"
#include "platform/qt/whole.h"
#include "render/raster_dashes.h"

#include <QBuffer>
#include <QCursor>
#include <QGuiApplication>
#include <QPainterPath>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr int pdfDotsPerInch = 600;
constexpr int pdfUnitsPerDot = 12;

constexpr double twipsPerPixel = 15; // of a surface that has 96 to the inch

// The runs of a dash pattern in widths of the pen; none for a solid line.
QList<qreal> dashesOf(std::int16_t style, double widthsPerPixel)
{
    QList<qreal> lengths;
    if (style < 1 || style > std::ssize(dashPatterns)) return lengths;
    const DashPattern& pattern = dashPatterns[static_cast<std::size_t>(style) - 1]; // as tested above
    for (std::size_t i = 0; i < pattern.count; ++i) lengths.append(pattern.runs[i] * widthsPerPixel);
    return lengths;
}

// In curves of an eighth of a turn at the most, which keep to the radius within a few millionths. All ends
// lie where they belong: the toolkit's own arcs begin and end at sixteenths of a degree.
QPainterPath arcPath(QPointF centre, double r, double from, double covered)
{
    const double pieces = std::max(std::ceil(covered / (M_PI / 4)), 1.0);
    const double step = covered / pieces;
    const double reach = 4.0 / 3 * std::tan(step / 4) * r;
    const auto at = [=](double a) { return centre + r * QPointF(std::cos(a), -std::sin(a)); };
    const auto along = [=](double a) { return reach * QPointF(-std::sin(a), -std::cos(a)); };
    QPainterPath path(at(from));
    for (int i = 0; i < pieces; ++i) {
        const double a = from + i * step, b = a + step;
        path.cubicTo(at(a) + along(a), at(b) - along(b), at(b));
    }
    return path;
}

float twips(double points)
{
    return singleOf(points * twipsPerPoint);
}

// In points, as the page is looked at.
QSize wholeOf(const QPageSize& paper, QPageLayout::Orientation way)
{
    return QPageLayout(paper, way, {}).fullRectPoints().size();
}

} // namespace

bool PagePainter::beginOn(QPaintDevice& device, double unitsPerTwip, double unitsPerDot)
{
    unitsPerTwip_ = unitsPerTwip;
    unitsPerDot_ = unitsPerDot;
    if (!painter_.begin(&device)) return false;
    painter_.setPen(QPen(Qt::black, leastWidth()));
    painter_.setBrush(Qt::NoBrush);
    return true;
}

// Of a dot or a unit: a thinner line would fade.
double PagePainter::leastWidth() const
{
    return std::max(unitsPerDot_, 1.0);
}

void PagePainter::font(std::string_view name, double points)
{
    fontName_ = textOf(name);
    fontPoints_ = points;
}

void PagePainter::text(double x, double y, std::string_view utf8)
{
    rotatedText(x, y, fontPoints_ * twipsPerPoint, 0, false, utf8);
}

void PagePainter::pen(std::int16_t style, int width)
{
    const double units = std::max(width * unitsPerDot_, leastWidth());
    QPen pen(Qt::black, units, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    // Dashes that grew with the pen would be too fine to be seen in the thin ones.
    const QList<qreal> dashes = dashesOf(style, twipsPerPixel * unitsPerTwip_ / units);
    if (!dashes.isEmpty()) pen.setDashPattern(dashes);
    painter_.setPen(pen);
}

void PagePainter::line(double x1, double y1, double x2, double y2)
{
    painter_.drawLine(at(x1, y1), at(x2, y2));
}

void PagePainter::circle(double x, double y, double r)
{
    if (!(r >= 0)) return; // as little as on the surface
    painter_.drawEllipse(at(x, y), r * unitsPerTwip_, r * unitsPerTwip_);
}

void PagePainter::arc(double x, double y, double r, double a1, double a2)
{
    const double radius = r * unitsPerTwip_;
    const double covered = sweepSeen(a1, a2);
    if (!(radius > 0 && covered > 0) || !std::isfinite(radius) || !std::isfinite(covered)) return;
    painter_.drawPath(arcPath(at(x, y), radius, a1, covered));
}

// A square of the pen's width: a point drawn with a flat pen leaves no mark in a file.
void PagePainter::point(double x, double y)
{
    const double side = painter_.pen().widthF();
    painter_.fillRect(QRectF(at(x, y) - QPointF(side / 2, side / 2), QSizeF(side, side)), Qt::black);
}

// Written with a large face and brought to size, so that every height is exact.
void PagePainter::rotatedText(double x, double y, double height, int degrees, bool underline,
                              std::string_view utf8)
{
    constexpr int faceSize = 256;
    constexpr double largestEm = 1000000;
    const double em = height * unitsPerTwip_;
    if (!(em > 0 && em < largestEm)) return;
    QFont face = faceOf(fontName_);
    face.setPixelSize(faceSize);
    face.setUnderline(underline);
    painter_.save();
    painter_.setPen(QPen(Qt::black, 1));
    painter_.setFont(face);
    painter_.translate(at(x, y));
    painter_.rotate(0.0 - degrees); // the least whole number has no opposite
    painter_.scale(em / faceSize, em / faceSize);
    painter_.drawText(QPointF(0, QFontMetricsF(face, painter_.device()).ascent()), drawnText(utf8));
    painter_.restore();
}

bool PagePainter::endPage()
{
    return painter_.end();
}

WaitPointer::WaitPointer()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer()
{
    QGuiApplication::restoreOverrideCursor();
}

PdfPrinter::PdfPrinter(const QPageSize& paper, QPageLayout::Orientation way)
    : PagePainter(twips(wholeOf(paper, way).width()), twips(wholeOf(paper, way).height())),
      layout_(paper, way, {})
{
}

bool PdfPrinter::beginPage(const PageName& name)
{
    wait_.emplace();
    file_ = name.file;
    bytes_.clear();
    auto buffer = std::make_unique<QBuffer>(&bytes_);
    if (!buffer->open(QIODevice::WriteOnly)) return false;
    auto writer = std::make_unique<QPdfWriter>(buffer.get());
    writer->setPageLayout(layout_);
    writer->setResolution(pdfDotsPerInch * pdfUnitsPerDot);
    writer->setCreator(QStringLiteral("Mirtane 4.00"));
    writer->setTitle(QString::fromStdString(name.title));
    buffer_ = std::move(buffer);
    device_ = std::move(writer);
    lines_.clear();
    pen_ = {};
    return beginOn(*device_, pdfDotsPerInch * pdfUnitsPerDot / twipsPerInch, pdfUnitsPerDot);
}

void PdfPrinter::pen(std::int16_t style, int width)
{
    const Pen next{style, width};
    if (next == pen_) return;
    pen_ = next;
    PagePainter::pen(style, width);
}

// At whole units, far finer than any printer: the toolkit writes nine digits behind the point of others.
void PdfPrinter::line(double x1, double y1, double x2, double y2)
{
    const auto rounded = [](QPointF p) { return QPointF(std::round(p.x()), std::round(p.y())); };
    lines_[pen_].append(QLineF(rounded(at(x1, y1)), rounded(at(x2, y2))));
}

// The file is put on the disk whole, as all files of the program are.
bool PdfPrinter::endPage()
{
    for (const auto& [pen, lines] : lines_) {
        PagePainter::pen(pen.style, pen.width);
        painter().drawLines(lines);
    }
    lines_.clear();
    const bool drawn = PagePainter::endPage();
    device_.reset();
    buffer_.reset();
    wait_.reset();
    return drawn && PosixDisk().writeWhole(file_, Bytes(bytes_.begin(), bytes_.end()));
}

PicturePrinter::PicturePrinter(QPaintDevice& device, float width, float height, double pixelsPerTwip)
    : PagePainter(width, height), device_(device), pixelsPerTwip_(pixelsPerTwip)
{
}

bool PicturePrinter::beginPage(const PageName&)
{
    const bool begun = beginOn(device_, pixelsPerTwip_, pixelsPerTwip_ * twipsPerInch / pdfDotsPerInch);
    painter().setRenderHint(QPainter::Antialiasing);
    return begun;
}

} // namespace mirtane
