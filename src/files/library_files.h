#pragma once

// The three library files. Each holds one named definition: records back to back to the end of the file, with
// no signature and no count, so any bytes are taken, and what can't be a whole record ends the reading.
//
// None of these asks whether a name is in use: that is for whoever opens a file to do before.

#include "files/disk.h"
#include "files/untaken.h"
#include "model/session.h"

namespace mirtane {

// The bytes of all pieces, or rows, of that name, as they stand in the table. Empty when there are none.
Bytes associateBytes(const EntityStore& store, std::string_view name);
Bytes hatchBytes(const HatchLibrary& library, std::string_view name);
Bytes multipleLinesBytes(const MultipleLinesLibrary& library, std::string_view name);

// How many pieces an associate's file holds.
std::int32_t piecesIn(const Bytes& file);

// Adds the pieces of the file (at most 60,000) to the drawing's table as hidden slots that belong to name: an
// associate is called as its file. Their layers stay as stored, but layer 0 is then marked used. No undo
// record. The gauge is left to the caller.
Untaken addAssociate(Session& s, const Bytes& file, std::string_view name);

// Add the rows of the file (at most 30,000 and 99) behind those of the library. They bear the names in the
// file. Rows past the table's end are lost while its count goes on.
Untaken addHatch(HatchLibrary& library, const Bytes& file);
Untaken addMultipleLines(MultipleLinesLibrary& library, const Bytes& file);

// What is read from a file of this name is called as the file, without its extension: "Door.left" of
// "Door.left.mta".
std::string_view baseName(std::string_view fileName);

} // namespace mirtane
