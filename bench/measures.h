#pragma once

// What is measured: each thing that the program does, and beside it the plain work beneath it.

#include "app/shell.h"
#include "plain.h"
#include "platform/posix/disk.h"
#include "platform/qt/folders.h"
#include "platform/qt/surface.h"

#include <filesystem>

namespace mirtane::bench {

// A store that remembers nothing, so that the settings of whoever runs this don't come in.
class NoSettings : public SettingsStore {
  public:
    std::map<std::string, std::string> read() override { return {}; }
    void write(const std::map<std::string, std::string>&) override {}
};

// The program without its window, with 60,000 lines in it and in a file, and an image for the plain work.
class Bench {
  public:
    Bench();
    ~Bench();
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    Image plainImage();

    PosixDisk disk;
    QtFolders folders;
    NoSettings settings;
    Ports ports{disk, folders, settings, ""};
    DxfScratch dxfScratch;
    Session session;
    Surface surface;
    Shell shell{session, surface, ports};
    std::filesystem::path folder; // of our own, gone with the bench
    std::string file;             // the drawing
    Bytes bytes;                  // of that file

  private:
    std::vector<std::uint32_t> plainPixels_;
};

// Registers all of them with Google Benchmark; bench must outlive the run.
void registerMeasures(Bench& bench);

struct Comparison {
    const char* what;
    const char* plain;
    double aim;        // the ratio to stay within, 0 for none
    double within = 0; // so many milliseconds, 0 for as many as it takes
};

// By the names under which the two are registered, in the order of the table.
std::span<const Comparison> comparisons();

} // namespace mirtane::bench
