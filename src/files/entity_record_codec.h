#pragma once

#include "files/bytes.h"
#include "tables/entity_record.h"

namespace mirtane {

inline constexpr std::size_t recordBytesWithoutTexts = 90;

// Takes the next record. False when what is left is not a whole record; the record then means nothing.
bool readRecord(ByteReader& in, EntityRecord& record);

// Appends the record. A text is cut at 65,535 characters.
void writeRecord(ByteWriter& out, const EntityRecord& record);

} // namespace mirtane
