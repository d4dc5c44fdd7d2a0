#pragma once

#include "model/snap_mark.h"

#include <QFont>
#include <QPainter>
#include <QString>

namespace mirtane {

// The mark of a snap about the place where a click would land, each snap with its own, and the name of what
// it would land on. Places are in the widget's own units.
void paintSnapMark(QPainter& painter, QPointF at, SnapKind snap, const QString& what);

// The part of the widget that the mark covers.
QRect rectOfSnapMark(QPointF at, const QString& what, const QFont& font);

} // namespace mirtane
