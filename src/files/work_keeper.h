#pragma once

#include "files/disk.h"

#include <string>
#include <vector>

namespace mirtane {

// Where work that is not saved is kept, in case the program dies. Each run has one place of its own there.
class WorkKeeper {
  public:
    virtual ~WorkKeeper() = default;

    // Puts the bytes in place of what this run has kept. They may be on their way to the disk when this comes
    // back; a later call overtakes them. What fails leaves what was kept before.
    virtual void keep(Bytes work) = 0;
    // Whether the last work could not be put there, or is no longer there.
    virtual bool fails() const = 0;
    // Whether something is still on its way to the disk, so that nothing is known of it yet.
    virtual bool isUnderWay() const = 0;
    // Waits until what was to be kept, or forgotten, is.
    virtual void flush() = 0;
    // Nothing of this run is unsaved any more.
    virtual void forget() = 0;
    // What is kept stays for the next run, whatever this one keeps or forgets from now on.
    virtual void leave() = 0;

    // What runs that are no longer alive have left, by name, the latest last.
    virtual std::vector<std::string> left() = 0;
    virtual std::optional<Bytes> read(const std::string& name) = 0;
    // What was left becomes what this run has kept. False where it is no longer there.
    virtual bool adopt(const std::string& name) = 0;
    virtual void remove(const std::string& name) = 0;
};

} // namespace mirtane
