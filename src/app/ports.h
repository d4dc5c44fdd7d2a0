#pragma once

#include "files/disk.h"
#include "files/open_marks.h"
#include "files/work_keeper.h"
#include "print/printer.h"

#include <map>
#include <string>
#include <vector>

namespace mirtane {

// Folder lists. Paths are absolute, UTF-8, divided by "/". A folder that can't be read has no entries.
class Folders {
  public:
    virtual ~Folders() = default;

    // Names of the files whose extension (".mtd", upper or lower case) is given, sorted by name.
    virtual std::vector<std::string> files(const std::string& folder, const std::string& extension) = 0;
    // Names of the folders in it, sorted, without "." and "..".
    virtual std::vector<std::string> subfolders(const std::string& folder) = 0;
    // Mounted volumes and the user's home, as absolute paths.
    virtual std::vector<std::string> drives() = 0;
    virtual bool exists(const std::string& folder) = 0;
};

// The names of the fonts that the screen has, sorted.
class Fonts {
  public:
    virtual ~Fonts() = default;

    virtual std::vector<std::string> names() = 0;
};

// The per-user store of string values.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    // What is stored; an absent key is absent here, and a store that can't be read is empty.
    virtual std::map<std::string, std::string> read() = 0;
    virtual void write(const std::map<std::string, std::string>& values) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;

    virtual std::string now() = 0; // local, "2026-11-22 14:32"
};

// What the shell asks of the platform, besides the surface.
struct Ports {
    Disk& disk;
    Folders& folders;
    SettingsStore& settings;
    std::string programFolder;
    Printer* printer = nullptr;     // not owned; null where nothing can be printed
    Fonts* fonts = nullptr;         // not owned; null where there are none
    std::string ownFolder = {};     // where the user's files go at first; the program's folder if empty
    WorkKeeper* work = nullptr;     // not owned; null where nothing is kept
    Clock* clock = nullptr;         // not owned; null where no time is told
    OpenMarks* marks = nullptr;     // not owned; null where other programs are not told
    std::string homeFolder = {};    // "~" in a path; the program's folder if empty
    std::string libraryFolder = {}; // where the libraries that come with the program stand; empty if nowhere
};

} // namespace mirtane
