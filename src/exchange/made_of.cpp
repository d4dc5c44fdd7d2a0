#include "exchange/made_of.h"

#include "exchange/pairs_out.h"
#include "geometry/fault.h"
#include "render/text_painter.h"
#include "tables/kinds.h"

namespace mirtane {
namespace {

std::int16_t arrowOf(const EntityRecord& r)
{
    if (r.kind == Kind::angularDimension) return r.style;
    std::int16_t arrow = 0;
    keep(arrow, r.s1);
    return arrow;
}

void takeWords(Made& made, const EntityRecord& r)
{
    const Lettering words = letteringOf(r);
    made.size = toInches(words.size);
    made.rotation = words.degrees;
    made.text.words = r.t1;
    made.text.face = r.t2;
    made.text.underlined = words.underlined;
    if (r.kind == Kind::text) keep(made.text.justification, r.p2.y);
}

} // namespace

Made madeOf(const EntityRecord& r)
{
    Made made;
    made.kind = r.kind;
    const Point points[] = {r.p1, r.p2, r.p3, r.p4, r.p5};
    const unsigned pairs = kindRow(r.kind)->mapped;
    for (unsigned i = 0; i < made.p.size(); ++i) {
        if ((pairs >> i & 1U) != 0) made.p[i] = toInches(points[i]);
    }
    if (isRound(r.kind) || r.kind == Kind::angularDimension) made.radius = toInches(double{r.rad});
    if (kindRow(r.kind)->sweeps) made.from = r.a1, made.to = r.a2;
    if (r.kind == Kind::ellipse) made.ratio = r.p3.x;
    if (isDimension(r.kind)) made.arrow = arrowOf(r);
    if (hasWords(r.kind)) takeWords(made, r);
    return made;
}

} // namespace mirtane
