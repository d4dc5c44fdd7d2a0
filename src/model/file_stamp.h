#pragma once

#include <cstdint>
#include <string>

namespace mirtane {

// What tells whether a file is still the one that was seen: changed, and replaced by another, it has another.
struct FileStamp {
    std::int64_t size = 0;
    std::int64_t modified = 0; // nanoseconds of the system's clock
    std::uint64_t inode = 0;
    std::uint64_t device = 0;
    std::string clock; // when it was modified, by the clock on the wall: "14:32"

    // The clock on the wall is set forward and back. A disk that was plugged in or mounted again may be
    // another device with other inodes, and holds the same file.
    bool operator==(const FileStamp& other) const
    {
        return size == other.size && modified == other.modified &&
               (inode == other.inode || device != other.device);
    }
};

} // namespace mirtane
