#pragma once

#include "convert/arguments.h"

namespace mirtane::convert {

// Opens the file of the job as the program's menus open it, selects all of it that is wished for, and
// exports it. Gives what went wrong in a few words, or nothing. A file is written whole or not at all, but
// for a DXF file that the writer has to break off: its beginning is written, as the menus do. Needs a
// QGuiApplication.
std::optional<std::string> convert(const Job& job, const Wishes& wishes);

} // namespace mirtane::convert
