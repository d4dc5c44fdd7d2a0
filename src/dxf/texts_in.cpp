#include "dxf/texts_in.h"

#include "dxf/file_units.h"
#include "geometry/angle.h"

namespace mirtane {
namespace {

// Where a text goes by its justification in the file. Widths are parts of the text's measured width.
struct Placing {
    float inFile, inDrawing;
    double toEntered; // along the writing direction, from the point in the file to that of the drawing
    double toPainted; // and from there to where it is painted
};

constexpr float fitted = 5; // between two points
constexpr Placing placings[] = {
    {0, 0, 0, 0},
    {1, 2, 1.15 / 2, 0.9 * 1.15 / 2},
    {2, 1, 1.15, 0.95 * 1.15},
    {fitted, 0, 0, 0},
};

const Placing* placingOf(float justification)
{
    for (const Placing& row : placings) {
        if (row.inFile == justification) return &row;
    }
    return nullptr;
}

double upward(double writing)
{
    const double up = writing + quarterTurn;
    return up > fullTurn ? up - fullTurn : up;
}

// from moved towards to, so that a text of that width stands in the middle between the two.
Point centredBetween(Point from, Point to, double width)
{
    const double d = distance(from, to);
    const double start = d / 2 - width / 2;
    Point p = from;
    keep(p.x, from.x + start * quotient(to.x - from.x, d));
    keep(p.y, from.y + start * quotient(to.y - from.y, d));
    return p;
}

void placeText(EntityStore& store, std::size_t at, const Placing& placing, float w)
{
    const double writing = store.a1[at] * radiansPerDegree;
    Point p = store.p1[at];
    if (placing.inFile == fitted) p = centredBetween(p, store.p3[at], w);
    p = polarPoint(p, store.p2[at].x, upward(writing));
    p = polarPoint(p, placing.toEntered * w, writing);
    store.p1[at] = p;
    store.p4[at] = polarPoint(p, placing.toPainted * w, writing);
    store.p2[at].y = placing.inDrawing;
    store.rad[at] = w;
    store.p3[at].x = 0;
}

} // namespace

void convertText(EntityStore& store, std::int32_t slot, const TextWidthOf& widthOf)
{
    constexpr double measuredToWidth = 0.8;
    const std::size_t at = EntityStore::at(slot);
    toWorld(store.p1[at]);
    toWorld(store.p3[at]);
    keep(store.p2[at].x, store.p2[at].x * worldPerFile);
    const Placing* const placing = placingOf(store.p2[at].y);
    if (placing == nullptr) return;
    float w = 0;
    keep(w, measuredToWidth * widthOf(store.record(slot)));
    placeText(store, at, *placing, w);
}

} // namespace mirtane
