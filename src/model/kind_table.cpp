#include "model/kind_table.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"

#include <cmath>
#include <iterator>

namespace mirtane {
namespace {

using namespace field;

constexpr std::uint16_t allPairs = p1 | p2 | p3 | p4 | p5;
constexpr std::uint16_t dimensionValues = s1 | s2 | rad | a1 | a2 | a3 | words;
constexpr auto rotation1 = &EntityRecord::a1;
constexpr auto rotation3 = &EntityRecord::a3;

// A leader has no fourth pair. A move shifts what stands there all the same; the rest leaves it alone.
constexpr std::uint16_t leaderPairs = p1 | p2 | p3 | p5;

// clang-format off
constexpr KindRow rows[] = {
//   moved              mapped             values                        sweeps  rotation   text start
    {p1 | p2,           p1 | p2,           0,                            false,  nullptr,   nullptr},           // line
    {p1,                p1,                rad,                          false,  nullptr,   nullptr},           // circle
    {p1 | p2 | p3 | p4, p1 | p2 | p3 | p4, rad | a1 | a2,                true,   nullptr,   nullptr},           // arc
    {p1 | p2,           p1 | p2,           p3x,                          false,  nullptr,   nullptr},           // ellipse
    {p1,                p1,                0,                            false,  nullptr,   nullptr},           // point
    {p1 | p4,           p1 | p4,           p2 | p3x | rad | a1 | words,  false,  rotation1, &EntityRecord::p4}, // text
    {allPairs,          allPairs,          dimensionValues,              false,  rotation1, &EntityRecord::p5}, // linear dimension
    {allPairs,          allPairs,          dimensionValues,              false,  rotation1, &EntityRecord::p5}, // radial dimension
    {allPairs,          leaderPairs,       dimensionValues | p4,         false,  rotation1, &EntityRecord::p5}, // leader
    {allPairs,          allPairs,          dimensionValues,              true,   rotation3, &EntityRecord::p5}, // angular dimension
};
// clang-format on

static_assert(std::size(rows) == kind::lastDrawn);

void writePairs(EntityStore& store, std::size_t at, const EntityRecord& r, std::uint16_t fields)
{
    if ((fields & p1) != 0) store.p1[at] = r.p1;
    if ((fields & p2) != 0) store.p2[at] = r.p2;
    if ((fields & p3) != 0) store.p3[at] = r.p3;
    if ((fields & p4) != 0) store.p4[at] = r.p4;
    if ((fields & p5) != 0) store.p5[at] = r.p5;
    if ((fields & p3x) != 0) store.p3[at].x = r.p3.x;
}

void writeValues(EntityStore& store, std::size_t at, const EntityRecord& r, std::uint16_t fields)
{
    if ((fields & s1) != 0) store.s1[at] = r.s1;
    if ((fields & s2) != 0) store.s2[at] = r.s2;
    if ((fields & rad) != 0) store.rad[at] = r.rad;
    if ((fields & a1) != 0) store.a1[at] = r.a1;
    if ((fields & a2) != 0) store.a2[at] = r.a2;
    if ((fields & a3) != 0) store.a3[at] = r.a3;
    if ((fields & words) == 0) return;
    store.t1[at] = r.t1;
    store.t2[at] = r.t2;
}

} // namespace

const KindRow* kindRow(std::int16_t kind)
{
    return isDrawnKind(kind) ? &rows[kind - 1] : nullptr;
}

bool isDrawnKind(std::int16_t kind)
{
    return kind >= kind::line && kind <= kind::lastDrawn;
}

float textSizeOf(const EntityRecord& r)
{
    return r.kind == kind::text ? r.p2.x : r.s2;
}

void writeFieldsOfKind(EntityStore& store, std::int32_t slot, const EntityRecord& r)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr || !EntityStore::holds(slot)) return;
    const std::size_t at = EntityStore::at(slot);
    const auto fields = static_cast<std::uint16_t>(row->moved | row->values); // bits of field, as both are
    store.kind[at] = r.kind;
    store.color[at] = r.color;
    store.layer[at] = r.layer;
    store.style[at] = r.style;
    writePairs(store, at, r, fields);
    writeValues(store, at, r, fields);
}

void shift(EntityRecord& r, float dx, float dy)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr) return;
    mapPairs(r, row->moved, [dx, dy](Point p) {
        keep(p.x, static_cast<double>(p.x) + dx); // widened before the sum
        keep(p.y, static_cast<double>(p.y) + dy); // widened before the sum
        return p;
    });
}

double withinTurn(double radians)
{
    if (radians >= fullTurn) return radians - fullTurn;
    return radians < 0 ? radians + fullTurn : radians;
}

// A right angle in degrees becomes one that is only nearly so in radians; what is turned by it still lies on
// the axes, however far out it is.
double onAxis(double cosineOrSine)
{
    constexpr double nearly = 1e-7; // about what a 32-bit number can't tell from 0 beside 1
    return std::abs(cosineOrSine) < nearly ? 0 : cosineOrSine;
}

Turn::Turn(Point centre, double radians)
    : centre_(centre), radians_(radians), cos_(onAxis(std::cos(radians))), sin_(onAxis(std::sin(radians)))
{
}

Point Turn::of(Point p) const
{
    const double right = static_cast<double>(p.x) - centre_.x; // widened before the difference
    const double up = static_cast<double>(centre_.y) - p.y;    // widened before the difference
    keep(p.x, centre_.x + right * cos_ - up * sin_);
    keep(p.y, centre_.y - right * sin_ - up * cos_);
    return p;
}

void Turn::apply(EntityRecord& r) const
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr) return;
    mapPairs(r, row->mapped, [this](Point p) { return of(p); });
    if (row->sweeps) {
        keep(r.a1, withinTurn(r.a1 + radians_));
        keep(r.a2, withinTurn(r.a2 + radians_));
    }
    if (row->rotation == nullptr) return;
    double& degrees = r.*row->rotation;
    keep(degrees, withinTurn(degrees * radiansPerDegree + radians_) * degreesPerRadian);
}

void placeArcPoints(EntityRecord& arc)
{
    const ArcPoints points = arcPoints(arc.p1, arc.rad, arc.a1, arc.a2);
    arc.p2 = points.start;
    arc.p3 = points.end;
    arc.p4 = points.middle;
}

} // namespace mirtane
