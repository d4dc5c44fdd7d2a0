// dxf/dxf_reader.cpp: the lines between the records, and what the objects go through once all are read.

#include "dxf/dxf_reader.h"

#include "dxf/blocks_in.h"
#include "dxf/conversion.h"
#include "dxf/records_in.h"
#include "geometry/fault.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr std::int32_t unreadColor = 0x00FF00;
constexpr std::string_view blockPrefix = "HC"; // other blocks are read as if they were none

void clearSlots(EntityStore& store)
{
    constexpr std::ptrdiff_t header = 1; // slot 0 keeps what it holds
    std::fill(store.style.begin() + header, store.style.end(), std::int16_t{0});
    std::fill(store.color.begin() + header, store.color.end(), unreadColor);
    std::fill(store.layer.begin() + header, store.layer.end(), std::int16_t{0});
    const std::string tagOfHeader = store.dxfTag[0];
    store.dxfTag.setAll(noName);
    store.dxfTag[0] = tagOfHeader;
    store.entCount = 1;
}

// What stands around the records: the sections, the layer table and the names of blocks.
class Scanner {
  public:
    Scanner(Session& s, std::string_view text, char decimalPoint)
        : source_(text, decimalPoint), layers_(s.layerTable), records_(source_, s.store, layers_)
    {
    }

    void run()
    {
        std::string_view line;
        while (source_.next(line)) {
            if (beforeEntities_) takeDefinition(line);
            records_.read(line, blockName_);
        }
    }

  private:
    void takeDefinition(std::string_view line);
    void takeLayerRow();

    DxfSource source_;
    DxfLayers layers_;
    DxfRecordReader records_;
    std::string blockName_{noName};
    bool beforeEntities_ = true;
    bool layerTableSeen_ = false;
};

void Scanner::takeDefinition(std::string_view line)
{
    if (line == "LAYER") {
        if (layerTableSeen_) takeLayerRow(); // the first such line is the table's own
        layerTableSeen_ = true;
    } else if (line.starts_with(blockPrefix)) {
        blockName_ = dxfBlockName(line);
    } else if (line == "ENDBLK") {
        blockName_ = noName;
    } else if (line == "ENTITIES") {
        beforeEntities_ = false;
        blockName_ = noName;
    }
}

void Scanner::takeLayerRow()
{
    std::string_view line;
    while (source_.next(line)) {
        if (groupCode(line) != 2) continue;
        if (source_.value(line)) layers_.add(line);
        return;
    }
}

void takeAttributes(Session& s, std::size_t at)
{
    s.curColor = s.store.color[at];
    s.curStyle = s.store.style[at];
    if (s.store.kind[at] != Kind::text) return;
    s.textSize = s.store.p2[at].x;
    s.textFont = s.store.t2[at];
}

// The lines of a block's definition and the inserts are not seen; the lines placed by the inserts are.
void hideDefinitions(EntityStore& store, std::size_t at)
{
    const Kind k = store.kind[at];
    const bool definition = k == Kind::line && store.dxfTag[at] != noName;
    if (definition || k == blockInsertKind || k == polylineSegmentKind) store.stat[at] = Stat::out;
}

} // namespace

void readDxf(Session& s, std::string_view text, const TextWidthOf& widthOf, char decimalPoint)
{
    clearSlots(s.store);
    clearRecords(s.log);
    Scanner(s, text, decimalPoint).run();
    if (s.layerTable.layerCount > 0) s.workLayer = 0;
    convertDxfSlots(s, widthOf);
    placeDxfBlocks(s.store);
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        takeAttributes(s, EntityStore::at(i));
        hideDefinitions(s.store, EntityStore::at(i));
    }
}

void readDxf(Session& s, std::span<const std::uint8_t> file, const TextWidthOf& widthOf, char decimalPoint)
{
    readDxf(s, textOf(file), widthOf, decimalPoint);
}

void finishDxf(Session& s)
{
    EntityStore& store = s.store;
    OpenSlot slot(store);
    for (std::int32_t n = 0; n < s.layerTable.layerCount; ++n) {
        keep(slot.p1().x, n + layer::nameOffset);
        if (const Layer* const row = s.layerTable.find(n)) slot.t1() = row->layerName;
        slot.close(layerNameKind);
    }
    s.savedCount = store.entCount;
}

} // namespace mirtane
