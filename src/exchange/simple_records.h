#pragma once

// The records that are drawn as they stand, and the block that is drawn in a place.

#include "exchange/drawing_maker.h"

namespace mirtane {

void takeLine(const DxfRecord& record, DrawingMaker& maker);
void takePoint(const DxfRecord& record, DrawingMaker& maker);
void takeCircle(const DxfRecord& record, DrawingMaker& maker);
void takeArc(const DxfRecord& record, DrawingMaker& maker);
void takeSolid(const DxfRecord& record, DrawingMaker& maker);
void takeFace(const DxfRecord& record, DrawingMaker& maker);
void takeWipeout(const DxfRecord& record, DrawingMaker& maker);
// Of what is a window on something else.
void takeNothing(const DxfRecord& record, DrawingMaker& maker);

// meshes.cpp
void takeMeshOfFaces(const DxfRecord& record, DrawingMaker& maker);

// polylines.cpp
void takeLightPolyline(const DxfRecord& record, DrawingMaker& maker);
void takePolyline(const DxfRecord& record, DrawingMaker& maker);

// texts_in_place.cpp
void takeText(const DxfRecord& record, DrawingMaker& maker);
void takeAttributeDefinition(const DxfRecord& record, DrawingMaker& maker);
void takeAttribute(const DxfRecord& record, DrawingMaker& maker);

// inserts.cpp
void takeInsert(const DxfRecord& record, DrawingMaker& maker);

} // namespace mirtane
