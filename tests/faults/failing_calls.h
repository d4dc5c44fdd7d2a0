#pragma once

// A machine whose calls fail on demand. This program's own open, write, fsync and so on stand before those of
// the C library, also for the toolkit, and hand everything on that is not to fail.

#include <string>
#include <vector>

namespace mirtane::fake {

struct Failing {
    int number = 0;       // which of the calls counted fails, from 1; 0 for none
    int error = 0;        // its errno; 0 for a write that takes half of what it was given, and is no failure
    bool lasting = false; // as on a full disk: of the calls after it, those that take up room fail too
};

// While one lives, the calls that change what is in a folder, or write into files there, are counted. A call
// that fails does nothing, but for close, which closes all the same. Removing always works.
class FailingCalls {
  public:
    FailingCalls(const std::string& folder, const Failing& failing);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    // What was called so far: "open", "write", "fsync", "close", "rename", "fchmod" and so on; with "folder"
    // behind it for the folder itself and those in it, and "open what is there" for a file that is not made.
    const std::vector<std::string>& calls() const;
    // The call that failed, or was cut short; "" if the number was never reached.
    std::string failed() const;
};

} // namespace mirtane::fake
