#pragma once

#include <optional>
#include <string>

namespace mirtane {

// Another running program of ours that has a drawing open.
struct OpenElsewhere {
    long process = 0;  // its number; 0 where it is not known
    std::string clock; // since when, by the clock on the wall: "14:32"
};

// Which drawings stand open in which of the programs that run. A mark goes with its program, however that
// ends. Paths as on the disk; those that lead to one file through links are one.
class OpenMarks {
  public:
    virtual ~OpenMarks() = default;

    // False where no mark can be left; the drawing is then open all the same, and others are not told.
    virtual bool mark(const std::string& path) = 0;
    virtual void unmark(const std::string& path) = 0;
    // One that has it open, this program aside.
    virtual std::optional<OpenElsewhere> markedByAnother(const std::string& path) = 0;
};

} // namespace mirtane
