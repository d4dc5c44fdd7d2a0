#pragma once

#include "app/app.h"

namespace mirtane {

// Multiple lines, hatches and associates: what their menus, the list and the file dialog do.

// Menu entries that show the names of a library, and what a click on one then does.
void listLibrary(App& app, ControlId menu);
void chooseFromLibrary(App& app, int index); // "Select ...": starts the function that draws with it
void removeFromLibrary(App& app, int index);
void saveFromLibrary(App& app, int index);

// Menu entries that make a new definition of what is selected; its name is typed.
void createInLibrary(App& app, ControlId menu);
// Enter on that name.
void libraryNameEntered(Session& s, Canvas& pic1);

} // namespace mirtane
