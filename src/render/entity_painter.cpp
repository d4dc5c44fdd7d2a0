#include "render/entity_painter.h"

#include "model/kind_table.h"
#include "render/painters.h"

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

// By kind, from 1; text and dimensions have no painter yet.
constexpr EntityPainter painters[] = {
    paintLineRecord, paintCircleRecord, paintArcRecord, paintEllipseRecord, paintPointRecord,
    nullptr, // text
    nullptr, // linear dimension
    nullptr, // radial dimension
    nullptr, // leader
    nullptr, // angular dimension
};

static_assert(std::size(painters) == kind::lastDrawn);

} // namespace

void paintEntity(Canvas& pic1, const View& view, const EntityRecord& r)
{
    if (!isDrawnKind(r.kind)) return;
    const EntityPainter painter = painters[r.kind - 1];
    if (painter != nullptr) painter(pic1, view, r);
}

} // namespace mirtane
