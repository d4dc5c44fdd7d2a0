#pragma once

#include "files/disk.h"

namespace mirtane {

// The disk of this machine.
class PosixDisk : public Disk {
  public:
    // Files beyond this many bytes are not read; no drawing comes near it.
    static constexpr std::int64_t largestRead = 512LL * 1024 * 1024;

    std::optional<Bytes> read(const std::string& path) override;
    bool isTaken(const std::string& path) override;
    bool writeWhole(const std::string& path, const Bytes& bytes) override;
};

} // namespace mirtane
