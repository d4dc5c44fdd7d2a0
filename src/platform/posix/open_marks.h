#pragma once

#include "files/open_marks.h"
#include "platform/posix/held_file.h"
#include "platform/posix/state_folder.h"

#include <map>

namespace mirtane {

// Marks as files in the state folder, each held by the program that left it. Several programs may have one
// drawing open, so that each leaves a mark of its own.
class PosixOpenMarks : public OpenMarks {
  public:
    explicit PosixOpenMarks(StateFolder state) : state_(std::move(state)) {}
    ~PosixOpenMarks() override;
    PosixOpenMarks(const PosixOpenMarks&) = delete;
    PosixOpenMarks& operator=(const PosixOpenMarks&) = delete;

    bool mark(const std::string& path) override;
    void unmark(const std::string& path) override;
    std::optional<OpenElsewhere> markedByAnother(const std::string& path) override;

  private:
    StateFolder state_;
    std::map<std::string, HeldFile> own_; // by where the drawing really is
};

} // namespace mirtane
