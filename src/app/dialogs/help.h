#pragma once

#include "app/app.h"

namespace mirtane {

// Shows the manual, "mirtanehelp.txt" in the program's folder, open where it tells of the running function;
// at its beginning for a user who has drawn nothing yet. A file that can't be read leaves the text empty and
// a word in entry.
void showHelp(App& app, ControlId);

// A click on a row of the contents.
void chooseChapter(App& app, int row);

// A key in the box of the word to find: each finds it from where the text stands, Enter the next one.
void helpFindKeyPress(App& app, char32_t code);

} // namespace mirtane
