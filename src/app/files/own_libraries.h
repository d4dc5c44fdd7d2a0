#pragma once

#include "app/app.h"
#include "files/kept_work.h"
#include "library/libraries.h"

namespace mirtane {

// Associates, hatches and multiple lines that were created here and stand in no file of their own: a
// drawing's file holds none of them.

// What goes from the program: the drawing takes the associates with it, the program all.
enum class Goes : std::uint8_t { drawing, program };

void takeAsNew(FileState& s, Library library, const std::string& name);
void takeAsInFile(FileState& s, Library library, const std::string& name);

// Those that are there.
LibraryNames inNoFile(const Session& s);
LibraryNames lostWith(Goes goes, LibraryNames names);
bool isNone(const LibraryNames& names);

// "1 associate and 2 hatches are in no file: save them from their menus."; empty for none.
std::string sentenceOfNoFile(const LibraryNames& names);

// They go along with the work that is kept, and come back with it.
std::vector<KeptLibrary> librariesOf(const Session& s, const LibraryNames& names);
LibraryNames namesOf(const std::vector<KeptLibrary>& libraries);
// Gives the names of those that have no room, of which nothing is taken. One whose name is in use by another
// is called "rows-2".
LibraryNames giveBack(Session& s, const std::vector<KeptLibrary>& libraries);

// "There is no room for 1 hatch: the next start offers this work again."; empty for none.
std::string sentenceOfNoRoom(const LibraryNames& names);

} // namespace mirtane
