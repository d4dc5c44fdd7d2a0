#pragma once

#include "app/app.h"
#include "app/shell.h"
#include "convert/arguments.h"
#include "convert/outcome.h"
#include "platform/posix/disk.h"
#include "platform/qt/folders.h"
#include "platform/qt/surface.h"

#include <memory>

namespace mirtane::convert {

// Every file starts with the defaults, whatever the user has chosen in the window.
class NoSettings : public SettingsStore {
  public:
    std::map<std::string, std::string> read() override { return {}; }
    void write(const std::map<std::string, std::string>&) override {}
};

// The picture that no one looks at when a file of another kind is made: small, since it costs memory and
// time.
inline constexpr Size unseen{12, 8};

// A program of its own for each file, so that none of them sees what another one left behind.
struct Desk {
    explicit Desk(Size size) : surface(size.width, size.height, 1)
    {
        constexpr float unitsPerPixel = 4;
        surface.setScale({0, 0, static_cast<float>(size.width) * unitsPerPixel,
                          static_cast<float>(size.height) * unitsPerPixel}); // at most 20,000 pixels
        shell.start();
    }

    PosixDisk disk;
    QtFolders folders;
    NoSettings settings;
    Surface surface;
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Ports ports{disk, folders, settings, {}, nullptr, nullptr};
    DxfScratch scratch;
    Shell shell{*session, surface, ports};
    App app{*session, surface, ports, scratch};
};

// Opens the file of a job on the desk; what it has to say goes into the outcome.
void open(App& app, const Job& job, bool asWindow, Outcome& outcome);

} // namespace mirtane::convert
