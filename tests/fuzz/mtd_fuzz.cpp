// A drawing: opened, shown, saved and opened again, and merged as a layer.

#include "fuzz_session.h"

using namespace mirtane;
using namespace mirtane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::int16_t someLayer = 3;
    const Bytes file(data, data + size);
    Session& s = freshSession();
    replaceDrawing(s, file);
    requireTables(s);
    show(s);
    const Bytes saved = drawingBytes(s, SaveWhat::drawing);
    const std::int32_t count = s.store.entCount;
    replaceDrawing(s, saved);
    require(s.store.entCount == count, "a saved drawing has as many objects as the one opened");
    require(drawingBytes(s, SaveWhat::drawing) == saved, "a saved drawing opened and saved is the same file");
    mergeLayer(s, file, someLayer);
    requireTables(s);
    show(s);
    showOnPage(s);
    return 0;
}
