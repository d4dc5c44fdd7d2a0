// A file of commands, played to its end or to the first line that is refused, with all but the surface in
// memory.

#include "fuzz_session.h"
#include "memory_ports.h"
#include "play/player.h"
#include "play/words.h"
#include "toolkit_session.h"

#include <memory>
#include <sstream>

using namespace mirtane;
using namespace mirtane::fuzz;

namespace {

constexpr const char* home = "/home/user";

struct Theatre {
    Theatre()
    {
        folders.folders = {"/", "/home", home};
        surface.setScale({0, 0, 480, 320});
        pic1.record(false);
        shell.start();
    }

    fake::MemoryDisk disk;
    fake::MemoryFolders folders{disk};
    fake::MemorySettings settings;
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Surface surface{120, 80, 1};
    RecordingCanvas pic1{&surface};
    RecordingPrinter printer;
    Shell shell{*session, pic1, {disk, folders, settings, home, &printer}};
    play::Stage stage{shell, surface, pic1, printer};
};

// A picture would be written to the real disk, and the largest surface is larger than the memory.
bool isLeftOut(std::string_view line)
{
    constexpr std::size_t longestSize = 14; // "resize 999 999"
    return line.find("image") != std::string_view::npos ||
           (line.find("resize") != std::string_view::npos && line.size() > longestSize);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    startToolkit();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Theatre theatre;
    std::istringstream script(std::string(data, data + size));
    for (std::string line; std::getline(script, line) && !theatre.shell.ended();) {
        if (isLeftOut(line)) continue;
        try {
            play::play(theatre.stage, line);
        } catch (const play::Refusal& refusal) {
            require(!refusal.reason.empty(), "a refusal has a reason");
            if (line.find("expect") == std::string::npos) break;
        }
    }
    require(theatre.session->store.entCount >= 1, "entCount");
    return 0;
}
