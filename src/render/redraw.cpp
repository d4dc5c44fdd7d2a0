#include "render/redraw.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/chords.h"
#include "render/painters.h"

#include <iterator>

namespace mirtane {
namespace {

// A painter reads the slot's fields itself: nothing is copied that a kind does not use.
struct Slot {
    Canvas& pic1;
    const View& view;
    const EntityStore& store;
    std::size_t at;
};

bool lineInView(const Slot& slot)
{
    return pieceInView(slot.view, slot.store.p1[slot.at], slot.store.p2[slot.at]);
}

bool roundInView(const Slot& slot)
{
    return circleInView(slot.view, slot.store.p1[slot.at], slot.store.rad[slot.at]);
}

bool ellipseInView(const Slot& slot)
{
    const Point centre = slot.store.p2[slot.at];
    float r = 0;
    keep(r, distance(slot.store.p1[slot.at], centre));
    return circleInView(slot.view, centre, r);
}

bool alwaysInView(const Slot&)
{
    return true;
}

// With the whole drawing in view no coordinate lies far outside, and lines and circles go straight to the
// surface.
void drawLineSlot(const Slot& slot)
{
    const Point a = slot.store.p1[slot.at];
    const Point b = slot.store.p2[slot.at];
    if (slot.view.wholeViewFlag == 1) {
        slot.pic1.line(a.x, a.y, b.x, b.y);
    } else {
        paintLine(slot.pic1, slot.view, a, b);
    }
}

void drawCircleSlot(const Slot& slot)
{
    const Point centre = slot.store.p1[slot.at];
    const float r = slot.store.rad[slot.at];
    if (slot.view.wholeViewFlag == 1) {
        slot.pic1.circle(centre.x, centre.y, r);
    } else {
        paintCircle(slot.pic1, slot.view, centre, r);
    }
}

void drawArcSlot(const Slot& slot)
{
    const EntityStore& e = slot.store;
    const std::size_t i = slot.at;
    paintArc(slot.pic1, slot.view, e.p1[i], e.p2[i], e.rad[i], e.a1[i], e.a2[i]);
}

void drawEllipseSlot(const Slot& slot)
{
    const EntityStore& e = slot.store;
    const std::size_t i = slot.at;
    paintEllipse(slot.pic1, slot.view, e.p1[i], e.p2[i], e.p3[i].x);
}

void drawPointSlot(const Slot& slot)
{
    const Point p = slot.store.p1[slot.at];
    slot.pic1.point(p.x, p.y);
}

// Selected ellipses are a shade yellower than other selected objects.
constexpr std::int32_t selectedEllipse = 0x19FFFF;

struct KindRow {
    bool (*inView)(const Slot&);
    void (*draw)(const Slot&);
    bool hasLineStyle;
    std::int32_t selectedColor;
};

// By kind; text and dimensions have no painter yet.
constexpr KindRow kindRows[] = {
    {nullptr, nullptr, false, white},
    {lineInView, drawLineSlot, true, white},
    {roundInView, drawCircleSlot, true, white},
    {roundInView, drawArcSlot, true, white},
    {ellipseInView, drawEllipseSlot, true, selectedEllipse},
    {alwaysInView, drawPointSlot, true, white},
};

void drawSlot(const Slot& slot)
{
    const auto kind = static_cast<std::size_t>(slot.store.kind[slot.at]); // a negative kind comes out huge
    if (kind >= std::size(kindRows) || kindRows[kind].draw == nullptr) return;
    const KindRow& row = kindRows[kind];
    if (!row.inView(slot)) return;
    if (slot.store.stat[slot.at] == Stat::sel) {
        slot.pic1.setColor(row.selectedColor);
        slot.pic1.setStyle(pen::dot);
    } else {
        slot.pic1.setColor(slot.store.color[slot.at]);
        slot.pic1.setStyle(row.hasLineStyle ? slot.store.style[slot.at] : pen::solid);
    }
    row.draw(slot);
}

} // namespace

void computePixelMapping(View& view, const Canvas& pic1)
{
    const Scale scale = pic1.getScale();
    const Size pixels = pic1.getPixelSize();
    view.pixelOriginX = scale.left;
    view.pixelOriginY = scale.top;
    keep(view.pixelPerUnitX, quotient(pixels.width, scale.width));
    keep(view.pixelPerUnitY, quotient(pixels.height, scale.height));
}

void readViewLimits(View& view, const Canvas& pic1)
{
    const Scale scale = pic1.getScale();
    view.viewLeft = scale.left;
    view.viewTop = scale.top;
    view.viewRight = scale.left + scale.width;
    view.viewBottom = scale.top + scale.height;
}

void setRubberBandPen(Canvas& pic1)
{
    pic1.setColor(white);
    pic1.setStyle(pen::dot);
}

void restorePicture(Canvas& pic1)
{
    pic1.restoreSnapshot();
}

void resetPicture(Canvas& pic1)
{
    pic1.clear();
    pic1.restoreSnapshot();
}

void redrawAll(Session& s, Canvas& pic1)
{
    computePixelMapping(s, pic1);
    pic1.clear();
    const bool hideSelection = s.workAngle == selectionFollowsPointer;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (!s.store.isShown(i)) continue;
        if (hideSelection && s.store.stat[EntityStore::at(i)] == Stat::sel) continue;
        drawSlot({pic1, s, s.store, EntityStore::at(i)});
    }
    pic1.snapshot();
    setRubberBandPen(pic1);
}

void deselectAll(Session& s, Canvas& pic1)
{
    changeStat(s.store, Stat::sel, Stat::on);
    redrawAll(s, pic1);
    pic1.refresh();
}

} // namespace mirtane
