#include "platform/qt/window/snap_mark_painter.h"

#include "platform/qt/whole.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace mirtane {
namespace {

constexpr double reach = 8; // from the middle to the edge of a mark
constexpr double room = 3;  // for the pen
constexpr QRgb light = 0xFFFFCF5C;

QPainterPath box()
{
    QPainterPath path;
    path.addRect(-reach, -reach, 2 * reach, 2 * reach);
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> corners)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(corners)));
    path.closeSubpath();
    return path;
}

QPainterPath strokes(std::initializer_list<QLineF> lines)
{
    QPainterPath path;
    for (const QLineF& line : lines) {
        path.moveTo(line.p1());
        path.lineTo(line.p2());
    }
    return path;
}

QPainterPath circleUnderLine()
{
    QPainterPath path = strokes({QLineF(-reach, -reach, reach, -reach)});
    path.addEllipse(QPointF(0, 1), reach - 1, reach - 1);
    return path;
}

QPainterPath markOf(SnapKind snap)
{
    switch (snap) {
    case SnapKind::point:
        return box();
    case SnapKind::object: // an hourglass
        return polygon({{-reach, -reach}, {reach, -reach}, {-reach, reach}, {reach, reach}});
    case SnapKind::intersection:
        return strokes({QLineF(-reach, -reach, reach, reach), QLineF(-reach, reach, reach, -reach)});
    case SnapKind::percentage:
        return polygon({{0, -reach}, {reach, 0}, {0, reach}, {-reach, 0}});
    case SnapKind::perpendicular:
        return strokes({QLineF(-reach, -reach, -reach, reach), QLineF(-reach, reach, reach, reach),
                        QLineF(-reach, 0, 0, 0), QLineF(0, 0, 0, reach)});
    case SnapKind::tangent:
        return circleUnderLine();
    case SnapKind::midpoint:
        return polygon({{0, -reach}, {reach, reach}, {-reach, reach}});
    }
    return {};
}

// Beside the mark, above the line that the pointer covers.
QRectF wordRect(QPointF at, const QString& what, const QFontMetricsF& metrics)
{
    return {at.x() + reach + room, at.y() - reach - room - metrics.height(),
            metrics.horizontalAdvance(what) + 2, metrics.height()};
}

} // namespace

// Dark beneath light, so that it shows on every colour of the drawing.
void paintSnapMark(QPainter& painter, QPointF at, SnapKind snap, const QString& what)
{
    const QPainterPath mark = markOf(snap).translated(at);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.strokePath(mark, QPen(Qt::black, 4));
    painter.strokePath(mark, QPen(QColor::fromRgb(light), 2));
    const QRectF word = wordRect(at, what, QFontMetricsF(painter.font()));
    painter.fillRect(word, QColor(0, 0, 0, 190));
    painter.setPen(QColor::fromRgb(light));
    painter.drawText(word, Qt::AlignCenter, what);
}

QRect rectOfSnapMark(QPointF at, const QString& what, const QFont& font)
{
    const QRectF mark(at.x() - reach - room, at.y() - reach - room, 2 * (reach + room), 2 * (reach + room));
    return wholeRectRound(mark.united(wordRect(at, what, QFontMetricsF(font))));
}

} // namespace mirtane
