#include "platform/qt/window/swatches.h"

#include "platform/qt/whole.h"

#include "tables/pens.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <optional>

namespace mirtane {
namespace {

constexpr int tickWidth = 16;
constexpr int strokeEnd = 40; // the words of the entry follow at once
constexpr QRgb white = 0xFFFFFFFF;

struct PenStroke {
    QColor color;
    double width = 1;
    Qt::PenStyle style = Qt::SolidLine;
};

constexpr Qt::PenStyle penStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                      Qt::DashDotDotLine};

// In the proportions of the paper: the widest fills the swatch.
PenStroke strokeOf(const Pen& pen)
{
    constexpr double fullest = 14;
    return {colorOf(pen.color), std::max(1.0, pen.paperWidth * swatchSize.height() / fullest), Qt::SolidLine};
}

std::optional<PenStroke> strokeOf(ControlId entry)
{
    for (const Pen& pen : pens) {
        if (pen.entry == entry || pen.filterEntry == entry) return strokeOf(pen);
    }
    for (const LineStyle& style : lineStyles) {
        if (style.entry == entry || style.filterEntry == entry)
            return PenStroke{QColor::fromRgb(white), 2, penStyles[style.style]};
    }
    return std::nullopt;
}

QPixmap blank(QSize size)
{
    const double ratio = qGuiApp->devicePixelRatio();
    QPixmap picture(wholeSize(QSizeF(size) * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

QPixmap pictureOf(const PenStroke& stroke, bool ticked)
{
    QPixmap picture = blank(swatchSize);
    QPainter painter(&picture);
    const double middle = swatchSize.height() / 2.0;
    painter.setPen(QPen(stroke.color, stroke.width, stroke.style, Qt::FlatCap));
    painter.drawLine(QPointF(tickWidth, middle), QPointF(strokeEnd, middle));
    if (!ticked) return picture;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(white), 2));
    painter.drawPolyline(QPolygonF({{2, middle}, {5, middle + 4}, {11, middle - 5}}));
    return picture;
}

// 0 for a colour that is no pen's.
int numberOf(std::int32_t bgr)
{
    const auto* const pen = std::ranges::find(pens, bgr, &Pen::color);
    return pen == std::end(pens) ? 0 : countOf(pen - pens) + 1;
}

bool isBright(const QColor& color)
{
    constexpr int half = 128;
    return qGray(color.rgb()) > half;
}

} // namespace

QIcon swatchOf(ControlId entry)
{
    const std::optional<PenStroke> stroke = strokeOf(entry);
    QIcon swatch;
    if (!stroke) return swatch;
    swatch.addPixmap(pictureOf(*stroke, false), QIcon::Normal, QIcon::Off);
    swatch.addPixmap(pictureOf(*stroke, true), QIcon::Normal, QIcon::On);
    return swatch;
}

QIcon patchOf(std::int32_t bgr)
{
    constexpr QSize side(64, 64); // scaled down to the size of an icon
    QPixmap patch(side);
    const QColor color = colorOf(bgr);
    patch.fill(color);
    const int number = numberOf(bgr);
    if (number == 0) return patch;
    QPainter painter(&patch);
    QFont font = painter.font();
    font.setPixelSize(side.height() * 4 / 5);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(isBright(color) ? Qt::black : Qt::white);
    painter.drawText(QRect(QPoint(0, 0), side), Qt::AlignCenter, QString::number(number));
    painter.end();
    return patch;
}

QColor colorOf(std::int32_t bgr)
{
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

} // namespace mirtane
