// A DXF file, taken by the letter: opened, shown, written and opened again.

#include "dxf/dxf_reader.h"
#include "dxf/dxf_writer.h"
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
    constexpr Kind deadInsert{35};
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const EntityRecord r = s.store.record(i);
        require(isFinite(r.p1) && isFinite(r.p2) && isFinite(r.p3) && isFinite(r.p4) && isFinite(r.p5),
                "points");
        require(std::isfinite(r.rad) && std::isfinite(r.a1) && std::isfinite(r.a2), "numbers");
        const bool known = (r.kind >= Kind::line && r.kind <= Kind::arc) || r.kind == Kind::text;
        require(known || r.kind == deadInsert, "kind");
    }
}

void open(Session& s, std::string_view file)
{
    readDxf(s, file, widthOf);
    requireTables(s);
    requireObjects(s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string file(data, data + size);
    Session& s = freshSession();
    open(s, file);
    show(s);
    showOnPage(s);
    changeStat(s.store, Stat::on, Stat::sel);
    DxfScratch scratch;
    const DxfFile written = dxfFile(s.store, scratch);
    open(s, std::string(written.bytes.begin(), written.bytes.end()));
    finishDxf(s);
    return 0;
}
