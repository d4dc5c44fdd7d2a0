#pragma once

#include "app/app.h"
#include "files/disk.h"

namespace mirtane {

// Replaces the drawing by the bytes of a DXF file, taken by the letter, and offers in the strip what a
// reading in full would give besides.
void openDxfByTheLetter(App& app, const Bytes& file, const std::string& folder, const std::string& name);

// Replaces the drawing, which must not hold unsaved work, by all that the DXF file at an absolute path holds,
// and says in the strip what there is to say of it. False, and nothing has changed, where it can't be read or
// is no DXF file.
bool openDxfInFull(App& app, const std::string& path);

// What the strip offers: the file that was opened once more, in full, or in other units. A drawing that was
// worked on since stays as it is, and the strip says so.
void readAllOfDxf(App& app);
void takeDxfAsMillimetres(App& app);
void takeDxfAsMetres(App& app);

} // namespace mirtane
