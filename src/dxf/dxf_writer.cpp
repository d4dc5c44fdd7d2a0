#include "dxf/dxf_writer.h"

#include "dxf/dimensions_out.h"
#include "dxf/file_units.h"
#include "dxf/records_out.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "tables/kinds.h"

#include <cmath>
#include <initializer_list>

namespace mirtane {
namespace {

constexpr std::size_t headBytes = 2048;  // the lines around the objects
constexpr std::size_t objectBytes = 160; // of a line, about
constexpr int halfEllipseSteps = 18;
constexpr double ellipseStep = 0.1745329; // radians; added up, so that the last point misses half a turn

struct LineTypeEntry {
    std::string_view name, flags, description, count, total;
    std::initializer_list<std::string_view> dashes;
};

void writeLineTypes(DxfLines& out)
{
    const LineTypeEntry rows[] = {
        {"CONTINUOUS", "     0", "____________", "     0", "0.0", {}},
        {"DASHED", "    64", "__ __ __ __ __ __", "     2", "8.0", {"7.0", "-1.0"}},
        {"DASHDOT", "    64", "__ . __ . __ . __", "     4", "10.0", {"8.0", "-1.0", "0.0", "-1.0"}},
        {"PHANTOM",
         "    64",
         "___ . . ___ . . ___",
         "     6",
         "12.0",
         {"9.0", "-1.0", "0.0", "-1.0", "0.0", "-1.0"}},
        {"DOT", "    64", ". . . . . . . .", "     2", "0.5", {"0.0", "-0.5"}},
    };
    for (const LineTypeEntry& row : rows) {
        out.pair("  0", "LTYPE");
        out.pair("  2", row.name);
        out.pair(" 70", row.flags);
        out.pair("  3", row.description);
        out.pair(" 72", "    65");
        out.pair(" 73", row.count);
        out.pair(" 40", row.total);
        for (const std::string_view dash : row.dashes) out.pair(" 49", dash);
    }
}

struct HeaderVariable {
    std::string_view name, code, value;
};

constexpr HeaderVariable headerVariables[] = {
    {"$ACADVER", "  1", "AC1009"}, {"$TEXTSIZE", " 40", "4.0"},    {"$DIMSCALE", " 40", "1.0"},
    {"$DIMRND", " 40", "0.0"},     {"$BLIPMODE", " 70", "     0"}, {"$COORDS", " 70", "     2"},
};

void beginSection(DxfLines& out, std::string_view name)
{
    out.pair("  0", "SECTION");
    out.pair("  2", name);
}

// Up to the group that announces the first object. The count of the line types is 8 in every file of the
// program, though there are five.
void writeHead(DxfLines& out)
{
    beginSection(out, "HEADER");
    for (const HeaderVariable& variable : headerVariables) {
        out.pair("  9", variable.name);
        out.pair(variable.code, variable.value);
    }
    out.pair("  0", "ENDSEC");
    beginSection(out, "TABLES");
    out.pair("  0", "TABLE");
    out.pair("  2", "LTYPE");
    out.pair(" 70", "     8");
    writeLineTypes(out);
    out.pair("  0", "ENDTAB");
    out.pair("  0", "ENDSEC");
    beginSection(out, "ENTITIES");
    out.line("  0");
}

// Each record ends with the group that announces what follows it, so this is the end's own name alone.
void writeTail(DxfLines& out)
{
    out.line("ENDSEC");
    out.pair("  0", "EOF");
}

class ObjectWriter {
  public:
    ObjectWriter(const EntityStore& store, DxfLines& out, DxfScratch& scratch)
        : store_(store), scratch_(scratch), records_(out, scratch), dimensions_(records_, scratch)
    {
    }

    // False if the file ends there.
    bool write(std::int32_t slot);

  private:
    void ellipse(std::size_t at);
    void text(std::size_t at);

    const EntityStore& store_;
    DxfScratch& scratch_;
    DxfRecords records_;
    DxfDimensions dimensions_;
};

bool ObjectWriter::write(std::int32_t slot)
{
    const std::size_t at = EntityStore::at(slot);
    const Kind k = store_.kind[at];
    if (!isDrawnKind(k)) return true;
    records_.setPen(store_.color[at], hasLineStyle(k) ? store_.style[at] : std::int16_t{0});
    const Point p1 = toFile(store_.p1[at]);
    const float radius = store_.rad[at] / worldPerFile;
    switch (k) {
    case Kind::line:
        records_.line(p1, toFile(store_.p2[at]));
        return true;
    case Kind::circle:
        records_.circle(p1, radius);
        return true;
    case Kind::arc:
        records_.arc(p1, radius, store_.a1[at], store_.a2[at]);
        return true;
    case Kind::ellipse:
        ellipse(at);
        return true;
    case Kind::point:
        records_.line(p1, p1);
        return true;
    case Kind::text:
        text(at);
        return true;
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return dimensions_.write(store_.record(slot));
    }
    return true;
}

// Each line runs from the new point back to the one before it.
void ObjectWriter::ellipse(std::size_t at)
{
    Point previous = toFile(store_.p1[at]);
    const Point centre = toFile(store_.p2[at]);
    const Point u = directionBetween(scratch_, centre, previous);
    const float first = lengthBetween(centre, previous);
    const float second = first * store_.p3[at].x;
    for (const double side : {1.0, -1.0}) {
        double a = 0;
        for (int i = 0; i < halfEllipseSteps; ++i) {
            a += ellipseStep;
            const double alongU = side * first * std::cos(a);
            const double alongV = side * second * std::sin(a);
            Point next = previous;
            keep(next.x, centre.x + alongU * u.x + alongV * u.y);
            keep(next.y, centre.y + alongU * u.y - alongV * u.x);
            records_.line(next, previous);
            previous = next;
        }
    }
}

void ObjectWriter::text(std::size_t at)
{
    scratch_.textSecond = store_.p4[at];
    records_.text({store_.p1[at], store_.p2[at].x, store_.a1[at], store_.t1[at], store_.p2[at].y});
}

std::size_t expectedBytes(const EntityStore& store)
{
    return headBytes + EntityStore::at(countWithStat(store, Stat::sel)) * objectBytes;
}

} // namespace

DxfFile dxfFile(const EntityStore& store, DxfScratch& scratch, char decimalPoint)
{
    DxfLines out(expectedBytes(store), decimalPoint);
    writeHead(out);
    ObjectWriter objects(store, out, scratch);
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.stat[EntityStore::at(i)] != Stat::sel) continue;
        if (!objects.write(i)) return {out.take(), false};
    }
    writeTail(out);
    return {out.take(), true};
}

} // namespace mirtane
