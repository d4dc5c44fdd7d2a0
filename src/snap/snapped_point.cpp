#include "snap/snapped_point.h"

#include <algorithm>
#include <span>

namespace mirtane {
namespace {

constexpr std::string_view takePoint[] = {
    "Ortho Dimension",      "3pt. Circle", "3pt. Arc",     "Curve",  "Radial Dimension", "Angular Dimension",
    "Place Associate",      "Break",       "Measure Area", "Leader", "Create Associate", "Ortho Angle Match",
    "Create Multiple Lines"};

constexpr std::string_view takeObjectPoint[] = {"3pt. Arc",
                                                "3pt. Circle",
                                                "Curve",
                                                "Point",
                                                "Ortho Dimension",
                                                "Radial Dimension",
                                                "Angular Dimension",
                                                "Leader",
                                                "Place Text",
                                                "Break",
                                                "Create Associate",
                                                "Place Associate",
                                                "Create Multiple Lines"};

// Up to its third click Stretch places its window and its reference point.
constexpr std::int16_t stretchMoves = 4;

std::optional<Leg> keptLeg(const Session& s, std::span<const std::string_view> exempt)
{
    if (drawsConstructionLine(s)) {
        if (s.blankStep == 2) return Leg{s.blankStart, s.blankEnd};
        return std::nullopt;
    }
    const bool ortho = s.controls["freecurs"_c].caption != "Ortho/Off";
    const bool isExempt = std::ranges::find(exempt, s.curFunc) != exempt.end() ||
                          (s.curFunc == "Stretch" && s.stepNo < stretchMoves);
    if (!ortho || s.stepNo <= 1 || isExempt) return std::nullopt;
    return Leg{s.pickFirst, s.pickLast};
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

bool drawsConstructionLine(const Session& s)
{
    return s.curFunc == "Blank Line";
}

std::optional<Leg> legKeptByPoint(const Session& s)
{
    return keptLeg(s, takePoint);
}

std::optional<Leg> legKeptByObject(const Session& s)
{
    return keptLeg(s, takeObjectPoint);
}

void writeSnapped(Session& s, Point p)
{
    Point* const underWay = pointUnderWay(s);
    if (underWay == nullptr) return;
    *underWay = p;
    s.pointWasSnapped = true;
}

} // namespace mirtane
