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
    {"ARC", takeArc, {40}},
    {"ARC_DIMENSION", takeDimension},
    {"ATTDEF", takeAttributeDefinition},
    {"ATTRIB", takeAttribute},
    {"CIRCLE", takeCircle, {40}},
    {"DIMENSION", takeDimension},
    {"ELLIPSE", takeEllipse, {11}},
    {"HATCH", takeHatch},
    {"HELIX", takeSpline},
    {"INSERT", takeInsert},
    {"LARGE_RADIAL_DIMENSION", takeDimension},
    {"LEADER", takeLeader},
    {"LINE", takeLine, {10, 11}},
    {"LWPOLYLINE", takeLightPolyline},
    {"MESH", takeMeshOfFaces},
    {"MLEADER", takeMultileader},
    {"MLINE", takeMultiline},
    {"MPOLYGON", takeHatch},
    {"MTEXT", takeParagraphs},
    {"MULTILEADER", takeMultileader},
    {"POINT", takePoint, {10}},
    {"POLYLINE", takePolyline},
    {"RAY", takeRay, {11}},
    {"SOLID", takeSolid, {10, 11}},
    {"SPLINE", takeSpline},
    {"TEXT", takeText},
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
