#pragma once

// What the shell asks of the platform, in memory, so that a test sees all of it and can make it fail.

#include "app/ports.h"
#include "files/open_marks.h"

#include <set>

namespace mirtane::fake {

class MemoryDisk : public Disk {
  public:
    MemoryDisk();
    ~MemoryDisk() override;
    MemoryDisk(const MemoryDisk&) = delete;
    MemoryDisk& operator=(const MemoryDisk&) = delete;

    std::optional<Bytes> read(const std::string& path) override;
    bool isTaken(const std::string& path) override;
    // Another one for whatever is written, also where a test puts other bytes among the files.
    std::optional<FileStamp> stamp(const std::string& path) override;
    bool writeWhole(const std::string& path, const Bytes& bytes) override;

    std::map<std::string, Bytes> files; // by full path
    bool refusesWrites = false;
    int writesTried = 0;
    std::string clock = "14:32"; // what it is when a file is written

  private:
    struct Stamped {
        Bytes bytes;
        FileStamp stamp;
    };

    FileStamp next(const Bytes& bytes);

    std::map<std::string, Stamped> stamped_;
    std::int64_t writes_ = 0; // that were stamped
};

// The marks of this program, and those that a test leaves in the name of others.
class MemoryOpenMarks : public OpenMarks {
  public:
    MemoryOpenMarks();
    ~MemoryOpenMarks() override;
    MemoryOpenMarks(const MemoryOpenMarks&) = delete;
    MemoryOpenMarks& operator=(const MemoryOpenMarks&) = delete;

    bool mark(const std::string& path) override;
    void unmark(const std::string& path) override;
    std::optional<OpenElsewhere> markedByAnother(const std::string& path) override;

    std::set<std::string> marks;
    std::map<std::string, OpenElsewhere> ofOthers; // by full path
    bool refusesMarks = false;
};

// The folders that were made, and in them the files of the disk.
class MemoryFolders : public Folders {
  public:
    explicit MemoryFolders(const MemoryDisk& disk);
    ~MemoryFolders() override;
    MemoryFolders(const MemoryFolders&) = delete;
    MemoryFolders& operator=(const MemoryFolders&) = delete;

    std::vector<std::string> files(const std::string& folder, const std::string& extension) override;
    std::vector<std::string> subfolders(const std::string& folder) override;
    std::vector<std::string> drives() override;
    bool exists(const std::string& folder) override;

    std::set<std::string> folders; // full paths

  private:
    const MemoryDisk& disk_;
};

class MemorySettings : public SettingsStore {
  public:
    MemorySettings();
    ~MemorySettings() override;
    MemorySettings(const MemorySettings&) = delete;
    MemorySettings& operator=(const MemorySettings&) = delete;

    std::map<std::string, std::string> read() override;
    void write(const std::map<std::string, std::string>& written) override;

    std::map<std::string, std::string> values;
    int writes = 0;
};

} // namespace mirtane::fake
