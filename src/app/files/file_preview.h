#pragma once

#include "app/app.h"

#include <memory>

namespace mirtane {

// Small pictures of what files hold. Each is made while the user looks at a list, within the time of one
// picture on the screen or not at all.
class FilePreview {
  public:
    // Draws what a drawing or a library of that name holds, all of it as large as the surface takes it. False
    // for what is left out: other files, those that hold too much, and those that hold nothing.
    bool draw(const std::string& name, const Bytes& file, Canvas& picture);

    // Whether a file of so many bytes may be drawn.
    static bool isSmall(std::int64_t bytes);

  private:
    std::unique_ptr<Session> scratch_; // made when the first one is wanted
};

} // namespace mirtane
