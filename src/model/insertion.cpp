#include "model/insertion.h"

#include "model/missing.h"
#include "model/room.h"
#include "text/numbers.h"

namespace mirtane {
namespace {

constexpr double slotsPerPercent = 600;       // of 60,000 slots
constexpr std::int32_t warnFromCount = 59900; // entCount

template <class Fill> void fillNextSlot(Session& s, Kind kind, Fill fill)
{
    const std::int32_t slot = s.store.entCount;
    EntityRecord r = s.store.record(slot);
    r.layer = s.workLayer;
    r.color = s.curColor;
    r.style = s.curStyle;
    r.kind = kind;
    fill(r);
    s.store.setRecord(slot, r);
    s.store.setStat(slot, Stat::on);
    updateGauge(s);
}

void fillWords(const Session& s, EntityRecord& r)
{
    r.style = 0;
    r.t1 = s.controls[ids::workText].text;
    r.t2 = s.textFont;
}

void fillDimensionStyle(const Session& s, EntityRecord& r)
{
    fillWords(s, r);
    r.s1 = s.dimStyle;
    r.s2 = s.arrowSize;
    r.a1 = 0;
    r.a2 = s.arrowSize;
}

} // namespace

void addLine(Session& s)
{
    fillNextSlot(s, Kind::line, [&](EntityRecord& r) {
        r.p1 = s.ptA;
        r.p2 = s.ptB;
    });
}

void addCircle(Session& s)
{
    fillNextSlot(s, Kind::circle, [&](EntityRecord& r) {
        r.p1 = s.ptF;
        r.rad = s.workRadius;
    });
}

void addArc(Session& s)
{
    fillNextSlot(s, Kind::arc, [&](EntityRecord& r) {
        r.p1 = s.ptA;
        r.p2 = s.ptB;
        r.p3 = s.ptC;
        r.p4 = s.ptD;
        r.rad = s.workRadius;
        r.a1 = s.arcStart;
        r.a2 = s.arcEnd;
    });
}

void addEllipse(Session& s)
{
    fillNextSlot(s, Kind::ellipse, [&](EntityRecord& r) {
        r.p1 = s.ptB;
        r.p2 = s.ptC;
        r.p3.x = s.ptF.x;
    });
}

void addPoint(Session& s)
{
    fillNextSlot(s, Kind::point, [&](EntityRecord& r) { r.p1 = s.ptA; });
}

void addText(Session& s, float textWidth)
{
    // Wider than the text, as it serves as a radius for culling text at any rotation.
    constexpr float clippingFactor = 1.2F;
    fillNextSlot(s, Kind::text, [&](EntityRecord& r) {
        fillWords(s, r);
        r.p1 = s.ptA;
        r.p2 = {s.textSize, static_cast<float>(s.textJust)}; // 0, 1 or 2 in a coordinate field
        r.p3.x = s.controls[ids::underlinedText].checked ? 1.0F : 0.0F;
        r.p4 = s.pickFirst;
        r.rad = textWidth * clippingFactor;
        r.a1 = s.textRotation;
    });
}

void addLinearDim(Session& s)
{
    fillNextSlot(s, Kind::linearDimension, [&](EntityRecord& r) {
        fillDimensionStyle(s, r);
        r.p1 = s.ptE;
        r.p2 = s.ptF;
        r.p3 = s.ptG;
        r.p4 = s.ptH;
        r.p5 = s.ptA;
        r.a1 = s.dimAngle;
    });
}

void addRadialDim(Session& s)
{
    fillNextSlot(s, Kind::radialDimension, [&](EntityRecord& r) {
        fillDimensionStyle(s, r);
        r.p1 = s.ptA;
        r.p2 = s.ptB;
        r.p3 = s.ptE;
        r.p4 = s.ptC;
        r.p5 = s.ptD;
    });
}

void addLeader(Session& s)
{
    fillNextSlot(s, Kind::leader, [&](EntityRecord& r) {
        fillDimensionStyle(s, r);
        r.p1 = s.ptA;
        r.p2 = s.ptB;
        r.p3 = s.ptC;
        r.p5 = s.ptD;
    });
}

// This kind is crossed: both sizes hold the arrow size, and the arrow style stands in the line style's field.
void addAngularDim(Session& s)
{
    fillNextSlot(s, Kind::angularDimension, [&](EntityRecord& r) {
        fillWords(s, r);
        r.style = s.dimStyle;
        r.p1 = s.ptA;
        r.p2 = s.ptG;
        r.p3 = s.ptH;
        r.p4 = s.ptC;
        r.p5 = s.ptB;
        r.s1 = s.arrowSize;
        r.s2 = s.arrowSize;
        r.a1 = s.arcStart;
        r.a2 = s.arcEnd;
        r.a3 = s.dimAngle;
        r.rad = s.workRadius;
    });
}

void commitInGroup(Session& s)
{
    const std::int32_t slot = s.store.entCount;
    logFlip(s.log, slot, Stat::on);
    if (EntityStore::holds(slot))
        markUsed(s.layerTable, s.store.layer[EntityStore::at(slot)]);
    else
        tellNotStored(s);
    ++s.store.entCount;
}

void commitSlot(Session& s)
{
    commitInGroup(s);
    endGroup(s.log);
}

void updateGauge(Session& s)
{
    std::string percent = formatNumber(s.store.entCount / slotsPerPercent, NumberFormat::paddedThousandths);
    // What is missing says more than the warning that it may come to that.
    if (s.store.entCount >= warnFromCount && !tellsMissing(s.controls) && !tellsNoRoom(s.controls)) {
        setText(s.controls[ids::entry], "You are out of memory! Save and exit now.");
    }
    if (s.numComma == 1) percent = withComma(percent);
    setText(s.controls[ids::memoryGauge], percent);
}

} // namespace mirtane
