#pragma once

#include "dxf/layers_in.h"
#include "dxf/open_slot.h"
#include "dxf/source.h"

namespace mirtane {

// Reads the records of a file into the slots of a drawing, in file units; a record becomes an object when it
// ends. It ends at the line "  0" (a polyline at "SEQEND"), and at the end of the file, where one of which
// nothing was read is dropped.
class DxfRecordReader {
  public:
    DxfRecordReader(DxfSource& source, EntityStore& store, const DxfLayers& layers)
        : source_(source), layers_(layers), slot_(store), store_(store)
    {
    }

    // Reads the record that name announces. Any other line is passed over. block is the name of the block
    // being defined, which lines alone take.
    void read(std::string_view name, const std::string& block);

  private:
    using Take = void (DxfRecordReader::*)(int code);

    bool takeGroups(Take take);
    void takeLine(int code);
    void takeCircle(int code);
    void takeArc(int code);
    void takeText(int code);
    void takeInsert(int code);
    void takeShared(int code);
    void takeLayer();
    void takeLineType();
    void takeColor();

    void text();
    void insert();
    void finish(Kind kind, const std::string& tag);

    struct Polyline;
    void polyline();
    void takeVertex(Polyline& line, int code);
    void endSegment(Polyline& line);
    void closePolyline(const Polyline& line);

    DxfSource& source_;
    const DxfLayers& layers_;
    OpenSlot slot_;
    EntityStore& store_;
};

} // namespace mirtane
