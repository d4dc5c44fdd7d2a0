// A hatch: what has been read is written as it stood in the file, name by name.

#include "files/library_files.h"
#include "files/library_row_codec.h"
#include "fuzz_session.h"

using namespace mirtane;
using namespace mirtane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes file(data, data + size);
    Session& s = freshSession();
    addHatch(s.hatchLibrary, file);
    Bytes written;
    ByteWriter out(written);
    for (const HatchRow& row : s.hatchLibrary.used()) writeHatchRow(out, row);
    require(written.size() <= size && std::equal(written.begin(), written.end(), data), "hatches written");
    for (const std::string& name : listedNames(s.hatchLibrary))
        require(!hatchBytes(s.hatchLibrary, name).empty(), "a hatch that is listed has rows");
    return 0;
}
