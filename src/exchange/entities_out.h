#pragma once

// The objects of a drawing as records of a DXF file.

#include "exchange/file_plan.h"
#include "exchange/made.h"
#include "exchange/own_data.h"
#include "exchange/pairs_out.h"
#include "render/text_painter.h"

namespace mirtane {

// Where a line of text stands: at the left end of its base line.
Vec baselineOf(const Lettering& text, Vec corner);

class EntitiesOut {
  public:
    EntitiesOut(PairsOut& out, FilePlan& plan, const DrawingOut& drawing)
        : out_(out), plan_(plan), drawing_(drawing)
    {
    }

    void write(std::int32_t slot);

  private:
    void begin(const char* type, const EntityRecord& r, DxfHandle reactor = 0);
    void look(const EntityRecord& r);
    void kept(int code, double value);
    void kept(int code, Vec p);
    void keptDegrees(int code, double radians);
    void round(const Made& made);
    void arc(const EntityRecord& r, const Made& made);
    void ellipse(const Made& made);
    void text(const EntityRecord& r, const Made& made);
    void dimension(std::int32_t slot, const EntityRecord& r, const Made& made);
    void measured(const EntityRecord& r, const Made& made);
    void leader(const EntityRecord& r, const Made& made);
    void paragraph(std::string_view words);
    void annotation(const EntityRecord& r, const Made& made, DxfHandle leader);

    PairsOut& out_;
    FilePlan& plan_;
    const DrawingOut& drawing_;
    KeptGroups kept_; // of the record under way
    DxfHandle handle_ = 0;
    DxfHandle following_ = 0; // the handle of the next record, where one is known beforehand
};

} // namespace mirtane
