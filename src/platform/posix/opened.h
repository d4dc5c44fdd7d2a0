#pragma once

#include "files/disk.h"

#include <cerrno>
#include <filesystem>

#include <sys/stat.h>

namespace mirtane {

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
    // Files beyond this many bytes are not read; no drawing comes near it.
    static constexpr std::int64_t largestRead = 512LL * 1024 * 1024;

    Opened() = default;
    explicit Opened(int descriptor) : descriptor_(descriptor) {}
    // Hidden from programs that this one starts. A pipe is not waited for.
    Opened(const std::filesystem::path& path, int flags, mode_t mode = 0);
    ~Opened() { close(); }
    Opened(Opened&& other) noexcept;
    Opened& operator=(Opened&& other) noexcept;
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }
    // The same file once more: a lock on it lasts until both are closed.
    Opened second() const;

    std::optional<struct stat> status() const;
    // All bytes from where it stands; nothing for what is no file: a folder, a pipe, a device.
    std::optional<Bytes> read() const;
    // From the beginning; what stands behind them stays.
    bool write(const Bytes& bytes) const;
    bool cutAt(std::size_t size) const;
    bool flush() const;
    // Some disks tell only here that there was no room. A signal in it comes too late to matter.
    bool close();

  private:
    int descriptor_ = -1;
};

// So that the names in a folder outlive a loss of power. A disk that flushes no folders has nothing to flush.
bool flushFolder(const std::filesystem::path& folder);

} // namespace mirtane
