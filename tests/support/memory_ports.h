#pragma once

// What the shell asks of the platform, in memory, so that a test sees all of it and can make it fail.

#include "app/ports.h"
#include "files/open_marks.h"

#include <algorithm>
#include <set>

namespace mirtane::fake {

class MemoryDisk : public Disk {
  public:
    std::optional<Bytes> read(const std::string& path) override
    {
        const auto found = files.find(path);
        if (found == files.end()) return std::nullopt;
        return found->second;
    }

    bool isTaken(const std::string& path) override { return files.contains(path); }

    // Another one for whatever is written, also where a test puts other bytes among the files.
    std::optional<FileStamp> stamp(const std::string& path) override
    {
        const auto found = files.find(path);
        if (found == files.end()) return std::nullopt;
        Stamped& last = stamped_[path];
        if (last.stamp.modified == 0 || last.bytes != found->second)
            last = {found->second, next(found->second)};
        return last.stamp;
    }

    bool writeWhole(const std::string& path, const Bytes& bytes) override
    {
        ++writesTried;
        if (refusesWrites) return false;
        files[path] = bytes;
        stamped_[path] = {bytes, next(bytes)};
        return true;
    }

    std::map<std::string, Bytes> files; // by full path
    bool refusesWrites = false;
    int writesTried = 0;
    std::string clock = "14:32"; // what it is when a file is written

  private:
    struct Stamped {
        Bytes bytes;
        FileStamp stamp;
    };

    FileStamp next(const Bytes& bytes)
    {
        ++writes_;
        return {static_cast<std::int64_t>(bytes.size()), writes_, static_cast<std::uint64_t>(writes_), 1,
                clock};
    }

    std::map<std::string, Stamped> stamped_;
    std::int64_t writes_ = 0; // that were stamped
};

// The marks of this program, and those that a test leaves in the name of others.
class MemoryOpenMarks : public OpenMarks {
  public:
    bool mark(const std::string& path) override
    {
        if (refusesMarks) return false;
        marks.insert(path);
        return true;
    }

    void unmark(const std::string& path) override { marks.erase(path); }

    std::optional<OpenElsewhere> markedByAnother(const std::string& path) override
    {
        const auto found = ofOthers.find(path);
        if (found == ofOthers.end()) return std::nullopt;
        return found->second;
    }

    std::set<std::string> marks;
    std::map<std::string, OpenElsewhere> ofOthers; // by full path
    bool refusesMarks = false;
};

// The folders that were made, and in them the files of the disk.
class MemoryFolders : public Folders {
  public:
    explicit MemoryFolders(const MemoryDisk& disk) : disk_(disk) {}

    std::vector<std::string> files(const std::string& folder, const std::string& extension) override
    {
        std::vector<std::string> names;
        for (const auto& [path, bytes] : disk_.files) {
            const std::string name = path.substr(path.rfind('/') + 1);
            if (path == folder + "/" + name && name.ends_with(extension)) names.push_back(name);
        }
        return names;
    }

    std::vector<std::string> subfolders(const std::string& folder) override
    {
        std::vector<std::string> names;
        for (const std::string& known : folders) {
            const std::string name = known.substr(known.rfind('/') + 1);
            if (known == folder + "/" + name) names.push_back(name);
        }
        return names;
    }

    std::vector<std::string> drives() override { return {"/"}; }
    bool exists(const std::string& folder) override { return folders.contains(folder); }

    std::set<std::string> folders; // full paths

  private:
    const MemoryDisk& disk_;
};

class MemorySettings : public SettingsStore {
  public:
    std::map<std::string, std::string> read() override { return values; }

    void write(const std::map<std::string, std::string>& written) override
    {
        ++writes;
        values = written;
    }

    std::map<std::string, std::string> values;
    int writes = 0;
};

} // namespace mirtane::fake
