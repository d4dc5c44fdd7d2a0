#include "exchange/handlers.h"

#include "exchange/curve_records.h"
#include "exchange/simple_records.h"

#include <algorithm>

namespace mirtane {
namespace {

struct RecordHandler {
    std::string_view type;
    TakeRecord take;
};

constexpr RecordHandler handlers[] = {
    {"3DFACE", takeFace},
    {"ACAD_TABLE", takeTable},
    {"ARC", takeArc},
    {"ARC_DIMENSION", takeDimension},
    {"ATTDEF", takeAttributeDefinition},
    {"ATTRIB", takeAttribute},
    {"CIRCLE", takeCircle},
    {"DIMENSION", takeDimension},
    {"ELLIPSE", takeEllipse},
    {"HATCH", takeHatch},
    {"HELIX", takeSpline},
    {"INSERT", takeInsert},
    {"LARGE_RADIAL_DIMENSION", takeDimension},
    {"LEADER", takeLeader},
    {"LINE", takeLine},
    {"LWPOLYLINE", takeLightPolyline},
    {"MESH", takeMeshOfFaces},
    {"MLEADER", takeMultileader},
    {"MLINE", takeMultiline},
    {"MPOLYGON", takeHatch},
    {"MTEXT", takeParagraphs},
    {"MULTILEADER", takeMultileader},
    {"POINT", takePoint},
    {"POLYLINE", takePolyline},
    {"RAY", takeRay},
    {"SOLID", takeSolid},
    {"SPLINE", takeSpline},
    {"TEXT", takeText},
    {"TRACE", takeSolid},
    {"VIEWPORT", takeNothing},
    {"WIPEOUT", takeWipeout},
    {"XLINE", takeEndlessLine},
};

} // namespace

TakeRecord handlerOf(std::string_view type)
{
    const auto* const row = std::ranges::find_if(
        handlers, [type](const RecordHandler& one) { return isSameName(one.type, type); });
    return row == std::end(handlers) ? nullptr : row->take;
}

} // namespace mirtane
