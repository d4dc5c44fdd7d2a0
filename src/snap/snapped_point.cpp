#include "snap/snapped_point.h"

#include "geometry/ortho.h"
#include "tables/functions.h"

namespace mirtane {
namespace {

bool givesItself(SnapGives snap, std::int16_t stepNo)
{
    return snap == SnapGives::itself || (snap == SnapGives::itselfBeforeStep4 && stepNo < 4);
}

KeptLeg legBetween(const CanvasInput& s, Point from, Point to)
{
    return {from, to, directionByOrtho(from, to, s.orthoSector, s.orthoAngle)};
}

std::optional<KeptLeg> keptLeg(const Session& s, SnapGives snap)
{
    if (drawsConstructionLine(s)) {
        if (s.blankStep == 2) return legBetween(s, s.blankStart, s.blankEnd);
        return std::nullopt;
    }
    if (!orthoIsOn(s.controls) || s.stepNo <= 1 || givesItself(snap, s.stepNo)) return std::nullopt;
    return legBetween(s, s.pickFirst, s.pickLast);
}

Point* pointUnderWay(Session& s)
{
    if (drawsConstructionLine(s)) {
        if (s.blankStep == 1) return &s.blankStart;
        return s.blankStep == 2 ? &s.blankEnd : nullptr;
    }
    if (s.stepNo == 1) return &s.pickFirst;
    return s.stepNo > 1 ? &s.pickLast : nullptr;
}

} // namespace

bool drawsConstructionLine(const FunctionState& s)
{
    return functionRow(s.curFunc).clicks == Clicks::layConstructionLine;
}

std::optional<KeptLeg> legKeptByPoint(const Session& s)
{
    return keptLeg(s, functionRow(s.curFunc).snaps.atPoints);
}

std::optional<KeptLeg> legKeptByObject(const Session& s)
{
    return keptLeg(s, functionRow(s.curFunc).snaps.onObjects);
}

Direction directionOfLeg(const Session& s)
{
    if (!orthoIsOn(s.controls)) return directionOf(s.pickFirst, s.pickLast);
    return directionByOrtho(s.pickFirst, s.pickLast, s.orthoSector, s.orthoAngle);
}

void writeSnapped(Session& s, Point p)
{
    Point* const underWay = pointUnderWay(s);
    if (underWay == nullptr) return;
    *underWay = p;
    s.pointWasSnapped = true;
}

} // namespace mirtane
