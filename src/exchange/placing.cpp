#include "exchange/placing.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "model/kind_fields.h"
#include "tables/kinds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mirtane {
namespace {

Point placed(Vec p, const Placing& placing)
{
    Point point;
    keep(point.x, (p.x + placing.move.x) * placing.worldPerFile);
    keep(point.y, (p.y + placing.move.y) * -placing.worldPerFile);
    return point;
}

// 0 to a full turn, which the drawing's literal is a little short of.
double inOneTurn(double angle)
{
    const double rest = std::fmod(angle, 2 * std::numbers::pi);
    return std::min(rest < 0 ? rest + 2 * std::numbers::pi : rest, fullTurn);
}

void placePoints(EntityRecord& r, const Made& made, const Placing& placing)
{
    constexpr std::array members{&EntityRecord::p1, &EntityRecord::p2, &EntityRecord::p3, &EntityRecord::p4,
                                 &EntityRecord::p5};
    const KindRow* const row = kindRow(made.kind);
    for (std::size_t i = 0; row != nullptr && i < members.size(); ++i) {
        if ((row->mapped >> i & 1) != 0) r.*members[i] = placed(made.p[i], placing);
    }
}

void placeArc(EntityRecord& r, const Made& made)
{
    r.a1 = inOneTurn(made.from);
    r.a2 = inOneTurn(made.to);
    const ArcPoints points = arcPoints(r.p1, r.rad, r.a1, r.a2);
    r.p2 = points.start;
    r.p3 = points.end;
    r.p4 = points.middle;
}

void placeDimension(EntityRecord& r, const Made& made, float size)
{
    r.s1 = made.arrow;
    r.s2 = size;
    r.a2 = size;
    r.style = 0;
    r.a1 = made.rotation;
    if (made.kind != Kind::angularDimension) return;
    r.s1 = size;
    r.style = made.arrow;
    r.a1 = inOneTurn(made.from);
    r.a2 = inOneTurn(made.to);
    r.a3 = made.rotation;
}

void placeText(EntityRecord& r, const Made& made, float size)
{
    r.p2 = {size, static_cast<float>(made.text.justification)}; // 0 to 2
    r.p3.x = made.text.underlined ? 1 : 0;
    r.p4 = r.p1;
    r.a1 = made.rotation;
    r.style = 0;
}

} // namespace

bool isHeldAsItStands(const Made& made, double worldPerFile)
{
    constexpr double lastDigit = 1e-9; // of the ten that we write
    const auto isHeld = [worldPerFile](double coordinate) {
        float held = 0;
        keep(held, coordinate * worldPerFile);
        return std::abs(held - coordinate * worldPerFile) <= lastDigit * std::abs(held);
    };
    const KindRow* const row = kindRow(made.kind);
    for (std::size_t i = 0; row != nullptr && i < made.p.size(); ++i) {
        if ((row->mapped >> i & 1) != 0 && !(isHeld(made.p[i].x) && isHeld(made.p[i].y))) return false;
    }
    return true;
}

EntityRecord recordOf(const Made& made, const Placing& placing)
{
    EntityRecord r;
    r.kind = made.kind;
    r.color = made.look.color;
    r.layer = made.look.layer;
    r.style = made.look.style;
    r.t1 = made.text.words;
    r.t2 = made.text.face;
    keep(r.rad, made.radius * placing.worldPerFile);
    float size = 0;
    keep(size, made.size * placing.worldPerFile);
    placePoints(r, made, placing);
    if (made.kind == Kind::arc) placeArc(r, made);
    if (made.kind == Kind::ellipse) keep(r.p3.x, made.ratio);
    if (made.kind == Kind::text) placeText(r, made, size);
    if (isDimension(made.kind)) placeDimension(r, made, size);
    return r;
}

} // namespace mirtane
