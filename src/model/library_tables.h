#pragma once

// The hatches and the multiple lines in memory. A hatch, and a set of multiple lines, is no record of its own
// but the rows that bear its name.

#include "model/controls.h"
#include "model/entity_store.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mirtane {

// One object of a hatch's tile, relative to the tile's first corner.
struct HatchRow {
    std::string hatchName;
    Point h1, h2, h3, h4;                 // (hx1, hy1) to (hx4, hy4), world units
    float hatchTileW = 0, hatchTileH = 0; // second corner minus first, signs kept
    float hatchRad = 0;
    double hatchA1 = 0, hatchA2 = 0; // a line's direction; an arc's start and end, radians
    std::int32_t hatchColor = 0;     // kept, and not used when filling
    std::int16_t hatchStyle = 0;
    Kind hatchKind{}; // line, circle, arc or point

    friend bool operator==(const HatchRow&, const HatchRow&) = default;
};

// One line of a set of multiple lines.
struct MultipleLine {
    float m1 = 0;            // signed distance from the reference line, world units
    Point legStart;          // (m2, m3): where the line of the leg under way starts
    Point legEnd;            // (m4, m5): and where it ends
    std::int32_t colour = 0; // 0xBBGGRR
    std::int16_t style = 0;
    std::string name;

    friend bool operator==(const MultipleLine&, const MultipleLine&) = default;
};

inline std::string& nameOf(HatchRow& row)
{
    return row.hatchName;
}
inline const std::string& nameOf(const HatchRow& row)
{
    return row.hatchName;
}
inline std::string& nameOf(MultipleLine& row)
{
    return row.name;
}
inline const std::string& nameOf(const MultipleLine& row)
{
    return row.name;
}

// A library's rows, allocated once at full size. Removed rows bear noName and are never reused. Past the last
// row additions are dropped while count goes on growing, so readers go through used() and not up to count.
template <class Row> struct LibraryTable {
    static constexpr std::int32_t rowLimit = 1000;

    LibraryTable() : rows(rowLimit) {}

    std::size_t end() const { return static_cast<std::size_t>(count < rowLimit ? count : rowLimit); }
    std::span<Row> used() { return std::span(rows).first(end()); }
    std::span<const Row> used() const { return std::span(rows).first(end()); }

    // False for a row that is dropped.
    bool add(Row row)
    {
        const bool fits = count < rowLimit;
        if (fits) rows[static_cast<std::size_t>(count)] = std::move(row); // never negative
        ++count;
        return fits;
    }

    std::vector<Row> rows;
    std::int32_t count = 0; // next free row
};

using HatchLibrary = LibraryTable<HatchRow>;
using MultipleLinesLibrary = LibraryTable<MultipleLine>;

// Whether a name is one: neither empty nor noName, which marks what has been removed.
bool isLiveName(std::string_view name);

// Whether a row with this name belongs to what is wanted. Nothing belongs to noName, or removed rows would
// come back when no name is chosen.
bool bearsName(std::string_view rowName, std::string_view wanted);

// The names of a library as its list shows them: rows in order, a name each time that it differs from the one
// listed last. So a name whose rows lie apart is listed twice, unless only removed rows lie between.
class NameList {
  public:
    void add(std::string_view name);
    std::vector<std::string> take() { return std::move(names_); }

  private:
    std::vector<std::string> names_;
};

template <class Row> std::vector<std::string> listedNames(const LibraryTable<Row>& table)
{
    NameList list;
    for (const Row& row : table.used()) list.add(nameOf(row));
    return list.take();
}

// The names of associates, whose pieces are slots of the drawing's own table.
std::vector<std::string> listedNames(const EntityStore& store);

// Shows names in the list under a caption, which is what tells a click on a row what to do.
void showNames(Controls& controls, std::string_view caption, std::vector<std::string> names);

} // namespace mirtane
