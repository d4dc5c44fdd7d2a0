#pragma once

#include "app/ports.h"

#include <functional>
#include <memory>

class QPrinter;

namespace mirtane {

// The dialog in which the user sets a printer up, or makes a file of it; false if it was called off.
using PrinterSetup = std::function<bool(QPrinter&)>;

// The printer that the machine prints on by itself; where there is none, one that makes PDF files, on the
// paper and in the place that the user has chosen once. The settings must outlive it.
std::unique_ptr<Printer> systemPrinter(SettingsStore& settings);

// The printer that the machine prints on by itself.
std::unique_ptr<Printer> paperPrinter(PrinterSetup isSetUp);

} // namespace mirtane
