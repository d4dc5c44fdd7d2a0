#pragma once

#include "platform/posix/state_folder.h"

#include "files/disk.h"

#include <filesystem>

namespace mirtane {

// Writes the bytes into the very file that is there, so that all else of it stays. Before, what it holds is
// put into the state folder, whole and flushed, and stays there until the file is whole again: with the new
// bytes, or with the old ones, which are put back where the new can't be written. False unless the new ones
// are there.
bool writeInPlace(const std::filesystem::path& path, const Bytes& bytes, const StateFolder& state);

} // namespace mirtane
