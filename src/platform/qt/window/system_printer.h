#pragma once

#include "print/printer.h"

#include <memory>

namespace mirtane {

// The printer that the machine prints on by itself; where there is none, one that makes PDF files.
std::unique_ptr<Printer> systemPrinter();

} // namespace mirtane
