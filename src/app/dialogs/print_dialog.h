#pragma once

#include "app/app.h"
#include "print/recording_printer.h"

namespace mirtane {

// "Print": fits the selection to the page and asks for the scale. "Printer Setup": the platform's own dialog.
void askForPrintScale(App& app, ControlId);
void setUpPrinter(App& app, ControlId);

// Within the dialog.
void confirmPrint(App& app, ControlId);
void cancelPrint(App& app, ControlId);
void emptyPrintScale(App& app, ControlId);
void printScaleKeyPress(App& app, char32_t code);

// The page as it would come out at the scale that the dialog shows; empty while none could be printed.
std::vector<PrintOp> pagePreview(const Session& s);

} // namespace mirtane
