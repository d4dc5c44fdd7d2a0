#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace mirtane {

using Bytes = std::vector<std::uint8_t>;

// The disk as the program needs it. Paths are absolute, UTF-8, divided by "/".
class Disk {
  public:
    virtual ~Disk() = default;

    // All bytes of a file; nothing for one that can't be opened or read.
    virtual std::optional<Bytes> read(const std::string& path) = 0;

    // Whether anything stands at the path: a file, a folder, a link that leads nowhere.
    virtual bool isTaken(const std::string& path) = 0;

    // Puts the bytes on the disk whole: into a file beside the target, flushed, and renamed over it.
    // On any fault the target is as it was, and false comes back.
    virtual bool writeWhole(const std::string& path, const Bytes& bytes) = 0;
};

} // namespace mirtane
