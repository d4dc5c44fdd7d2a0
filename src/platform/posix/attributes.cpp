#include "platform/posix/attributes.h"

#include <algorithm>
#include <map>

#include <sys/xattr.h>
#include <unistd.h>

namespace mirtane {
namespace {

using Attributes = std::map<std::string, std::string>;

// What call(buffer, size) gives, which tells how much it is when asked for nothing.
template <class Call> std::optional<std::string> told(Call call)
{
    const ssize_t size = call(nullptr, 0);
    if (size < 0) return std::nullopt;
    std::string text(static_cast<std::size_t>(size), '\0'); // not negative
    const ssize_t got = call(text.data(), text.size());
    if (got < 0) return std::nullopt;
    text.resize(static_cast<std::size_t>(got)); // not negative
    return text;
}

// One that can't be read makes them unknown. A disk that has none has none.
std::optional<Attributes> attributesOf(const std::filesystem::path& path)
{
    const auto names = told([&](char* to, std::size_t size) { return ::llistxattr(path.c_str(), to, size); });
    if (!names) return errno == ENOTSUP ? std::optional(Attributes()) : std::nullopt;
    Attributes attributes;
    for (std::size_t from = 0; from < names->size();) {
        const std::string name = names->c_str() + from; // each ends with a zero
        const auto value = told(
            [&](char* to, std::size_t size) { return ::lgetxattr(path.c_str(), name.c_str(), to, size); });
        if (!value) return std::nullopt;
        attributes[name] = *value;
        from += name.size() + 1;
    }
    return attributes;
}

// Those that the folder gave to the new file go, too.
bool takeExtended(const std::filesystem::path& from, const std::filesystem::path& to)
{
    const std::optional<Attributes> wanted = attributesOf(from);
    const std::optional<Attributes> had = attributesOf(to);
    if (!wanted || !had) return false;
    const bool given = std::ranges::all_of(*wanted, [&](const auto& attribute) {
        const auto& [name, value] = attribute;
        const auto same = had->find(name);
        return (same != had->end() && same->second == value) ||
               ::lsetxattr(to.c_str(), name.c_str(), value.data(), value.size(), 0) == 0;
    });
    return given && std::ranges::all_of(*had, [&](const auto& attribute) {
               const std::string& name = attribute.first;
               return wanted->contains(name) || ::lremovexattr(to.c_str(), name.c_str()) == 0;
           });
}

bool takeOwner(const struct stat& from, const Opened& to)
{
    const std::optional<struct stat> now = to.status();
    if (now && now->st_uid == from.st_uid && now->st_gid == from.st_gid) return true;
    return ::fchown(to.descriptor(), from.st_uid, from.st_gid) == 0;
}

// On a disk without modes all files have the same.
bool takeMode(const struct stat& from, const Opened& to)
{
    constexpr mode_t all = 07777;
    if (::fchmod(to.descriptor(), from.st_mode & all) == 0) return true;
    const std::optional<struct stat> now = to.status();
    return now && now->st_mode == from.st_mode;
}

} // namespace

// The mode last, since a change of the owner takes from it, and a list of who may do what sets it.
bool takeAttributes(const std::filesystem::path& from, const HeldFile& to)
{
    struct stat there = {};
    return ::lstat(from.c_str(), &there) == 0 && takeOwner(there, to.file) && takeExtended(from, to.path) &&
           takeMode(there, to.file);
}

} // namespace mirtane
