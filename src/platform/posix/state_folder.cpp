#include "platform/posix/state_folder.h"

#include "platform/posix/opened.h"

#include <cstdlib>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace mirtane {
namespace {

// The variable, if it names a place from the root on; others mean nothing.
std::string placeIn(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value != nullptr && *value == '/' ? value : "";
}

std::string homeOfUser()
{
    std::string home = placeIn("HOME");
    if (!home.empty()) return home;
    const passwd* const user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

bool isFolder(const std::filesystem::path& path)
{
    std::error_code fault;
    return std::filesystem::is_directory(path, fault);
}

// Another program may make it at the same moment.
bool make(const std::filesystem::path& folder)
{
    constexpr mode_t forTheUser = 0700;
    if (isFolder(folder)) return true;
    if (folder == folder.parent_path() || !make(folder.parent_path())) return false;
    if (::mkdir(folder.c_str(), forTheUser) != 0) return errno == EEXIST && isFolder(folder);
    static_cast<void>(flushFolder(folder.parent_path())); // best effort: the folder can be used either way
    return true;
}

} // namespace

StateFolder::StateFolder(std::string path) : path_(std::move(path)) {}

StateFolder StateFolder::ofUser()
{
    const std::string states = placeIn("XDG_STATE_HOME");
    if (!states.empty()) return StateFolder(states + "/mirtane");
    const std::string home = homeOfUser();
    return StateFolder(home.empty() ? "" : home + "/.local/state/mirtane");
}

std::optional<std::string> StateFolder::made() const
{
    const std::filesystem::path folder = std::filesystem::path(path_).lexically_normal();
    if (!folder.is_absolute() || !make(folder)) return std::nullopt;
    return path_;
}

} // namespace mirtane
