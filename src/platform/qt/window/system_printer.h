#pragma once

#include "app/ports.h"

#include <memory>

namespace mirtane {

// The printer that the machine prints on by itself; where there is none, one that makes PDF files, on the
// paper and in the place that the user has chosen once. The settings must outlive it.
std::unique_ptr<Printer> systemPrinter(SettingsStore& settings);

} // namespace mirtane
