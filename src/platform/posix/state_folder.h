#pragma once

#include <optional>
#include <string>

namespace mirtane {

// The folder for what a user's programs of ours tell one another and what they could not yet save.
class StateFolder {
  public:
    explicit StateFolder(std::string path);
    // $XDG_STATE_HOME/mirtane, or ~/.local/state/mirtane.
    static StateFolder ofUser();

    // Absolute, UTF-8; empty for a user without a home.
    const std::string& path() const { return path_; }
    // The path, once the folder stands. It is made here if need be, for the user alone, as are the folders
    // that it stands in. Nothing where that can't be.
    std::optional<std::string> made() const;

  private:
    std::string path_;
};

} // namespace mirtane
