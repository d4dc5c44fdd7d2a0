#pragma once

// Work that is not saved, as bytes that outlive the program: a drawing file, whose last records are dead ones
// that hold what no drawing does and tell, the last of all, what drawing it is. So it opens in any case as
// what it is.

#include "files/disk.h"
#include "model/session.h"

#include <optional>
#include <string>
#include <vector>

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

// An associate, a hatch or a set of multiple lines that is in no file of its own, and what its file would
// hold.
struct KeptLibrary {
    std::string extension; // of that file
    std::string name;
    Bytes file;

    friend bool operator==(const KeptLibrary&, const KeptLibrary&) = default;
};

Bytes keptWork(const Session& s, const KeptAbout& about, const std::vector<KeptLibrary>& libraries = {});

struct KeptWork {
    KeptAbout about;
    Bytes drawing;
    std::vector<KeptLibrary> libraries = {};
};

// Nothing for what keptWork has not written whole.
std::optional<KeptWork> readKeptWork(const Bytes& bytes);

} // namespace mirtane
