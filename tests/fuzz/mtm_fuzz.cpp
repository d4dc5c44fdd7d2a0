// Multiple lines: what has been read is written as it stood in the file, name by name.

#include "files/library_files.h"
#include "files/library_row_codec.h"
#include "fuzz_session.h"

using namespace mirtane;
using namespace mirtane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes file(data, data + size);
    Session& s = freshSession();
    MultipleLinesLibrary& library = s.multipleLinesLibrary;
    addMultipleLines(library, file);
    Bytes written;
    ByteWriter out(written);
    for (const MultipleLine& row : library.used()) writeMultipleLine(out, row);
    require(written.size() <= size && std::equal(written.begin(), written.end(), data), "lines written");
    for (const std::string& name : listedNames(library))
        require(!multipleLinesBytes(library, name).empty(), "a set that is listed has lines");
    return 0;
}
