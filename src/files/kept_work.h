#pragma once

// Work that is not saved, as bytes that outlive the program: a drawing file, whose last record is a dead one
// that tells what drawing it is. So it opens in any case as what it is.

#include "files/disk.h"
#include "model/session.h"

#include <optional>
#include <string>

namespace mirtane {

struct KeptAbout {
    std::string drawingName; // "house.mtd"
    std::string drawingFile; // the full path that it was opened from or saved to; empty if there is none
    std::string time;        // local, "2026-11-22 14:32"
    std::optional<FileStamp> stamp = {}; // of that file when it was opened or saved
    std::string folder = {};             // the drawing's own, also where it has no file
    std::int32_t changes = 0;            // that are not saved
    std::string since = {};              // the time of the last load or save

    friend bool operator==(const KeptAbout&, const KeptAbout&) = default;
};

Bytes keptWork(const Session& s, const KeptAbout& about);

struct KeptWork {
    KeptAbout about;
    Bytes drawing;
};

// Nothing for what keptWork has not written whole.
std::optional<KeptWork> readKeptWork(const Bytes& bytes);

} // namespace mirtane
