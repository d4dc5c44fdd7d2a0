#pragma once

// What other programs draw that no object of ours is.

#include "exchange/drawing_maker.h"

namespace mirtane {

// curve_records.cpp
void takeEllipse(const DxfRecord& record, DrawingMaker& maker);
void takeSpline(const DxfRecord& record, DrawingMaker& maker);
void takeRay(const DxfRecord& record, DrawingMaker& maker);
void takeEndlessLine(const DxfRecord& record, DrawingMaker& maker);

// hatches.cpp
void takeHatch(const DxfRecord& record, DrawingMaker& maker);

// mtexts.cpp
void takeParagraphs(const DxfRecord& record, DrawingMaker& maker);

// leaders.cpp
void takeLeader(const DxfRecord& record, DrawingMaker& maker);

// multileaders.cpp
void takeMultileader(const DxfRecord& record, DrawingMaker& maker);

// dimensions_in.cpp
void takeDimension(const DxfRecord& record, DrawingMaker& maker);

// multilines.cpp
void takeMultiline(const DxfRecord& record, DrawingMaker& maker);

// curve_records.cpp
void takeTable(const DxfRecord& record, DrawingMaker& maker);

} // namespace mirtane
