#include "platform/posix/in_place.h"

#include "platform/posix/hash.h"
#include "platform/posix/new_file.h"
#include "platform/posix/opened.h"

#include <chrono>

#include <fcntl.h>
#include <unistd.h>

namespace mirtane {
namespace {

// Known by where the file stands and when it was; its own name comes last, for whoever looks for it.
std::string nameOfCopy(const std::filesystem::path& path)
{
    constexpr std::size_t longest = 150; // names end at 255 bytes
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    std::string name = path.filename().string();
    if (name.size() > longest) name.erase(0, name.size() - longest);
    return "before-" + hashOf(path.string()) + "-" + std::to_string(now) + "-" + name;
}

std::optional<std::filesystem::path> keepCopy(const std::filesystem::path& path, const Bytes& bytes,
                                              const StateFolder& state)
{
    constexpr mode_t forTheUser = 0600;
    const std::optional<std::string> folder = state.made();
    if (!folder) return std::nullopt;
    removeLeftovers(*folder);
    std::filesystem::path copy = *folder / std::filesystem::path(nameOfCopy(path));
    if (putNewFile(copy, bytes, false, forTheUser) != Put::done) return std::nullopt;
    if (flushFolder(*folder)) return copy;
    ::unlink(copy.c_str());
    return std::nullopt;
}

// Nothing is cut off before all is written, so that on a full disk there is room to put the old bytes back.
bool overwrite(Opened& file, const Bytes& bytes)
{
    return file.write(bytes) && file.cutAt(bytes.size()) && file.flush();
}

// With the old time as well: nobody is to think that someone else has changed the file.
bool putBack(const std::filesystem::path& path, const Bytes& old, const struct stat& before)
{
    Opened file(path, O_WRONLY | O_NOFOLLOW);
    if (!file.isOpen() || !overwrite(file, old)) return false;
    const timespec times[] = {before.st_atim, before.st_mtim};
    static_cast<void>(::futimens(file.descriptor(), times)); // the bytes are what counts
    return file.close();
}

} // namespace

bool writeInPlace(const std::filesystem::path& path, const Bytes& bytes, const StateFolder& state)
{
    Opened file(path, O_RDWR | O_NOFOLLOW);
    const std::optional<struct stat> before = file.status();
    const std::optional<Bytes> old = before ? file.read() : std::nullopt;
    if (!old) return false;
    const std::optional<std::filesystem::path> copy = keepCopy(path, *old, state);
    if (!copy) return false;
    const bool done = overwrite(file, bytes) && file.close();
    if (done || putBack(path, *old, *before)) ::unlink(copy->c_str());
    return done;
}

} // namespace mirtane
