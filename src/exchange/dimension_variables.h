#pragma once

#include "exchange/dxf_list.h"

namespace mirtane {

// What a dimension or leader is drawn by, in the file's units.
struct DimensionVariables {
    double arrow = 0.18;
    double text = 0.18;
    double gap = 0.09;
    double measures = 1; // what lengths are multiplied by before they are shown
    int decimals = 4;
    int leaderColor = 0;          // by number; 0 as the object's own
    std::int16_t arrowStyle = 1;  // one of ours, or 0 where none of them looks like it
    std::string_view leaderArrow; // handle of a block; empty for the common arrow
};

// Of the record's style, with what the record itself says otherwise.
DimensionVariables dimensionVariables(const DxfRecord& record, const DxfList& list);

} // namespace mirtane
