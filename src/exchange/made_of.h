#pragma once

#include "exchange/made.h"
#include "tables/entity_record.h"

namespace mirtane {

// An object of a drawing in inches, y up; its look is left out.
Made madeOf(const EntityRecord& r);

} // namespace mirtane
