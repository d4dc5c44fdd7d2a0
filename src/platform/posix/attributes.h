#pragma once

#include "platform/posix/held_file.h"

namespace mirtane {

// Gives a new file what another has beside its bytes: owner and group, who may do what with it, and the
// attributes that the user, the system and others put on it. False where something of it can't be given.
bool takeAttributes(const std::filesystem::path& from, const HeldFile& to);

} // namespace mirtane
