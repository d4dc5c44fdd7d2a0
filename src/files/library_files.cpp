#include "files/library_files.h"

#include "files/entity_record_codec.h"
#include "files/library_row_codec.h"

namespace mirtane {
namespace {

constexpr int mostPieces = 60000;
constexpr int mostHatchRows = 30000;
constexpr int mostMultipleLines = 99;

// Reads whole records, most of them at the most, and gives each to take().
template <class Record, class Take>
void readRecords(const Bytes& file, int most, bool (*read)(ByteReader&, Record&), Take take)
{
    ByteReader in(file);
    Record record;
    for (int i = 0; i < most && in.remaining() > 0 && read(in, record); ++i) take(record);
}

template <class Row>
Bytes bytesOf(const LibraryTable<Row>& library, std::string_view name, void (*write)(ByteWriter&, const Row&))
{
    Bytes file;
    ByteWriter out(file);
    for (const Row& row : library.used()) {
        if (bearsName(nameOf(row), name)) write(out, row);
    }
    return file;
}

void addPiece(Session& s, const EntityRecord& piece, std::string_view name)
{
    const std::int32_t slot = s.store.entCount;
    ++s.store.entCount;
    if (!EntityStore::holds(slot)) return;
    s.store.setRecord(slot, piece);
    s.store.setStat(slot, Stat::out);
    s.store.ownerName[EntityStore::at(slot)] = name;
}

} // namespace

Bytes associateBytes(const EntityStore& store, std::string_view name)
{
    Bytes file;
    ByteWriter out(file);
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (bearsName(store.ownerName[EntityStore::at(i)], name)) writeRecord(out, store.record(i));
    }
    return file;
}

Bytes hatchBytes(const HatchLibrary& library, std::string_view name)
{
    return bytesOf(library, name, writeHatchRow);
}

Bytes multipleLinesBytes(const MultipleLinesLibrary& library, std::string_view name)
{
    return bytesOf(library, name, writeMultipleLine);
}

void addAssociate(Session& s, const Bytes& file, std::string_view name)
{
    readRecords(file, mostPieces, readRecord, [&](const EntityRecord& piece) { addPiece(s, piece, name); });
    markUsed(s.layerTable, 0);
}

void addHatch(HatchLibrary& library, const Bytes& file)
{
    readRecords(file, mostHatchRows, readHatchRow, [&](const HatchRow& row) { library.add(row); });
}

void addMultipleLines(MultipleLinesLibrary& library, const Bytes& file)
{
    readRecords(file, mostMultipleLines, readMultipleLine,
                [&](const MultipleLine& row) { library.add(row); });
}

std::string_view baseName(std::string_view fileName)
{
    return fileName.substr(0, fileName.find('.'));
}

} // namespace mirtane
