#pragma once

#include "model/entity_store.h"

namespace mirtane {

// Writes into a slot the fields that the record's kind has; the slot's other fields keep what they hold, and
// so does its stat. A kind outside 1 to 10 and a slot that does not exist are passed over.
void writeFieldsOfKind(EntityStore& store, std::int32_t slot, const EntityRecord& r);

} // namespace mirtane
