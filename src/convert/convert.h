#pragma once

#include "convert/arguments.h"
#include "convert/outcome.h"

namespace mirtane::convert {

// Opens the file of the job, selects all of it that is wished for, and exports it. A file is written whole or
// not at all, but for a DXF file that the writer has to break off: its beginning is written, as the menus do.
// Needs a QGuiApplication.
Outcome convert(const Job& job, const Wishes& wishes);

} // namespace mirtane::convert
