#pragma once

// A function of the libraries running. What is added is selected.

#include "app/drawing/dispatch.h"
#include "function_desk.h"

#include <vector>

namespace mirtane::fake {

class LibraryDesk : public FunctionDesk {
  public:
    using FunctionDesk::FunctionDesk;

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::sel) { return FunctionDesk::add(r, stat); }

    // A click as the function's step alone sees it: behind that the input shows the gauge, which near the end
    // of the table has words of its own.
    void stepAt(Point at)
    {
        countStep(s);
        s.pickLast = at;
        callStep(s, pic1);
    }

    const std::string& owner(std::int32_t i) const { return session->store.ownerName[EntityStore::at(i)]; }
    const std::vector<std::string>& list() const { return rows(ids::selectionList); }
    std::string_view used(std::int32_t layer) const { return session->layerTable.find(layer)->layerUsed; }
};

inline HatchRow hatchLine(std::string name, Point a, Point b, float width, float height)
{
    HatchRow row;
    row.hatchName = std::move(name);
    row.h1 = a;
    row.h2 = b;
    row.hatchTileW = width;
    row.hatchTileH = height;
    row.hatchKind = Kind::line;
    return row;
}

inline HatchRow hatchCircle(std::string name, Point centre, float radius, float width, float height)
{
    HatchRow row = hatchLine(std::move(name), centre, {}, width, height);
    row.hatchRad = radius;
    row.hatchKind = Kind::circle;
    return row;
}

// The legs of a closed boundary by way of the corners.
inline std::vector<BoundaryLeg> legsThrough(const std::vector<Point>& corners)
{
    std::vector<BoundaryLeg> legs;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        legs.push_back({corners[i], corners[(i + 1) % corners.size()]});
    }
    return legs;
}

} // namespace mirtane::fake
