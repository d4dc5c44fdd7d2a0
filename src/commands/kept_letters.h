#pragma once

#include "model/controls.h"

namespace mirtane {

// A drawing and its libraries keep texts in a code page. What it lacks would come back from a file as another
// letter, so it is not taken in the first place, and entry says which letter that was.

// Whether the letter is refused; where it is, entry says so, all selected.
bool refusesLetter(Controls& controls, char32_t letter);

// The same for a whole text, whose first such letter is told.
bool refusesText(Controls& controls, std::string_view utf8);

// Whether the text is what entry says of that letter.
bool isRefusalOf(std::string_view text, char32_t letter);

} // namespace mirtane
