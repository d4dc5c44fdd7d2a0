#include "library/boundary.h"

#include "render/redraw.h"

namespace mirtane {
namespace {

// Where the first point is while there is no boundary.
constexpr Point nowhere{1000000, 1000000};

// The index of the leg that is taken next.
std::size_t next(const CanvasInput& input)
{
    return static_cast<std::size_t>(input.boundaryCount); // from 0 to the last index of the table
}

void begin(Session& s)
{
    dropBoundary(s);
    s.boundary[0].from = s.pickFirst;
}

// The last place is for the leg that closes.
bool hasRoom(const CanvasInput& input)
{
    return next(input) + 1 < input.boundary.size();
}

BoundaryClick refuse(Session& s)
{
    setText(s.controls[ids::entry], "100 edges at most: close the boundary");
    --s.stepNo;
    return BoundaryClick::refused;
}

void drawLine(Canvas& pic1, Point from, Point to)
{
    pic1.line(from.x, from.y, to.x, to.y);
}

} // namespace

BoundaryClick takeBoundaryClick(Session& s)
{
    if (s.stepNo <= 1) {
        begin(s);
        return BoundaryClick::taken;
    }
    if (isOnFirstPoint(s)) {
        s.boundary[next(s)] = {s.pickFirst, s.pickLast};
        return BoundaryClick::closed;
    }
    if (!hasRoom(s)) return refuse(s);
    s.boundary[next(s)] = {s.pickFirst, s.pickLast};
    ++s.boundaryCount;
    s.pickFirst = s.pickLast;
    return BoundaryClick::taken;
}

bool isOnFirstPoint(const Session& s)
{
    return s.stepNo > 1 && s.pickLast == s.boundary[0].from;
}

std::span<const BoundaryLeg> closedBoundary(const CanvasInput& input)
{
    return std::span(input.boundary).first(next(input) + 1);
}

void dropBoundary(CanvasInput& input)
{
    input.boundaryCount = 0;
    input.boundary[0].from = nowhere;
}

void boundaryBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    restorePicture(pic1);
    drawLine(pic1, s.pickFirst, s.pickLast);
    for (const BoundaryLeg& leg : std::span(s.boundary).first(next(s))) drawLine(pic1, leg.from, leg.to);
}

} // namespace mirtane
