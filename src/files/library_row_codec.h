#pragma once

#include "files/bytes.h"
#include "model/library_tables.h"

namespace mirtane {

inline constexpr std::size_t hatchRowBytesWithoutName = 70;
inline constexpr std::size_t multipleLineBytesWithoutName = 28;

// Each takes the next row. False when what is left is not a whole row; it then means nothing.
bool readHatchRow(ByteReader& in, HatchRow& row);
bool readMultipleLine(ByteReader& in, MultipleLine& row);

// Each appends the row. A name is cut at 65,535 characters.
void writeHatchRow(ByteWriter& out, const HatchRow& row);
void writeMultipleLine(ByteWriter& out, const MultipleLine& row);

} // namespace mirtane
