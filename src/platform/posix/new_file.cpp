#include "platform/posix/new_file.h"

#include "platform/posix/attributes.h"

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace mirtane {
namespace {

constexpr const char* newStem = ".mirtane-"; // out of sight

Put faultFor(int error)
{
    constexpr int forbidding[] = {EACCES, EPERM, EROFS, EBUSY, EXDEV};
    return std::ranges::find(forbidding, error) != std::end(forbidding) ? Put::forbidden : Put::failed;
}

// The lock lasts until the file has its name, since a close may be what fails. It is the calls of the system
// that do it, since the toolkit's own file of this sort passes over a flush or a close that fails, and would
// put what is not on the disk in the old file's place.
Put fillAndMove(HeldFile& made, const std::filesystem::path& path, const Bytes& bytes)
{
    const Opened held = made.file.second();
    if (!made.file.write(bytes) || !made.file.flush() || !made.file.close()) return Put::failed;
    return std::rename(made.path.c_str(), path.c_str()) == 0 ? Put::done : faultFor(errno);
}

} // namespace

Put putNewFile(const std::filesystem::path& path, const Bytes& bytes, bool replaces, unsigned mode)
{
    constexpr mode_t untilItHasTheOther = 0600;
    HeldFile made = makeHeld(path.parent_path(), newStem, replaces ? untilItHasTheOther : mode);
    if (!made.file.isOpen()) return faultFor(made.fault);
    const bool isLikeIt = !replaces || takeAttributes(path, made);
    const Put put = isLikeIt ? fillAndMove(made, path, bytes) : Put::forbidden;
    if (put != Put::done) ::unlink(made.path.c_str());
    return put;
}

void removeLeftovers(const std::filesystem::path& folder)
{
    for (const std::filesystem::path& left : heldFiles(folder, newStem)) removeIfDead(left);
}

} // namespace mirtane
