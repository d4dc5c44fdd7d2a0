#include "platform/posix/kept_files.h"

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace mirtane {
namespace {

constexpr const char* keptStem = "work-";
constexpr std::string_view ending = ".mtd"; // it opens as a drawing in any case

// By the time of the last change, the oldest first.
void sortByTime(std::vector<std::filesystem::path>& files)
{
    std::vector<std::pair<std::filesystem::file_time_type, std::filesystem::path>> timed;
    for (std::filesystem::path& file : files) {
        std::error_code fault;
        const auto time = std::filesystem::last_write_time(file, fault);
        timed.emplace_back(fault ? std::filesystem::file_time_type::min() : time, std::move(file));
    }
    std::sort(timed.begin(), timed.end());
    files.clear();
    for (auto& [time, file] : timed) files.push_back(std::move(file));
}

std::vector<std::filesystem::path> keptIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> found;
    std::error_code fault;
    const std::filesystem::directory_iterator end;
    for (std::filesystem::directory_iterator at(folder, fault); !fault && at != end; at.increment(fault)) {
        const std::string name = at->path().filename().string();
        if (name.starts_with(keptStem) && name.ends_with(ending)) found.push_back(at->path());
    }
    sortByTime(found);
    return found;
}

std::filesystem::path holderOf(std::filesystem::path kept)
{
    return kept.replace_extension();
}

bool stands(const std::filesystem::path& path)
{
    struct stat there = {};
    return ::lstat(path.c_str(), &there) == 0;
}

// Where no holder stands any more, its run ended between the two removals, or another run found it dead.
bool isLeft(const std::filesystem::path& kept)
{
    const std::filesystem::path holder = holderOf(kept);
    return !stands(holder) || removeIfDead(holder) == Holder::dead;
}

} // namespace

KeptFiles::~KeptFiles()
{
    if (holder_.file.isOpen()) ::unlink(holder_.path.c_str());
}

std::optional<std::string> KeptFiles::own()
{
    constexpr mode_t forTheUser = 0600;
    if (!holder_.file.isOpen() || !stands(holder_.path)) {
        const std::optional<std::string> folder = state_.made();
        if (!folder) return std::nullopt;
        holder_ = makeHeld(*folder, keptStem, forTheUser);
        if (!holder_.file.isOpen()) return std::nullopt;
    }
    return holder_.path.string() + std::string(ending);
}

std::string KeptFiles::pathOf(const std::string& name) const
{
    return state_.path() + "/" + name;
}

// What fails leaves what was kept before.
void KeptFiles::keep(Bytes work)
{
    const std::optional<std::string> path = own();
    const bool done = path && disk_.writeWhole(*path, work);
    const std::scoped_lock lock(mutex_);
    failed_ = !done;
    if (!done) return;
    if (!kept_.empty() && kept_ != *path) ::unlink(kept_.c_str());
    kept_ = *path;
}

bool KeptFiles::fails() const
{
    const std::scoped_lock lock(mutex_);
    return failed_ || (!kept_.empty() && !stands(kept_));
}

void KeptFiles::forget()
{
    const std::scoped_lock lock(mutex_);
    failed_ = false;
    if (!kept_.empty()) ::unlink(kept_.c_str());
    kept_.clear();
}

// Where nobody holds the file any more, it is known as left.
void KeptFiles::leave()
{
    const std::scoped_lock lock(mutex_);
    if (kept_.empty()) return;
    ::unlink(holder_.path.c_str());
    holder_ = {};
    kept_.clear();
}

std::vector<std::string> KeptFiles::left()
{
    std::vector<std::string> names;
    for (const std::filesystem::path& kept : keptIn(state_.path())) {
        if (isLeft(kept)) names.push_back(kept.filename().string());
    }
    return names;
}

std::optional<Bytes> KeptFiles::read(const std::string& name)
{
    return disk_.read(pathOf(name));
}

// Of two runs that want it, the one that renames it has it.
bool KeptFiles::adopt(const std::string& name)
{
    const std::optional<std::string> path = own();
    if (!path || std::rename(pathOf(name).c_str(), path->c_str()) != 0) return false;
    const std::scoped_lock lock(mutex_);
    kept_ = *path;
    return true;
}

void KeptFiles::remove(const std::string& name)
{
    ::unlink(pathOf(name).c_str());
}

} // namespace mirtane
