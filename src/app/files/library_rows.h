#pragma once

#include "files/library_files.h"
#include "library/libraries.h"

#include <string_view>

namespace mirtane {

// What the menus, the list and the file dialog call a library.
struct LibraryRow {
    Library library;
    std::string_view function; // that draws with it
    std::string_view create;   // that makes a new one
    std::string_view extension;
    std::string_view pattern;
    std::string_view select, remove, save; // captions of listMode
};

// The row with that value in the field, or null.
const LibraryRow* rowWith(std::string_view LibraryRow::*field, std::string_view value);

const LibraryRow& rowOf(Library library);

// The file of what bears the name, and back: the library with what stands in such a file.
Bytes fileOf(const Session& s, Library library, const std::string& name);
Untaken addFile(Session& s, Library library, const Bytes& file, const std::string& name);

// Whether it is a hatch, and one is being placed: a save leaves that one the current one.
bool isBeingPlaced(const FunctionState& s, const LibraryRow& row);

} // namespace mirtane
