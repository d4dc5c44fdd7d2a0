#pragma once

// Dimensions and leaders taken apart into lines, arcs and a text. All geometry is in file units and 32 bits.

#include "dxf/records_out.h"
#include "tables/entity_record.h"

namespace mirtane {

class DxfDimensions {
  public:
    DxfDimensions(DxfRecords& out, DxfScratch& scratch) : out_(out), scratch_(scratch) {}

    // Writes an object of kind 7 to 10 in the pen that is set. False for a radial or angular dimension whose
    // arrow style is none of the three: the file ends there, unfinished, behind what was already written.
    bool write(const EntityRecord& r);

  private:
    Point unit(Point from, Point to);
    float takeArrowSize(const EntityRecord& r);
    void text(const EntityRecord& r, double degrees);
    void extension(Point from, Point to, float h);
    void barbs(Point first, Point second, Point tip, bool closed);
    void linear(const EntityRecord& r);
    void linearInside(float style, Point p3, Point p4, Point w, float h);
    void linearOutside(float style, Point p3, Point p4, Point w, float h);
    void arrow(Point tip, Point axis, float h, bool closed);
    void tick(Point tip, Point along, Point across, float h);
    bool radial(const EntityRecord& r);
    void radialArrow(float style, Point centre, float radius, Point u, float h);
    void centreCross(Point centre, float h);
    void leader(const EntityRecord& r);
    bool angular(const EntityRecord& r);

    DxfRecords& out_;
    DxfScratch& scratch_;
};

} // namespace mirtane
