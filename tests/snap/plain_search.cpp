#include "plain_search.h"

#include <cmath>

namespace mirtane::plain {
namespace {

constexpr double turn = 6.2831853;

double apart(double x1, double y1, double x2, double y2)
{
    return std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

float single(double value)
{
    return static_cast<float>(value); // distances are compared so
}

Near nearAt(Point p, double x, double y)
{
    const Point at{single(x), single(y)};
    return {at, single(apart(p.x, p.y, at.x, at.y))};
}

// By the construction with the isosceles triangle: Q lies on the line as far from its start as p does.
std::optional<Near> onLine(Point p, Point a, Point b)
{
    const double length = apart(a.x, a.y, b.x, b.y);
    double x = a.x;
    double y = a.y;
    const double d = apart(a.x, a.y, p.x, p.y);
    if (length > 0 && d > 0) {
        const double ux = (double{b.x} - a.x) / length;
        const double uy = (double{a.y} - b.y) / length;
        const double qx = a.x + d * ux;
        const double qy = a.y - d * uy;
        const double c = apart(p.x, p.y, qx, qy);
        const double e = c * ((c / 2) / d);
        x = qx - e * ux;
        y = qy + e * uy;
    }
    if (single(apart(a.x, a.y, x, y)) > single(length) || single(apart(b.x, b.y, x, y)) > single(length))
        return std::nullopt;
    return nearAt(p, x, y);
}

double angleOf(Point centre, Point p)
{
    const double angle = std::atan2(double{centre.y} - p.y, double{p.x} - centre.x);
    return angle < 0 ? angle + turn : angle;
}

double ahead(double from, double to)
{
    return to < from ? to - from + turn : to - from;
}

bool meetsSweep(double angle, double a1, double a2, Arcs arcs)
{
    if (arcs == Arcs::whole) return true;
    const double whole = ahead(a1, a2);
    if (ahead(a1, angle) <= whole) return true;
    if (arcs == Arcs::onSweep) return false;
    return ahead(angle, a1) <= whole / 100 || ahead(a2, angle) <= whole / 100;
}

Near onCircle(Point p, Point centre, double radius)
{
    const double d = apart(centre.x, centre.y, p.x, p.y);
    if (d == 0) return nearAt(p, centre.x, centre.y);
    return nearAt(p, centre.x + (double{p.x} - centre.x) / d * radius,
                  centre.y + (double{p.y} - centre.y) / d * radius);
}

Near onEllipse(Point p, Point end, Point centre, double ratio)
{
    const double r = apart(end.x, end.y, centre.x, centre.y);
    const double ux = (double{end.x} - centre.x) / r;
    const double uy = (double{centre.y} - end.y) / r;
    Near best{centre, INFINITY};
    for (int k = 0; k < 180; ++k) {
        const double c = r * std::cos(k * turn / 180);
        const double s = r * std::sin(k * turn / 180) * ratio;
        const Near sample = nearAt(p, centre.x + c * ux - s * uy, centre.y - c * uy - s * ux);
        if (sample.distance <= best.distance) best = sample;
    }
    return best;
}

Near atPoint(Point p, Point at)
{
    return nearAt(p, at.x, at.y);
}

bool isShown(const EntityStore& store, std::size_t i)
{
    return store.stat[i] == Stat::on || store.stat[i] == Stat::sel;
}

std::vector<Point> ellipseEnds(const EntityStore& store, std::size_t i)
{
    const Point end = store.p1[i];
    const Point centre = store.p2[i];
    const float ratio = store.p3[i].x;
    const float dx = end.x - centre.x;
    const float up = centre.y - end.y;
    return {end,
            {centre.x - dx, centre.y + up},
            {centre.x - ratio * up, centre.y - ratio * dx},
            {centre.x + ratio * up, centre.y + ratio * dx}};
}

} // namespace

std::optional<Near> nearestOf(const EntityStore& store, std::size_t i, Point p, Arcs arcs)
{
    switch (store.kind[i]) {
    case Kind::line:
        return onLine(p, store.p1[i], store.p2[i]);
    case Kind::circle:
        return onCircle(p, store.p1[i], store.rad[i]);
    case Kind::arc:
        if (!meetsSweep(angleOf(store.p1[i], p), store.a1[i], store.a2[i], arcs)) return std::nullopt;
        return onCircle(p, store.p1[i], store.rad[i]);
    case Kind::ellipse:
        return onEllipse(p, store.p1[i], store.p2[i], store.p3[i].x);
    case Kind::point:
    case Kind::text:
        return atPoint(p, store.p1[i]);
    case Kind::leader:
        return atPoint(p, store.p2[i]);
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        return atPoint(p, store.p5[i]);
    }
    return std::nullopt;
}

std::int32_t search(const EntityStore& store, const Rule& rule)
{
    std::int32_t best = -1;
    float radius = rule.radius;
    for (std::int32_t slot = 1; slot < store.entCount; ++slot) {
        const std::size_t i = EntityStore::at(slot);
        if (slot == rule.skipped || !isShown(store, i)) continue;
        if (std::ranges::find(rule.kinds, store.kind[i]) == rule.kinds.end()) continue;
        auto near = nearestOf(store, i, rule.from, rule.arcs);
        const bool fromCentre = isRound(store.kind[i]) && rule.from == store.p1[i];
        if (near && fromCentre && rule.isPick) near->distance = std::abs(store.rad[i]);
        if (!near || near->distance > radius) continue;
        best = slot;
        radius = near->distance;
    }
    return radius < rule.radius || rule.isPick ? best : -1;
}

std::vector<Point> offeredPoints(const EntityStore& store, std::size_t i)
{
    if (!isShown(store, i)) return {};
    switch (store.kind[i]) {
    case Kind::line:
    case Kind::text:
        return {store.p1[i], store.p2[i]};
    case Kind::circle:
    case Kind::point:
        return {store.p1[i]};
    case Kind::arc:
        return {store.p1[i], store.p2[i], store.p3[i]};
    case Kind::ellipse:
        return ellipseEnds(store, i);
    case Kind::leader:
        return {store.p5[i], store.p1[i], store.p2[i]};
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        return {};
    }
    return {}; // no object
}

std::vector<Point> windowPoints(const EntityStore& store, std::size_t i)
{
    const Point p1 = store.p1[i];
    const float r = store.rad[i];
    switch (store.kind[i]) {
    case Kind::line:
        return {p1, store.p2[i]};
    case Kind::circle:
        return {{p1.x - r, p1.y - r}, {p1.x + r, p1.y + r}};
    case Kind::arc:
        return {store.p2[i], store.p3[i], store.p4[i]};
    case Kind::ellipse:
        return ellipseEnds(store, i);
    case Kind::point:
    case Kind::text:
        return {p1};
    case Kind::linearDimension:
        return {store.p3[i], store.p4[i], store.p5[i]};
    case Kind::radialDimension:
        return {store.p2[i], store.p5[i]};
    case Kind::leader:
        return {store.p2[i], store.p3[i]};
    case Kind::angularDimension:
        return {store.p4[i], store.p5[i]};
    }
    return {}; // no object
}

} // namespace mirtane::plain
