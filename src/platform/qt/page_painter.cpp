#include "platform/qt/page_painter.h"

#include "platform/posix/disk.h"
#include "platform/qt/fonts.h"
#include "platform/qt/whole.h"

#include <QBuffer>
#include <QCursor>
#include <QGuiApplication>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr int pdfDotsPerInch = 600;
constexpr int pdfUnitsPerDot = 12;
constexpr double degreesPerRadian = 57.29577951308232; // the toolkit's own degrees, not those of the drawing
constexpr double sixteenthsPerDegree = 16;

Qt::PenStyle penStyleOf(std::int16_t style)
{
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                       Qt::DashDotDotLine};
    return style >= 0 && style < std::ssize(styles) ? styles[style] : Qt::SolidLine;
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

int sixteenths(double radians)
{
    constexpr int turns = 2 * 360 * 16; // more than any remainder of a turn
    return wholeWithin(radians * degreesPerRadian * sixteenthsPerDegree, -turns, turns);
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
    painter_.setPen(QPen(Qt::black, units, penStyleOf(style), Qt::FlatCap, Qt::RoundJoin));
}

void PagePainter::line(double x1, double y1, double x2, double y2)
{
    painter_.drawLine(at(x1, y1), at(x2, y2));
}

void PagePainter::circle(double x, double y, double r)
{
    painter_.drawEllipse(at(x, y), r * unitsPerTwip_, r * unitsPerTwip_);
}

void PagePainter::arc(double x, double y, double r, double a1, double a2)
{
    constexpr int fullTurn = 360 * 16;
    const double d = r * unitsPerTwip_;
    if (!std::isfinite(a1) || !std::isfinite(a2)) return;
    int span = sixteenths(std::remainder(a2 - a1, 2 * M_PI));
    if (span < 0) span += fullTurn;
    const int start = sixteenths(std::remainder(a1, 2 * M_PI));
    painter_.drawArc(QRectF(at(x, y) - QPointF(d, d), QSizeF(2 * d, 2 * d)), start, span);
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
