#pragma once

#include "files/disk.h"

#include <filesystem>

namespace mirtane {

enum class Put { done, forbidden, failed };

// Puts the bytes whole at the path: into a file beside it, flushed, and renamed. Over a file that is there if
// it replaces one, with all that this had beside its bytes; else with what the user's mask leaves of the
// mode. Forbidden is what is no matter of room or of the disk's health: a folder in which nothing can be
// made, an owner or an attribute that can't be given. On any fault the path is as it was.
Put putNewFile(const std::filesystem::path& path, const Bytes& bytes, bool replaces, unsigned mode);

// Removes what programs that died in a save left in the folder.
void removeLeftovers(const std::filesystem::path& folder);

} // namespace mirtane
