#pragma once

// The program without its window: one line of a script at a time.

#include "app/shell.h"
#include "platform/qt/surface.h"
#include "print/recording_printer.h"
#include "render/recording_canvas.h"

#include <optional>

namespace mirtane::play {

// What the commands and questions of a script work on.
struct Stage {
    Shell& shell;
    Surface& surface;
    RecordingCanvas& pic1; // the surface, every operation written down
    const RecordingPrinter& printer;
};

// Carries out one line. The answer of a question comes back; a command and an expect that holds give nothing.
// Throws Refusal for a line that can't be carried out, and for an expect that fails.
std::optional<std::string> play(Stage& stage, std::string_view line);

} // namespace mirtane::play
