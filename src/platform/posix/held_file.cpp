#include "platform/posix/held_file.h"

#include "platform/posix/hash.h"

#include <charconv>
#include <chrono>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace mirtane {
namespace {

// The process and the time, so that no name comes twice; and a sum of all that, by which a name is known as
// one of ours.
std::string freshName(const std::string& stem)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    const std::string name = stem + std::to_string(::getpid()) + "-" + std::to_string(now) + "-";
    return name + hashOf(name);
}

bool isOurs(const std::string& name, const std::string& stem)
{
    const std::size_t sum = hashOf("").size();
    if (!name.starts_with(stem) || name.size() < stem.size() + sum) return false;
    const std::string before = name.substr(0, name.size() - sum);
    return name.substr(before.size()) == hashOf(before);
}

HeldFile created(const std::filesystem::path& path, mode_t mode)
{
    HeldFile made{path, Opened(path, O_RDWR | O_CREAT | O_EXCL, mode)};
    if (!made.file.isOpen()) made.fault = errno;
    return made;
}

bool lock(const Opened& file, int how)
{
    return again([&] { return ::flock(file.descriptor(), how | LOCK_NB); }) == 0;
}

// Who looks for the files of the dead may find one that was made and is not yet held: it may lock it, or
// already have removed it.
bool hold(const HeldFile& made)
{
    const bool lockedByAnother = !lock(made.file, LOCK_EX) && errno == EWOULDBLOCK;
    struct stat there = {};
    if (!lockedByAnother && ::lstat(made.path.c_str(), &there) == 0) return true;
    ::unlink(made.path.c_str());
    return false;
}

} // namespace

HeldFile makeHeld(const std::filesystem::path& folder, const std::string& stem, mode_t mode)
{
    constexpr int mostTries = 100;
    for (int i = 0; i < mostTries; ++i) {
        HeldFile made = created(folder / freshName(stem), mode);
        if (made.file.isOpen() ? hold(made) : made.fault != EEXIST) return made;
    }
    return {{}, {}, EEXIST};
}

std::vector<std::filesystem::path> heldFiles(const std::filesystem::path& folder, const std::string& stem)
{
    std::vector<std::filesystem::path> found;
    std::error_code fault;
    const std::filesystem::directory_iterator end;
    for (std::filesystem::directory_iterator at(folder, fault); !fault && at != end; at.increment(fault)) {
        if (isOurs(at->path().filename().string(), stem)) found.push_back(at->path());
    }
    return found;
}

// The lock is kept until the file is gone, so that its maker can't come to hold it in between. It is shared,
// so that two who look at once don't take each other for the holder.
Holder removeIfDead(const std::filesystem::path& path)
{
    const Opened file(path, O_RDONLY | O_NOFOLLOW);
    const std::optional<struct stat> told = file.status();
    if (!told || !S_ISREG(told->st_mode)) return Holder::unknown;
    if (!lock(file, LOCK_SH)) return errno == EWOULDBLOCK ? Holder::alive : Holder::unknown;
    ::unlink(path.c_str());
    return Holder::dead;
}

long makerOf(const std::filesystem::path& path, const std::string& stem)
{
    const std::string name = path.filename().string();
    long process = 0;
    if (name.size() > stem.size()) std::from_chars(&name[stem.size()], name.data() + name.size(), process);
    return process;
}

} // namespace mirtane
