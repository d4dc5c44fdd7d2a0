#include "platform/posix/opened.h"

#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace mirtane {

Opened::Opened(const std::filesystem::path& path, int flags, mode_t mode)
    : descriptor_(
          again([&] { return ::open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode); }))
{
}

Opened::Opened(Opened&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

Opened& Opened::operator=(Opened&& other) noexcept
{
    std::swap(descriptor_, other.descriptor_); // the other closes what stood here
    return *this;
}

Opened Opened::second() const
{
    return Opened(::fcntl(descriptor_, F_DUPFD_CLOEXEC, 0));
}

std::optional<struct stat> Opened::status() const
{
    struct stat told = {};
    if (::fstat(descriptor_, &told) != 0) return std::nullopt;
    return told;
}

// Until the file ends, since what it gives may differ from the size it told.
std::optional<Bytes> Opened::read() const
{
    const std::optional<struct stat> told = status();
    if (!told || !S_ISREG(told->st_mode) || told->st_size > largestRead) return std::nullopt;
    Bytes bytes(static_cast<std::size_t>(told->st_size)); // within the limit just tested
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t more =
            again([&] { return ::read(descriptor_, bytes.data() + filled, bytes.size() - filled); });
        if (more < 0) return std::nullopt;
        if (more == 0) break;
        filled += static_cast<std::size_t>(more); // not negative
    }
    bytes.resize(filled);
    return bytes;
}

bool Opened::write(const Bytes& bytes) const
{
    for (std::size_t done = 0; done < bytes.size();) {
        const auto at = static_cast<off_t>(done); // no more than memory holds
        const ssize_t more =
            again([&] { return ::pwrite(descriptor_, bytes.data() + done, bytes.size() - done, at); });
        if (more <= 0) return false;
        done += static_cast<std::size_t>(more); // not negative
    }
    return true;
}

bool Opened::cutAt(std::size_t size) const
{
    const auto length = static_cast<off_t>(size); // no more than memory holds
    return again([&] { return ::ftruncate(descriptor_, length); }) == 0;
}

bool Opened::flush() const
{
    return again([&] { return ::fsync(descriptor_); }) == 0;
}

bool Opened::close()
{
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
}

bool flushFolder(const std::filesystem::path& folder)
{
    const Opened opened(folder, O_RDONLY | O_DIRECTORY);
    return opened.isOpen() && (opened.flush() || errno == EINVAL || errno == ENOTSUP);
}

} // namespace mirtane
