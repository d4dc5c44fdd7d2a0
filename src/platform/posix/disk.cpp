#include "platform/posix/disk.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirtane {
namespace {

// A call that a signal broke off is made again.
template <class Call> auto again(Call call)
{
    auto answer = call();
    while (answer == -1 && errno == EINTR) answer = call();
    return answer;
}

// An open file or folder, closed at the end.
class Opened {
  public:
    explicit Opened(int descriptor) : descriptor_(descriptor) {}
    ~Opened() { close(); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    // The bytes of a file; -1 for what is none: a folder, a pipe, a device.
    std::int64_t size() const
    {
        struct stat told = {};
        return ::fstat(descriptor_, &told) == 0 && S_ISREG(told.st_mode) ? told.st_size : -1;
    }
    // Until the bytes are full or the file ends, since what it gives may differ from the size it told.
    bool read(Bytes& bytes) const
    {
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const ssize_t more =
                again([&] { return ::read(descriptor_, bytes.data() + filled, bytes.size() - filled); });
            if (more < 0) return false;
            if (more == 0) break;
            filled += static_cast<std::size_t>(more); // not negative
        }
        bytes.resize(filled);
        return true;
    }
    bool write(const Bytes& bytes) const
    {
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t more =
                again([&] { return ::write(descriptor_, bytes.data() + done, bytes.size() - done); });
            if (more <= 0) return false;
            done += static_cast<std::size_t>(more); // not negative
        }
        return true;
    }
    void allow(mode_t mode) const
    {
        static_cast<void>(::fchmod(descriptor_, mode));
    } // some disks have no modes
    bool flush() const
    {
        return again([&] { return ::fsync(descriptor_); }) == 0;
    }
    // Some disks tell only here that there was no room. A signal in it comes too late to matter.
    bool close()
    {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
    }

  private:
    int descriptor_;
};

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
    bool canBeReplaced = true;
    mode_t mode = 0; // of the file that is there; 0 where there is none
};

Target targetAt(const std::string& path)
{
    Target target{behindLinks(path)};
    struct stat there = {};
    if (::lstat(target.path.c_str(), &there) != 0) return target;
    target.canBeReplaced = S_ISREG(there.st_mode) && ::access(target.path.c_str(), W_OK) == 0;
    target.mode = there.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    return target;
}

// A file of its own beside the target, out of sight. One that was left there by a program that was killed
// only has its name passed over.
std::filesystem::path fileBeside(const Target& target, int& descriptor)
{
    constexpr int mostTries = 10000;
    constexpr mode_t forAll = 0666; // less what the user's mask takes away
    std::filesystem::path path;
    for (int i = 0; i < mostTries; ++i) {
        path =
            target.path.parent_path() / (".mirtane-" + std::to_string(::getpid()) + "-" + std::to_string(i));
        descriptor =
            again([&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, forAll); });
        if (descriptor >= 0 || errno != EEXIST) break;
    }
    return path;
}

// So that the new name outlives a loss of power. Not every disk flushes folders, and the file is whole under
// its name either way, so that nothing hangs on it.
void flushFolder(const std::filesystem::path& folder)
{
    const Opened opened(again([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (opened.isOpen()) static_cast<void>(opened.flush());
}

} // namespace

std::optional<Bytes> PosixDisk::read(const std::string& path)
{
    // A pipe would else wait for whoever writes into it.
    constexpr int atOnce = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Opened file(again([&] { return ::open(path.c_str(), atOnce); }));
    const std::int64_t size = file.isOpen() ? file.size() : -1;
    if (size < 0 || size > largestRead) return std::nullopt;
    Bytes bytes(static_cast<std::size_t>(size)); // within the limit just tested
    if (!file.read(bytes)) return std::nullopt;
    return bytes;
}

bool PosixDisk::isTaken(const std::string& path)
{
    struct stat there = {};
    return ::lstat(path.c_str(), &there) == 0;
}

// By the calls of the system, since the toolkit's own file of this sort passes over a flush or a close that
// fails, and would put what is not on the disk in the old file's place.
bool PosixDisk::writeWhole(const std::string& path, const Bytes& bytes)
{
    const Target target = targetAt(path);
    if (!target.canBeReplaced) return false;
    int descriptor = -1;
    const std::filesystem::path beside = fileBeside(target, descriptor);
    Opened file(descriptor);
    if (!file.isOpen()) return false;
    if (target.mode != 0) file.allow(target.mode);
    if (file.write(bytes) && file.flush() && file.close() &&
        std::rename(beside.c_str(), target.path.c_str()) == 0) {
        flushFolder(target.path.parent_path());
        return true;
    }
    ::unlink(beside.c_str());
    return false;
}

} // namespace mirtane
