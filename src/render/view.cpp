#include "render/view.h"

#include "geometry/fault.h"
#include "model/shown_prompt.h"
#include "render/redraw.h"
#include "render/text_painter.h"

#include <algorithm>

namespace mirtane {
namespace {

bool isEmpty(const EntityStore& store)
{
    return store.entCount < 2;
}

void show(Session& s, Canvas& pic1, const Scale& scale)
{
    pic1.setScale(scale);
    readViewLimits(s, pic1);
    redrawAll(s, pic1);
}

void endZoomWindow(Session& s)
{
    s.controls[ids::snapLabel].caption = s.savedPrompt;
    endPassingPrompt(s);
}

} // namespace

TextWidthOf textWidthOn(Canvas& pic1)
{
    return [&pic1](const EntityRecord& r) { return textWidthIn(pic1, r.t2, r.p2.x, r.t1); };
}

void zoomAll(Session& s, Canvas& pic1)
{
    if (isEmpty(s.store)) {
        pic1.refresh();
        return;
    }
    s.wholeViewFlag = 1;
    const Size outer = pic1.getOuterSize();
    Scale scale = pic1.getScale();
    fitScale(drawingBounds(s.store, textWidthOn(pic1)), quotient(outer.width, outer.height), scale);
    show(s, pic1, scale);
    pic1.refresh();
}

void zoomOut(Session& s, Canvas& pic1)
{
    if (isEmpty(s.store)) {
        pic1.refresh();
        return;
    }
    Scale scale = pic1.getScale();
    keep(scale.width, scale.width * 1.1);
    keep(scale.height, scale.height * 1.1);
    // The factor is applied a second time here, which is what makes the view drift to the upper left.
    keep(scale.left, scale.left - scale.width * 1.1 * 0.05);
    keep(scale.top, scale.top - scale.height * 1.1 * 0.05);
    show(s, pic1, scale);
    pic1.refresh();
}

void zoomAbout(Session& s, Canvas& pic1, Point fixed, double factor)
{
    const Scale old = pic1.getScale();
    Scale scale = old;
    const bool held = keep(scale.width, quotient(old.width, factor)) &&
                      keep(scale.height, quotient(old.height, factor)) &&
                      keep(scale.left, fixed.x - quotient(fixed.x - old.left, factor)) &&
                      keep(scale.top, fixed.y - quotient(fixed.y - old.top, factor));
    const bool visible = scale.left + scale.width > scale.left && scale.top + scale.height > scale.top;
    if (!held || !visible) return;
    s.wholeViewFlag = 0; // zoomed in, coordinates may lie far outside
    show(s, pic1, scale);
}

void pan(Session& s, Canvas& pic1, double widths, double heights)
{
    const Scale scale = pic1.getScale();
    panBy(s, pic1, widths * scale.width, heights * scale.height);
}

void panBy(Session& s, Canvas& pic1, double dx, double dy)
{
    Scale scale = pic1.getScale();
    keep(scale.left, scale.left + dx);
    keep(scale.top, scale.top + dy);
    show(s, pic1, scale);
}

void zoomWindowStart(Session& s, Canvas& pic1)
{
    // A second press must not take its own caption for the one to come back.
    if (!zoomWindowIsOn(s.controls)) s.savedPrompt = s.controls[ids::snapLabel].caption;
    s.windowStep = 0;
    s.wholeViewFlag = 0;
    s.controls[ids::snapLabel].caption = zoomWindowOn;
    showPassingPrompt(s, "Zoom Window", "(Place window around area.)");
    resetPicture(pic1);
    pic1.refresh();
}

void zoomWindowFinish(Session& s, Canvas& pic1)
{
    constexpr double leastWidth = 0.05; // world units
    s.windowStep = 0;
    sortWindowCorners(s);
    restorePicture(pic1);
    const double width = s.window2.x - s.window1.x;
    if (!(width >= leastWidth)) return;
    // The height of the box counts for nothing: the view hangs down from its top edge in the surface's shape.
    Scale scale = pic1.getScale();
    const double shape = quotient(scale.width, scale.height);
    scale.left = s.window1.x;
    scale.top = s.window1.y;
    keep(scale.width, width);
    keep(scale.height, quotient(width, shape));
    show(s, pic1, scale);
    endZoomWindow(s);
    pic1.refresh();
}

void zoomWindowCancel(Session& s, Canvas& pic1)
{
    s.windowStep = 0;
    endZoomWindow(s);
    restorePicture(pic1);
}

void drawWindowBox(const CanvasInput& s, Canvas& pic1)
{
    const Point a = s.window1;
    const Point b = s.window2;
    restorePicture(pic1);
    pic1.line(a.x, a.y, b.x, a.y);
    pic1.line(b.x, a.y, b.x, b.y);
    pic1.line(b.x, b.y, a.x, b.y);
    pic1.line(a.x, b.y, a.x, a.y);
}

void sortWindowCorners(CanvasInput& s)
{
    const Point a = s.window1;
    const Point b = s.window2;
    s.window1 = {std::min(a.x, b.x), std::min(a.y, b.y)};
    s.window2 = {std::max(a.x, b.x), std::max(a.y, b.y)};
}

} // namespace mirtane
