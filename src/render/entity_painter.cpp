#include "render/entity_painter.h"

#include "render/dimension_painters.h"
#include "render/painters.h"
#include "render/text_painter.h"
#include "tables/kinds.h"

#include <iterator>

namespace mirtane {
namespace {

using EntityPainter = void (*)(Canvas&, const View&, const EntityRecord&);

void paintLineRecord(Canvas& pic1, const View& view, const EntityRecord& r)
{
    paintLine(pic1, view, r.p1, r.p2);
}

void paintCircleRecord(Canvas& pic1, const View& view, const EntityRecord& r)
{
    paintCircle(pic1, view, r.p1, r.rad);
}

void paintArcRecord(Canvas& pic1, const View& view, const EntityRecord& r)
{
    paintArc(pic1, view, r.p1, r.p2, r.rad, r.a1, r.a2);
}

void paintEllipseRecord(Canvas& pic1, const View& view, const EntityRecord& r)
{
    paintEllipse(pic1, view, r.p1, r.p2, r.p3.x);
}

void paintPointRecord(Canvas& pic1, const View&, const EntityRecord& r)
{
    pic1.point(r.p1.x, r.p1.y);
}

void paintTextRecord(Canvas& pic1, const View&, const EntityRecord& r)
{
    paintText(pic1, textLettering(r));
}

void paintDimensionRecord(Canvas& pic1, const View& view, const EntityRecord& r)
{
    paintDimension(pic1, view, shapeOf(r));
    paintDimText(pic1, dimLettering(r));
}

// By kind, from 1.
constexpr EntityPainter painters[] = {
    paintLineRecord,      paintCircleRecord, paintArcRecord,
    paintEllipseRecord,   paintPointRecord,  paintTextRecord,
    paintDimensionRecord, // linear
    paintDimensionRecord, // radial
    paintDimensionRecord, // leader
    paintDimensionRecord, // angular
};

static_assert(std::size(painters) == drawnKinds);

} // namespace

void paintEntity(Canvas& pic1, const View& view, const EntityRecord& r)
{
    if (!isDrawnKind(r.kind)) return;
    painters[placeOf(r.kind)](pic1, view, r);
}

} // namespace mirtane
