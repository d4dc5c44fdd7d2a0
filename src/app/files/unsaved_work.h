#pragma once

#include "app/files/own_libraries.h"

namespace mirtane {

// What is not saved outlives the program: it is kept while nobody touches the drawing, and offered to the
// next run.

bool hasUnsavedWork(const Session& s);

// Keeps the drawing if something was done since it was last kept or saved.
void keepUnsavedWork(App& app);

// Whether it is to be called again soon, though nobody touches the drawing: the disk has taken nothing, or
// has yet to tell how it took what was to be kept.
bool isKeepingUnsure(const App& app);

// Keeps it on the disk before its file is written.
void keepBeforeSave(App& app);

// The same before a part takes the place of the whole in its file: saved or not, it is in no file then.
void keepBeforePartReplacesIt(App& app);

// The drawing goes, and what of it differs from its file stays for the next run, unless the user was asked
// and gave it up: he is not asked about all of it.
void leaveWorkNobodyGaveUp(App& app, Goes goes);

// The drawing is as it is on the disk, or was given up: nothing of it is to be kept.
void takeAsSaved(App& app);

// What is at stake, as one line: "house.mtd: 12 changes since 14:32. ...", and what gives it up.
std::string whatIsUnsaved(const Session& s, Goes goes, Clock* clock);

// At the start of the program: offers what other runs have left.
void offerLeftWork(App& app);

// Brings back the work on offer as the drawing, which must not hold unsaved work.
void restoreLeftWork(App& app);
void throwLeftWorkAway(App& app);
// Another run may have taken it meanwhile.
bool leftWorkIsThere(App& app);

} // namespace mirtane
