// An associate: what has been read is written as it stood in the file.

#include "files/library_files.h"
#include "fuzz_session.h"

using namespace mirtane;
using namespace mirtane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes file(data, data + size);
    Session& s = freshSession();
    addAssociate(s, file, "name");
    requireTables(s);
    const Bytes written = associateBytes(s.store, "name");
    require(written.size() <= size && std::equal(written.begin(), written.end(), data),
            "an associate written");
    show(s);
    showOnPage(s);
    return 0;
}
