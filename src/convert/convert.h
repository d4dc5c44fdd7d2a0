#pragma once

#include "convert/arguments.h"

namespace mirtane::convert {

// What became of a job.
struct Outcome {
    std::optional<std::string> fault; // what went wrong in a few words
    std::vector<std::string> remarks; // what else there is to say, a line each
    bool leftOut = false;             // part of the file did not come
};

// Opens the file of the job, selects all of it that is wished for, and exports it. A file is written whole or
// not at all, but for a DXF file that the writer has to break off: its beginning is written, as the menus do.
// Needs a QGuiApplication.
Outcome convert(const Job& job, const Wishes& wishes);

} // namespace mirtane::convert
