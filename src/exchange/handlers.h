#pragma once

#include "exchange/drawing_maker.h"

namespace mirtane {

// How a type of record is drawn; null for one that is not, which is counted as left out.
const RecordHandler* handlerOf(std::string_view type);

} // namespace mirtane
