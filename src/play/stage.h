#pragma once

#include "app/shell.h"
#include "platform/qt/surface.h"
#include "print/recording_printer.h"
#include "render/recording_canvas.h"

namespace mirtane::play {

// What the commands and questions of a script work on.
struct Stage {
    Shell& shell;
    Surface& surface;
    RecordingCanvas& pic1; // the surface, every operation written down
    const RecordingPrinter& printer;
};

} // namespace mirtane::play
