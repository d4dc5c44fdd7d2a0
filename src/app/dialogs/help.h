#pragma once

#include "app/app.h"

namespace mirtane {

// Shows the manual, "mirtanehelp.txt" in the program's folder. A file that can't be read leaves the text
// empty and a word in entry.
void showHelp(App& app, ControlId);

} // namespace mirtane
