#pragma once

#include "exchange/drawing_maker.h"
#include "exchange/group_run.h"
#include "exchange/hatch_lines.h"
#include "exchange/tangent_arcs.h"

namespace mirtane {

// One loop of a hatch, as seen in the drawing.
struct HatchPath {
    std::vector<Stroke> strokes; // each from where the last one ends, or nearly so
};

// The paths of a hatch, which begin with their count; groups stands behind the last of them afterwards.
std::vector<HatchPath> takePaths(GroupRun& groups, const Transform2& plane, double tolerance);

// The corners of a path; arcs come as chords within the tolerance.
Loop loopOf(const HatchPath& path, double tolerance);

} // namespace mirtane
