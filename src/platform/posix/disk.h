#pragma once

#include "files/disk.h"
#include "platform/posix/state_folder.h"

#include <utility>

namespace mirtane {

// The disk of this machine.
class PosixDisk : public Disk {
  public:
    // Where copies are kept of files that have to be written in place.
    explicit PosixDisk(StateFolder state = StateFolder::ofUser()) : state_(std::move(state)) {}

    std::optional<Bytes> read(const std::string& path) override;
    bool isTaken(const std::string& path) override;
    std::optional<FileStamp> stamp(const std::string& path) override;
    bool writeWhole(const std::string& path, const Bytes& bytes) override;

  private:
    StateFolder state_;
};

} // namespace mirtane
