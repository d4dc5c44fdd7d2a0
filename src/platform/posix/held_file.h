#pragma once

// Files that tell whether the program that made them still lives. It holds a lock on the file, and the system
// takes a lock away from a process however that ends.

#include "platform/posix/opened.h"

#include <string>
#include <vector>

namespace mirtane {

struct HeldFile {
    std::filesystem::path path;
    Opened file;   // held until it is closed; not open where it could not be made
    int fault = 0; // the errno of that
};

// A new file in the folder, to read and write. Its name begins with the stem and is had by no other file
// ever.
HeldFile makeHeld(const std::filesystem::path& folder, const std::string& stem, mode_t mode);

// The files that any program of ours made there with that stem, and no others, however alike their names.
std::vector<std::filesystem::path> heldFiles(const std::filesystem::path& folder, const std::string& stem);

enum class Holder { alive, dead, unknown };

// Removes a file whose holder is dead. Unknown is who holds a file that can't be opened, or on a disk without
// locks.
Holder removeIfDead(const std::filesystem::path& path);

// The process that made a file of that name.
long makerOf(const std::filesystem::path& path, const std::string& stem);

} // namespace mirtane
