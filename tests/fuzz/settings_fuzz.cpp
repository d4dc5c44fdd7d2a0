// A settings file: read, taken over, written, and read again as the same.

#include "app/settings.h"
#include "app/shell.h"
#include "fuzz_session.h"
#include "memory_ports.h"
#include "platform/qt/settings.h"

#include <fstream>

using namespace mirtane;
using namespace mirtane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::ofstream("read.ini", std::ios::binary) << std::string(data, data + size);
    fake::MemorySettings settings;
    settings.values = QtSettings("read.ini").read();
    std::ofstream("written.ini").flush();
    QtSettings("written.ini").write(settings.values);
    require(QtSettings("written.ini").read() == settings.values, "settings written and read again");

    Session& s = freshSession();
    readSettings(s, settings);
    writeSettings(s, settings);
    const std::map<std::string, std::string> once = settings.values;
    readSettings(s, settings);
    writeSettings(s, settings);
    require(settings.values == once, "what settings say is the same once it was taken over");
    return 0;
}
