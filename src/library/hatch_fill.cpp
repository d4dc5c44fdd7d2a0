#include "library/hatch_fill.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "library/turned_angle.h"
#include "model/record_moves.h"
#include "tables/kinds.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

std::vector<const HatchRow*> rowsOf(const HatchFill& fill)
{
    std::vector<const HatchRow*> rows;
    for (const HatchRow& row : fill.rows) {
        if (bearsName(row.hatchName, fill.name)) rows.push_back(&row);
    }
    return rows;
}

Point firstPoint(const HatchFill& fill)
{
    return fill.boundary.front().from;
}

// The boundary turned until the tile lies level.
Polygon levelPolygon(const HatchFill& fill)
{
    if (fill.rotation == 0) return polygonOf(fill.boundary);
    const Turn turn(firstPoint(fill), -fill.rotation);
    std::vector<BoundaryLeg> level;
    for (const BoundaryLeg& leg : fill.boundary) level.push_back({turn.of(leg.from), turn.of(leg.to)});
    return polygonOf(level);
}

// A tile that was drawn from another corner than its upper left has its rows relative to that corner.
Point originIn(const HatchCell& cell, const HatchRow& row)
{
    return {row.hatchTileW < 0 ? cell.right : cell.left, row.hatchTileH < 0 ? cell.bottom : cell.top};
}

void clipRow(HatchClip& clip, const HatchRow& row, Point origin, float scale)
{
    const auto placed = [&](Point p) { return Point{origin.x + scale * p.x, origin.y + scale * p.y}; };
    switch (row.hatchKind) {
    case Kind::line:
        return clip.line(placed(row.h1), placed(row.h2), row.hatchStyle);
    case Kind::circle:
        return clip.circle(placed(row.h1), scale * row.hatchRad, row.hatchStyle);
    case Kind::arc:
        return clip.arc(placed(row.h1), scale * row.hatchRad, row.hatchA1, row.hatchA2, row.hatchStyle);
    case Kind::point:
        return clip.point(placed(row.h1), row.hatchStyle);
    case Kind::ellipse:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return; // a file may hold anything
    }
}

} // namespace

std::vector<HatchPiece> fillHatch(const HatchFill& fill, Missing& missing)
{
    const std::vector<const HatchRow*> rows = rowsOf(fill);
    if (rows.empty() || fill.boundary.empty()) return {};
    const Polygon polygon = levelPolygon(fill);
    const Tile tile{firstPoint(fill), std::abs(fill.scale * rows.front()->hatchTileW),
                    std::abs(fill.scale * rows.front()->hatchTileH)};
    const HatchGrid grid = hatchGrid(polygon, tile);
    // Beyond a table's worth cells are listed to be counted, as far as that is no more work than filling one.
    const std::size_t mostCells = std::max(hatchTableRows, hatchRowsCounted / rows.size());
    const std::vector<HatchCell> cells = reachedCells(polygon, grid, mostCells);
    if (cells.empty()) return {};
    HatchClip clip(polygon, grid);
    clip.expect(cells.size() * rows.size()); // 30,001 times 1,000 at the most
    for (std::size_t i = 0; i < cells.size() && !clip.isSpent(); ++i) {
        if (i == hatchTableRows) clip.close(); // further cells have no place in their table
        for (const HatchRow* row : rows) clipRow(clip, *row, originIn(cells[i], *row), fill.scale);
    }
    missing.pieces += clip.dropped();
    missing.orMore = missing.orMore || clip.isSpent() || cells.size() == mostCells;
    return clip.take();
}

EntityRecord hatchObject(const HatchPiece& piece, const HatchFill& fill)
{
    EntityRecord r;
    r.kind = piece.kind;
    r.style = piece.style;
    r.p1 = piece.from;
    r.p2 = piece.to;
    r.rad = piece.radius;
    r.a1 = piece.a1;
    r.a2 = piece.a2;
    if (piece.kind == Kind::arc) placeArcPoints(r);
    if (fill.rotation == 0) return r;
    const Turn turn(firstPoint(fill), fill.rotation);
    mapPairs(r, kindRow(r.kind)->mapped, [&turn](Point p) { return turn.of(p); });
    r.a1 = turnedAngle(r.a1, fill.rotation);
    r.a2 = turnedAngle(r.a2, fill.rotation);
    return r;
}

} // namespace mirtane
