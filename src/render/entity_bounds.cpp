// render/entity_bounds.cpp: one list of reference points for opening a drawing and for showing all of it.

#include "render/entity_bounds.h"

#include "geometry/angle.h"
#include "geometry/ellipse.h"
#include "geometry/fault.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

using PointArray = std::vector<Point> EntityStore::*;

struct FedPoints {
    Kind kind;
    PointArray points[4]; // null where there are fewer
};

// The kinds whose stored points are fed as they are.
constexpr FedPoints fedPoints[] = {
    {Kind::line, {&EntityStore::p1, &EntityStore::p2}},
    {Kind::arc, {&EntityStore::p2, &EntityStore::p3, &EntityStore::p4}},
    {Kind::point, {&EntityStore::p1}},
    {Kind::linearDimension, {&EntityStore::p1, &EntityStore::p2, &EntityStore::p3, &EntityStore::p5}},
    {Kind::radialDimension, {&EntityStore::p1, &EntityStore::p5}},
    {Kind::leader, {&EntityStore::p1, &EntityStore::p3}},
    {Kind::angularDimension, {&EntityStore::p1, &EntityStore::p2, &EntityStore::p3, &EntityStore::p5}},
};

void feedStoredPoints(IntegerBox& box, const EntityStore& store, std::size_t at)
{
    for (const FedPoints& row : fedPoints) {
        if (row.kind != store.kind[at]) continue;
        for (const PointArray points : row.points) {
            if (points == nullptr) return;
            const Point p = (store.*points)[at];
            box.feed(p.x, p.y);
        }
        return;
    }
}

void feedCircle(IntegerBox& box, Point centre, float radius)
{
    box.feed(centre.x + radius, centre.y + radius);
    box.feed(centre.x - radius, centre.y - radius);
}

void feedEllipse(IntegerBox& box, const Ellipse& e)
{
    for (const ExactPoint& end : exactAxisEnds(e)) box.feed(end.x, end.y);
}

// The corners of the text's box, which hangs below the point as entered, whatever the justification.
void feedText(IntegerBox& box, Point p, double size, double degrees, double width)
{
    const double angle = degrees * radiansPerDegree;
    const double alongX = width * std::cos(angle);
    const double alongY = -width * std::sin(angle);
    const double downX = size * std::sin(angle);
    const double downY = size * std::cos(angle);
    box.feed(p.x, p.y);
    box.feed(p.x + alongX, p.y + alongY);
    box.feed(p.x + downX, p.y + downY);
    box.feed(p.x + alongX + downX, p.y + alongY + downY);
}

// The window of shape aspect round the box, a twentieth larger; none round one point.
bool windowRound(const IntegerBox& box, double aspect, Scale& scale)
{
    if (!(aspect > 0)) return false;
    double w = box.x.length();
    double h = box.y.length();
    if (h * aspect >= w) w = h * aspect;
    if (h * aspect <= w) h = quotient(w, aspect);
    Scale fitted;
    const bool kept = keep(fitted.width, w * 1.05) && keep(fitted.height, h * 1.05) &&
                      keep(fitted.left, box.x.low - w * 0.025) && keep(fitted.top, box.y.low - h * 0.025);
    if (!kept || !(fitted.width > 0) || !(fitted.height > 0)) return false;
    scale = fitted;
    return true;
}

bool isOnePoint(const IntegerBox& box)
{
    return box.x.length() == 0 && box.y.length() == 0;
}

} // namespace

void IntegerRange::feed(double value)
{
    std::int32_t whole = 0;
    if (!keep(whole, value)) return;
    low = fed ? std::min(low, whole) : whole;
    high = fed ? std::max(high, whole) : whole;
    fed = true;
}

void feedBounds(IntegerBox& box, const EntityStore& store, std::int32_t slot, float textWidth)
{
    if (!EntityStore::holds(slot)) return;
    const std::size_t at = EntityStore::at(slot);
    switch (store.kind[at]) {
    case Kind::circle:
        return feedCircle(box, store.p1[at], store.rad[at]);
    case Kind::ellipse:
        return feedEllipse(box, {store.p1[at], store.p2[at], store.p3[at].x});
    case Kind::text:
        return feedText(box, store.p1[at], store.p2[at].x, store.a1[at], textWidth);
    case Kind::line:
    case Kind::arc:
    case Kind::point:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return feedStoredPoints(box, store, at);
    }
}

IntegerBox drawingBounds(const EntityStore& store, const TextWidthOf& widthOf)
{
    IntegerBox box;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (!store.isShown(i)) continue;
        const bool isText = store.kind[EntityStore::at(i)] == Kind::text;
        feedBounds(box, store, i, isText ? widthOf(store.record(i)) : 0);
    }
    return box;
}

bool fitScale(const IntegerBox& box, double aspect, Scale& scale)
{
    return box.fed() && windowRound(box, aspect, scale);
}

bool fitScaleOrMove(const IntegerBox& box, double aspect, Scale& scale)
{
    if (!box.fed()) return false;
    if (!isOnePoint(box)) return windowRound(box, aspect, scale);
    keep(scale.left, box.x.low);
    keep(scale.top, box.y.low);
    return true;
}

} // namespace mirtane
