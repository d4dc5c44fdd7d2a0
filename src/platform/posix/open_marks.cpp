#include "platform/posix/open_marks.h"

#include "platform/posix/hash.h"
#include "platform/posix/wall_clock.h"

#include <unistd.h>

namespace mirtane {
namespace {

std::string realPath(const std::string& path)
{
    std::error_code fault;
    const std::filesystem::path real = std::filesystem::weakly_canonical(path, fault);
    return fault ? path : real.string();
}

constexpr const char* markStem = "open-";

std::string stemFor(const std::string& real)
{
    return markStem + hashOf(real) + "-";
}

// For whoever looks into the folder.
Bytes contentFor(const std::string& real)
{
    const std::string content = std::to_string(::getpid()) + "\n" + real + "\n";
    return {content.begin(), content.end()};
}

std::string sinceWhen(const std::filesystem::path& mark)
{
    struct stat told = {};
    return ::lstat(mark.c_str(), &told) == 0 ? clockAt(told.st_mtim.tv_sec) : std::string();
}

} // namespace

PosixOpenMarks::~PosixOpenMarks()
{
    for (const auto& [real, mark] : own_) ::unlink(mark.path.c_str());
}

bool PosixOpenMarks::mark(const std::string& path)
{
    constexpr mode_t forTheUser = 0600;
    const std::string real = realPath(path);
    if (own_.contains(real)) return true;
    const std::optional<std::string> folder = state_.made();
    if (!folder) return false;
    for (const std::filesystem::path& left : heldFiles(*folder, markStem)) removeIfDead(left);
    HeldFile mark = makeHeld(*folder, stemFor(real), forTheUser);
    if (!mark.file.isOpen()) return false;
    static_cast<void>(mark.file.write(contentFor(real))); // the mark counts, whatever it says
    own_.emplace(real, std::move(mark));
    return true;
}

void PosixOpenMarks::unmark(const std::string& path)
{
    const auto own = own_.find(realPath(path));
    if (own == own_.end()) return;
    ::unlink(own->second.path.c_str());
    own_.erase(own);
}

std::optional<OpenElsewhere> PosixOpenMarks::markedByAnother(const std::string& path)
{
    const std::string real = realPath(path);
    const auto own = own_.find(real);
    for (const std::filesystem::path& mark : heldFiles(state_.path(), stemFor(real))) {
        if (own != own_.end() && own->second.path == mark) continue;
        if (removeIfDead(mark) == Holder::alive)
            return OpenElsewhere{makerOf(mark, stemFor(real)), sinceWhen(mark)};
    }
    return std::nullopt;
}

} // namespace mirtane
