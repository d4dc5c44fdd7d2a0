#pragma once

// The four records that a file is made of. Points and sizes are in file units, y up, unless it says
// otherwise.

#include "dxf/lines_out.h"
#include "dxf/scratch.h"

#include <string>

namespace mirtane {

// What a TEXT shows, in world units, y down.
struct DxfWords {
    Point base;              // where the text is painted
    float size = 0;          // world units
    double degrees = 0;      // of the writing direction
    std::string words;       // UTF-8
    float justification = 0; // 2 centre, 1 right, any other left
};

class DxfRecords {
  public:
    DxfRecords(DxfLines& out, DxfScratch& scratch) : out_(out), scratch_(scratch) {}

    // The colour (0xBBGGRR) and the line type of the records to come.
    void setPen(std::int32_t color, std::int16_t style);

    void line(Point from, Point to);
    void circle(Point centre, float radius);
    void arc(Point centre, float radius, double a1, double a2); // radians, counter-clockwise
    void text(const DxfWords& text);                            // its second point is scratch.textSecond

  private:
    void begin(std::string_view name, std::string_view lineType);
    void round(std::string_view name, Point centre, float radius);

    DxfLines& out_;
    DxfScratch& scratch_;
    std::string_view color_;
    std::string_view lineType_;
};

} // namespace mirtane
