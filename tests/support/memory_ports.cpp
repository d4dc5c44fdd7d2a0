#include "memory_ports.h"

namespace mirtane::fake {

MemoryDisk::MemoryDisk() = default;
MemoryDisk::~MemoryDisk() = default;

std::optional<Bytes> MemoryDisk::read(const std::string& path)
{
    const auto found = files.find(path);
    if (found == files.end()) return std::nullopt;
    return found->second;
}

bool MemoryDisk::isTaken(const std::string& path)
{
    return files.contains(path);
}

std::optional<FileStamp> MemoryDisk::stamp(const std::string& path)
{
    const auto found = files.find(path);
    if (found == files.end()) return std::nullopt;
    Stamped& last = stamped_[path];
    if (last.stamp.modified == 0 || last.bytes != found->second) last = {found->second, next(found->second)};
    return last.stamp;
}

bool MemoryDisk::writeWhole(const std::string& path, const Bytes& bytes)
{
    ++writesTried;
    if (refusesWrites) return false;
    files[path] = bytes;
    stamped_[path] = {bytes, next(bytes)};
    return true;
}

FileStamp MemoryDisk::next(const Bytes& bytes)
{
    ++writes_;
    return {static_cast<std::int64_t>(bytes.size()), writes_, static_cast<std::uint64_t>(writes_), 1, clock};
}

MemoryOpenMarks::MemoryOpenMarks() = default;
MemoryOpenMarks::~MemoryOpenMarks() = default;

bool MemoryOpenMarks::mark(const std::string& path)
{
    if (refusesMarks) return false;
    marks.insert(path);
    return true;
}

void MemoryOpenMarks::unmark(const std::string& path)
{
    marks.erase(path);
}

std::optional<OpenElsewhere> MemoryOpenMarks::markedByAnother(const std::string& path)
{
    const auto found = ofOthers.find(path);
    if (found == ofOthers.end()) return std::nullopt;
    return found->second;
}

MemoryFolders::MemoryFolders(const MemoryDisk& disk) : disk_(disk) {}
MemoryFolders::~MemoryFolders() = default;

std::vector<std::string> MemoryFolders::files(const std::string& folder, const std::string& extension)
{
    std::vector<std::string> names;
    for (const auto& [path, bytes] : disk_.files) {
        const std::string name = path.substr(path.rfind('/') + 1);
        if (path == folder + "/" + name && name.ends_with(extension)) names.push_back(name);
    }
    return names;
}

std::vector<std::string> MemoryFolders::subfolders(const std::string& folder)
{
    std::vector<std::string> names;
    for (const std::string& known : folders) {
        const std::string name = known.substr(known.rfind('/') + 1);
        if (known == folder + "/" + name) names.push_back(name);
    }
    return names;
}

std::vector<std::string> MemoryFolders::drives()
{
    return {"/"};
}

bool MemoryFolders::exists(const std::string& folder)
{
    return folders.contains(folder);
}

MemorySettings::MemorySettings() = default;
MemorySettings::~MemorySettings() = default;

std::map<std::string, std::string> MemorySettings::read()
{
    return values;
}

void MemorySettings::write(const std::map<std::string, std::string>& written)
{
    ++writes;
    values = written;
}

} // namespace mirtane::fake
