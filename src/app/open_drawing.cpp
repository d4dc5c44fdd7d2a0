#include "app/open_drawing.h"

#include "app/attribute_controls.h"
#include "files/drawing_file.h"
#include "geometry/fault.h"
#include "model/insertion.h"
#include "render/redraw.h"
#include "render/view.h"

namespace mirtane {
namespace {

void fitView(Session& s, Canvas& pic1)
{
    const Size outer = pic1.getOuterSize();
    Scale scale = pic1.getScale();
    const IntegerBox box = drawingBounds(s.store, textWidthOn(pic1));
    if (fitScaleOrMove(box, quotient(outer.width, outer.height), scale)) pic1.setScale(scale);
    readViewLimits(s, pic1);
}

} // namespace

void openDrawing(App& app, const Bytes& file)
{
    Session& s = app.s;
    replaceDrawing(s, file);
    fitView(s, app.pic1);
    showLineSettings(s);
    showCheckMarks(s);
    app.pic1.setFontName(s.textFont);
    setTextAnchors(s.store, textWidthOn(app.pic1));
    s.controls["Label3"_c].caption = "Set Working Layer";
    showLayers(s);
    redrawAll(s, app.pic1);
    updateGauge(s);
    fixUpLinesAndCircles(s.store);
    s.stepNo = 0;
    s.controls.focus = "pic1"_c;
}

} // namespace mirtane
