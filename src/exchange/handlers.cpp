#include "exchange/handlers.h"

#include "exchange/curve_records.h"
#include "exchange/simple_records.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr RecordHandler handlers[] = {
    {"3DFACE", takeFace, {10, 11}},
    {"3DLINE", takeLine, {10, 11}},
    {"ACAD_TABLE", takeTable},
    {"ARC", takeArc, {40}, codes({40, 50, 51})},
    {"ARC_DIMENSION", takeDimension},
    {"ATTDEF", takeAttributeDefinition, {}, codes({40, 50})},
    {"ATTRIB", takeAttribute, {}, codes({40, 50})},
    {"CIRCLE", takeCircle, {40}, codes({40})},
    {"DIMENSION", takeDimension},
    {"ELLIPSE", takeEllipse, {11}, codes({40, 41, 42})},
    {"HATCH", takeHatch, {}, codes({40, 42, 50, 51})},
    {"HELIX", takeSpline, {}, codes({40, 41})},
    {"INSERT", takeInsert, {}, codes({41, 42, 44, 45, 50})},
    {"LARGE_RADIAL_DIMENSION", takeDimension},
    {"LEADER", takeLeader},
    {"LINE", takeLine, {10, 11}},
    {"LWPOLYLINE", takeLightPolyline, {}, codes({42})},
    {"MESH", takeMeshOfFaces},
    {"MLEADER", takeMultileader},
    {"MLINE", takeMultiline, {}, codes({40, 41})},
    {"MPOLYGON", takeHatch, {}, codes({40, 42, 50, 51})},
    {"MTEXT", takeParagraphs, {}, codes({40, 50})},
    {"MULTILEADER", takeMultileader},
    {"POINT", takePoint, {10}},
    {"POLYLINE", takePolyline, {}, codes({42})},
    {"RAY", takeRay, {11}},
    {"SOLID", takeSolid, {10, 11}},
    {"SPLINE", takeSpline, {}, codes({40, 41})},
    {"TEXT", takeText, {}, codes({40, 50})},
    {"TRACE", takeSolid, {10, 11}},
    {"VIEWPORT", takeNothing},
    {"WIPEOUT", takeWipeout},
    {"XLINE", takeEndlessLine, {11}},
};

} // namespace

const RecordHandler* handlerOf(std::string_view type)
{
    const auto* const row = std::ranges::find_if(
        handlers, [type](const RecordHandler& one) { return isSameName(one.type, type); });
    return row == std::end(handlers) ? nullptr : row;
}

} // namespace mirtane
