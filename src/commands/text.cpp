#include "commands/text.h"

#include "commands/prompt.h"
#include "commands/typed_text.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/insertion.h"
#include "render/redraw.h"
#include "render/text_painter.h"

#include <cmath>

namespace mirtane {
namespace {

constexpr std::int16_t justifiedRight = 1;
constexpr std::int16_t justifiedCentre = 2;

// Where the line as typed starts, and its width.
struct PlacedLine {
    Point start;
    float width;
};

PlacedLine placeTypedLine(Session& s, Canvas& pic1)
{
    const float width = textWidthIn(pic1, s.textFont, s.textSize, s.controls[ids::workText].text);
    return {justifiedStart(s.pickFirst, width, s.textRotation, s.textJust), width};
}

void paintTypedLine(const Session& s, Canvas& pic1, Point start)
{
    paintText(pic1, {start, s.textSize, s.textRotation, s.controls[ids::underlinedText].checked, s.textFont,
                     s.controls[ids::workText].text});
}

void takeLocation(ScratchPoints& s, Point at)
{
    s.pickFirst = at;
    s.ptA = at;
}

// From there on the band carries it along.
void enterLocation(ScratchPoints& s, Point at)
{
    takeLocation(s, at);
    s.ptB = at;
}

void commitTypedLine(Session& s, Canvas& pic1)
{
    const Point entered = s.pickFirst;
    s.ptA = entered;
    const PlacedLine line = placeTypedLine(s, pic1);
    s.pickFirst = line.start;
    pic1.setColor(s.curColor);
    pic1.setStyle(pen::solid);
    paintTypedLine(s, pic1, line.start);
    addText(s, line.width);
    commitSlot(s);
    pic1.snapshot();
    setRubberBandPen(pic1);
    enterLocation(s, nextLine(entered, s.textSize, s.textRotation));
}

} // namespace

void placeTextStep(Session& s, Canvas& pic1)
{
    enterLocation(s, s.stepNo > 1 ? s.pickLast : s.pickFirst);
    if (s.stepNo > 2) s.stepNo = 1;
    setPrompt(s, pic1);
}

void placeTextBand(Session& s, Canvas& pic1)
{
    if (s.stepNo != 2) return;
    takeLocation(s, s.pickLast);
    restorePicture(pic1);
    repaintPreview(s, pic1, placeTextPreview);
}

void placeTextPreview(Session& s, Canvas& pic1)
{
    paintTypedLine(s, pic1, placeTypedLine(s, pic1).start);
}

void placeTextLine(Session& s, Canvas& pic1)
{
    if (s.textLength > 0) {
        setText(s.controls[ids::workText], typedText(s));
        countStep(s);
        setPrompt(s, pic1);
        commitTypedLine(s, pic1);
        s.controls.focus = ids::drawing;
    }
    clearTypedText(s);
}

Point justifiedStart(Point entered, float width, double rotation, std::int16_t justification)
{
    double back = 0;
    if (justification == justifiedRight) back = width;
    if (justification == justifiedCentre) back = width / 2.0;
    const double a = rotation * radiansPerDegree;
    Point start = entered;
    keep(start.x, entered.x - back * std::cos(a));
    keep(start.y, entered.y + back * std::sin(a));
    return start;
}

Point nextLine(Point p, float size, double rotation)
{
    if (!(rotation >= 0 && rotation < 360)) return p;
    constexpr double lineSpacing = 1.1; // of the size
    const double s = size * lineSpacing;
    // A quarter turn back from the baseline, exact along the axes.
    double right = 0;
    double down = 0;
    if (rotation == 0) {
        down = s;
    } else if (rotation == 90) {
        right = s;
    } else if (rotation == 180) {
        down = -s;
    } else if (rotation == 270) {
        right = -s;
    } else {
        const double a = rotation * radiansPerDegree;
        right = s * std::sin(a);
        down = s * std::cos(a);
    }
    Point next = p;
    keep(next.x, p.x + right);
    keep(next.y, p.y + down);
    return next;
}

} // namespace mirtane
