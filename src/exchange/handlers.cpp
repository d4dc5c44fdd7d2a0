#include "exchange/handlers.h"

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
    {"ARC", takeArc},
    {"ATTRIB", takeAttribute},
    {"CIRCLE", takeCircle},
    {"INSERT", takeInsert},
    {"LINE", takeLine},
    {"LWPOLYLINE", takeLightPolyline},
    {"POINT", takePoint},
    {"POLYLINE", takePolyline},
    {"SOLID", takeSolid},
    {"TEXT", takeText},
    {"TRACE", takeSolid},
    {"WIPEOUT", takeWipeout},
};

} // namespace

TakeRecord handlerOf(std::string_view type)
{
    const auto* const row = std::ranges::find_if(
        handlers, [type](const RecordHandler& one) { return isSameName(one.type, type); });
    return row == std::end(handlers) ? nullptr : row->take;
}

} // namespace mirtane
