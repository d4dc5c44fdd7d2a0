#pragma once

#include "app/app.h"
#include "files/disk.h"

namespace mirtane {

// Replaces the drawing by the bytes of a drawing file, fits the view to it and takes over its attributes.
void openDrawing(App& app, const Bytes& file);

// Replaces the drawing by the objects of a DXF file and shows them all.
void openDxf(App& app, const Bytes& file);

} // namespace mirtane
