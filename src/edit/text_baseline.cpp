#include "edit/text_baseline.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "tables/kinds.h"

namespace mirtane {
namespace {

constexpr float justifiedRight = 1;
constexpr float justifiedCentre = 2;

Point middleOf(const Baseline& on)
{
    Point middle = on.start;
    keep(middle.x, (static_cast<double>(on.start.x) + on.end.x) / 2); // widened before the sum
    keep(middle.y, (static_cast<double>(on.start.y) + on.end.y) / 2); // widened before the sum
    return middle;
}

} // namespace

Baseline baselineUnder(Canvas& pic1, const EntityRecord& r, std::string_view words)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr || row->rotation == nullptr) return {};
    pic1.setFontName(r.t2);
    pic1.setFontSize(textSizeOf(r));
    const Point start = r.*row->textStart;
    return {start, polarPoint(start, pic1.textWidth(words), r.*row->rotation * radiansPerDegree)};
}

void layText(EntityRecord& r, const Baseline& on, double degrees)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr || row->rotation == nullptr) return;
    keep(r.*row->rotation, degrees);
    r.*row->textStart = on.start;
    if (r.kind != Kind::text) return;
    r.p1 = on.start;
    if (r.p2.y == justifiedRight) r.p1 = on.end;
    if (r.p2.y == justifiedCentre) r.p1 = middleOf(on);
}

} // namespace mirtane
