#pragma once

// What the three libraries have in common: their names.

#include "model/session.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

enum class Library : std::uint8_t { multipleLines, hatches, associates };

// The name of the library that is in use, noName for none.
std::string& currentName(Attributes& s, Library library);

// Whether there is anything to choose from.
bool hasLiveName(const Session& s, Library library);

// Whether a row (a slot, for associates) has just this name. Case counts.
bool hasName(const Session& s, Library library, std::string_view name);

// The names as a list shows them.
std::vector<std::string> listedNames(const Session& s, Library library);

// Shows the names in the list under the caption that says what a click on one does ("Select Hatch"). With
// nothing to choose from it does nothing and gives false. A list of associates also ends what is under way,
// and no associate is chosen any more.
bool offerNames(Session& s, Library library, std::string_view caption);

// The same, also for an empty list: after a library has changed.
void refillNames(Session& s, Library library, std::string_view caption);

// Every row of that name bears noName from now on, and keeps its place. The name in use stays as it is.
void removeName(Session& s, Library library, std::string_view name);

} // namespace mirtane
