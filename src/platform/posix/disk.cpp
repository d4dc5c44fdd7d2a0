#include "platform/posix/disk.h"

#include "platform/posix/in_place.h"
#include "platform/posix/new_file.h"
#include "platform/posix/opened.h"
#include "platform/posix/wall_clock.h"

#include <ctime>

#include <fcntl.h>
#include <unistd.h>

namespace mirtane {
namespace {

// Where the links of a path lead to, were it to nothing yet. A ring of links is given up.
std::filesystem::path behindLinks(std::filesystem::path path)
{
    constexpr int mostLinks = 40;
    for (int i = 0; i < mostLinks; ++i) {
        std::error_code fault;
        const std::filesystem::path next = std::filesystem::read_symlink(path, fault);
        if (fault) break;
        path = path.parent_path() / next;
    }
    return path;
}

struct Target {
    std::filesystem::path path;
    bool isThere = false;
    bool canBeWritten = true;
    bool hasOtherNames = false;
};

// What stands there may be something else than a file, and the end of a ring of links is a link.
Target targetAt(const std::string& path)
{
    Target target{behindLinks(path)};
    struct stat there = {};
    if (::lstat(target.path.c_str(), &there) != 0) return target;
    target.isThere = true;
    target.canBeWritten =
        S_ISREG(there.st_mode) && ::faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0;
    target.hasOtherNames = there.st_nlink > 1;
    return target;
}

// Counted round, as a file may say that it is from the year 2400.
std::int64_t nanosecondsOf(const timespec& time)
{
    constexpr std::uint64_t inASecond = 1'000'000'000;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.tv_sec) * inASecond +
                                     static_cast<std::uint64_t>(time.tv_nsec)); // tells times apart, no more
}

FileStamp stampOf(const struct stat& told)
{
    return {told.st_size, nanosecondsOf(told.st_mtim), told.st_ino, told.st_dev,
            clockAt(told.st_mtim.tv_sec)};
}

} // namespace

std::optional<Bytes> PosixDisk::read(const std::string& path)
{
    return Opened(path, O_RDONLY).read();
}

bool PosixDisk::isTaken(const std::string& path)
{
    struct stat there = {};
    return ::lstat(path.c_str(), &there) == 0;
}

std::optional<FileStamp> PosixDisk::stamp(const std::string& path)
{
    struct stat there = {};
    if (::stat(path.c_str(), &there) != 0 || !S_ISREG(there.st_mode)) return std::nullopt;
    return stampOf(there);
}

// A file that has other names is that file under all of them, and would become another under one.
bool PosixDisk::writeWhole(const std::string& path, const Bytes& bytes)
{
    constexpr mode_t forAll = 0666; // less what the user's mask takes away
    const Target target = targetAt(path);
    if (!target.canBeWritten) return false;
    const std::filesystem::path folder = target.path.parent_path();
    removeLeftovers(folder);
    const Put put =
        target.hasOtherNames ? Put::forbidden : putNewFile(target.path, bytes, target.isThere, forAll);
    // The file is whole under its name whether or not the folder is flushed, so that nothing hangs on it.
    if (put == Put::done) static_cast<void>(flushFolder(folder));
    if (put == Put::forbidden && target.isThere) return writeInPlace(target.path, bytes, state_);
    return put == Put::done;
}

} // namespace mirtane
