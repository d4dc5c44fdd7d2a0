#pragma once

#include "app/app.h"
#include "exchange/report.h"
#include "files/disk.h"
#include "files/untaken.h"

namespace mirtane {

// Replaces the drawing by the bytes of a drawing file, fits the view to it and takes over its attributes.
Untaken openDrawing(App& app, const Bytes& file);

// Replaces the drawing by the objects of a DXF file and shows them all.
// Gives how many found no place.
std::int32_t openDxf(App& app, const Bytes& file);

// Replaces the drawing by what a DXF file of any program gave, and shows it.
FullReport takeDxfInFull(App& app, const FullReading& reading);

// Says in the strip what did not come of a file, and, if it is given one, the name that the drawing has in
// place of the file's.
void tellUntaken(Notices& notices, const std::string& file, const Untaken& untaken, const std::string& name);

} // namespace mirtane
