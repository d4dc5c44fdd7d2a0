#include "render/redraw.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/chords.h"
#include "render/dimension_painters.h"
#include "render/painters.h"
#include "render/text_painter.h"
#include "tables/functions.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

namespace mirtane {
namespace {

// A painter reads the slot's fields itself: nothing is copied that a kind does not use.
struct Slot {
    Canvas& pic1;
    const View& view;
    const EntityStore& store;
    std::size_t at;
    bool textInEdit = false; // it is shown by the edit's own preview
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
    const double longer = std::max(1.0, std::abs(double{slot.store.p3[slot.at].x}));
    float r = 0;
    keep(r, distance(slot.store.p1[slot.at], centre) * longer);
    return circleInView(slot.view, centre, r);
}

constexpr double heightOfCell = 4.0 / 3; // sizes of a text

// Whether not all of the points lie further than that beyond one side.
bool anyInView(const View& view, std::span<const Point> points, double beyond = 0)
{
    const auto all = [points](auto isOut) { return std::ranges::all_of(points, isOut); };
    return !all([&](Point p) { return p.x < view.viewLeft - beyond; }) &&
           !all([&](Point p) { return p.x > view.viewRight + beyond; }) &&
           !all([&](Point p) { return p.y < view.viewTop - beyond; }) &&
           !all([&](Point p) { return p.y > view.viewBottom + beyond; });
}

// Of a line of text that is no wider than that.
bool cellInView(const View& view, const Lettering& text, double width)
{
    const double angle = text.degrees * radiansPerDegree;
    const auto corner = [&](double along, double below) {
        Point p = text.at;
        keep(p.x, p.x + along * std::cos(angle) + below * std::sin(angle));
        keep(p.y, p.y - along * std::sin(angle) + below * std::cos(angle));
        return p;
    };
    if (!std::isfinite(text.at.x) || !std::isfinite(text.at.y)) return false;
    const double height = heightOfCell * text.size;
    const Point corners[] = {text.at, corner(width, 0), corner(0, height), corner(width, height)};
    return anyInView(view, corners);
}

// The radius is a fifth more than the line is wide, and knows nothing of how high it is. A short line, turned
// and justified as it may be, reaches as far as its cell is across.
bool textInView(const Slot& slot)
{
    constexpr double radiusOfWidth = 1.2;
    const EntityStore& e = slot.store;
    const float radius = e.rad[slot.at];
    float across = 0;
    keep(across, std::hypot(radius / radiusOfWidth, heightOfCell * e.p2[slot.at].x));
    return circleInView(slot.view, e.p1[slot.at], std::max(radius, across));
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

// Finds out whether a stroke may show.
class StrokesInView final : public StrokeSink {
  public:
    explicit StrokesInView(const View& view) : view_(view) {}

    void line(Point a, Point b) override { any = any || pieceInView(view_, a, b); }
    void arc(Point, Point, float, double, double) override { any = true; }

    bool any = false;

  private:
    const View& view_;
};

bool strokesInView(const Slot& slot)
{
    StrokesInView strokes(slot.view);
    dimensionStrokes(shapeAt(slot.store, slot.at), strokes);
    return strokes.any;
}

// Of the figures it is known only how many there are.
double widestOf(const Lettering& figures)
{
    constexpr double wideLetter = 0.9; // sizes, as capitals are
    return static_cast<double>(figures.words.size()) * wideLetter *
           figures.size; // as many as bytes at the most
}

// How far figures and arrows may reach beyond a dimension's points.
double reachOf(const Lettering& figures)
{
    constexpr double ofArrows = 3; // sizes, with the stub that they stand on
    return widestOf(figures) + std::max(ofArrows, heightOfCell) * figures.size;
}

// What hangs out beyond a linear dimension's five points is looked at only where these are out of view, but
// near it.
bool dimensionInView(const Slot& slot)
{
    const EntityStore& e = slot.store;
    const std::size_t i = slot.at;
    const Point points[] = {e.p1[i], e.p2[i], e.p3[i], e.p4[i], e.p5[i]};
    if (anyInView(slot.view, points)) return true;
    const Lettering figures = dimLetteringAt(e, i);
    if (!anyInView(slot.view, points, std::abs(reachOf(figures)))) return false;
    return cellInView(slot.view, figures, widestOf(figures)) || strokesInView(slot);
}

void drawTextSlot(const Slot& slot)
{
    if (!slot.textInEdit) paintText(slot.pic1, textLetteringAt(slot.store, slot.at));
}

void drawDimensionSlot(const Slot& slot)
{
    paintDimension(slot.pic1, slot.view, shapeAt(slot.store, slot.at));
    if (!slot.textInEdit) paintDimText(slot.pic1, dimLetteringAt(slot.store, slot.at));
}

// Selected ellipses are a shade yellower than other selected objects.
constexpr std::int32_t selectedEllipse = 0x19FFFF;

struct KindRow {
    bool (*inView)(const Slot&);
    void (*draw)(const Slot&);
    bool hasLineStyle;
    std::int32_t selectedColor;
};

// By kind. What stands in the style field of a text or a dimension is no line style.
constexpr KindRow kindRows[] = {
    {lineInView, drawLineSlot, true, white},
    {roundInView, drawCircleSlot, true, white},
    {roundInView, drawArcSlot, true, white},
    {ellipseInView, drawEllipseSlot, true, selectedEllipse},
    {alwaysInView, drawPointSlot, true, white},
    {textInView, drawTextSlot, false, white},
    {dimensionInView, drawDimensionSlot, false, white},
    {alwaysInView, drawDimensionSlot, false, white},
    {alwaysInView, drawDimensionSlot, false, white},
    {alwaysInView, drawDimensionSlot, false, white},
};

static_assert(std::size(kindRows) == drawnKinds);

void drawSlot(const Slot& slot)
{
    const std::size_t place = placeOf(slot.store.kind[slot.at]);
    if (place >= std::size(kindRows)) return;
    const KindRow& row = kindRows[place];
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
    const bool editsText = functionRow(s.curFunc).editsText;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (!s.store.isShown(i)) continue;
        const bool selected = s.store.stat[EntityStore::at(i)] == Stat::sel;
        if (hideSelection && selected) continue;
        drawSlot({pic1, s, s.store, EntityStore::at(i), editsText && selected});
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
