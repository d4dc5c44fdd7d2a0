#pragma once

#include "model/file_stamp.h"

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

    // Of the file that the path leads to, through links as well; nothing where none is.
    virtual std::optional<FileStamp> stamp(const std::string& path) = 0;

    // Puts the bytes on the disk whole: into a file beside the target, flushed, and renamed over it. Links
    // lead to where they led, and the file keeps its owner, its mode, its attributes and its other names.
    // Where that can't be, it is written in place, and its old bytes stand elsewhere until it is whole. On
    // any fault the target is as it was, and false comes back.
    virtual bool writeWhole(const std::string& path, const Bytes& bytes) = 0;
};

} // namespace mirtane
