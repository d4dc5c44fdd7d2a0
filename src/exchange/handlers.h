#pragma once

#include "exchange/drawing_maker.h"

namespace mirtane {

// How a type of record is drawn. What has no row is counted as left out.
struct RecordHandler {
    std::string_view type;
    void (*take)(const DxfRecord& record, DrawingMaker& maker);
};

// The row of a type, or null.
const RecordHandler* handlerOf(std::string_view type);

} // namespace mirtane
