// A DXF file of any program, text or binary, read in full: taken, shown and put on a page.

#include "exchange/full_reading.h"
#include "exchange/report.h"
#include "fuzz_session.h"

#include <cmath>

using namespace mirtane;
using namespace mirtane::fuzz;

namespace {

bool isFinite(Point p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

void requireObjects(const Session& s)
{
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const EntityRecord r = s.store.record(i);
        require(isFinite(r.p1) && isFinite(r.p2) && isFinite(r.p3) && isFinite(r.p4) && isFinite(r.p5),
                "points");
        require(std::isfinite(r.rad) && std::isfinite(r.a1) && std::isfinite(r.a2), "numbers");
        require(isDrawnKind(r.kind), "kind");
        require(r.layer >= 0 && r.layer < s.layerTable.layerCount, "layer");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string file(data, data + size);
    Session& s = freshSession();
    const FullReading reading = readInFull(file);
    const FullReport report = reportOf(reading, takeReading(s, reading, widthOf));
    require(report.isWhole() || !sentenceOfLeftOut(report).empty() || report.isCut || !report.isDxf,
            "report");
    requireTables(s);
    requireObjects(s);
    show(s);
    showOnPage(s);
    return 0;
}
