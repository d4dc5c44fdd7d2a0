#include "app/files/open_drawing.h"

#include "app/menus/attribute_controls.h"
#include "dxf/dxf_reader.h"
#include "files/drawing_file.h"
#include "geometry/fault.h"
#include "model/insertion.h"
#include "render/redraw.h"
#include "render/view.h"
#include "tables/list_modes.h"
#include "text/numbers.h"

#include <algorithm>

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

void showTakenAttributes(App& app)
{
    showLineSettings(app.s);
    showCheckMarks(app.s);
    app.pic1.setFontName(app.s.textFont);
}

void showTakenLayers(Session& s)
{
    s.controls[ids::listMode].caption = list_mode::setWorkingLayer;
    showLayers(s);
}

void showTakenDxf(App& app)
{
    Session& s = app.s;
    s.stepNo = 0;
    redrawAll(s,
              app.pic1); // an empty drawing has nothing to zoom to, and the old one must go from the screen
    zoomAll(s, app.pic1);
    showTakenAttributes(app);
    showTakenLayers(s);
    finishDxf(s);
    updateGauge(s);
    s.controls.focus = ids::drawing;
}

std::string withoutRoomText(const std::string& file, std::int32_t objects, const std::string& name)
{
    std::string sentence = file + ": there was no room for " + withThousands(objects) +
                           (objects == 1 ? " object." : " objects.");
    if (!name.empty()) sentence += " The drawing is named " + name + ", so that the file stays whole.";
    return sentence;
}

} // namespace

Untaken openDrawing(App& app, const Bytes& file)
{
    Session& s = app.s;
    s.notices.settleOfDrawing();
    s.openedDxf.reset();
    const Untaken untaken = replaceDrawing(s, file);
    fitView(s, app.pic1);
    showTakenAttributes(app);
    setTextAnchors(s.store, textWidthOn(app.pic1));
    showTakenLayers(s);
    redrawAll(s, app.pic1);
    updateGauge(s);
    fixUpLinesAndCircles(s.store);
    s.stepNo = 0;
    s.controls.focus = ids::drawing;
    return untaken;
}

std::int32_t openDxf(App& app, const Bytes& file)
{
    Session& s = app.s;
    s.notices.settleOfDrawing();
    s.openedDxf.reset();
    forgetOwners(s.store);
    readDxf(s, file, textWidthOn(app.pic1));
    const std::int32_t leftOut = std::max(0, s.store.entCount - EntityStore::slotCount);
    showTakenDxf(app);
    return leftOut;
}

FullReport takeDxfInFull(App& app, const FullReading& reading)
{
    Session& s = app.s;
    s.notices.settleOfDrawing();
    s.openedDxf.reset();
    forgetOwners(s.store);
    const TextWidthOf widthOf = textWidthOn(app.pic1);
    const TakenReading taken = takeReading(s, reading, widthOf);
    setTextAnchors(s.store, widthOf);
    showTakenDxf(app);
    return reportOf(reading, taken);
}

void tellUntaken(Notices& notices, const std::string& file, const Untaken& untaken, const std::string& name)
{
    std::string sentence;
    if (untaken.withoutRoom > 0) sentence = withoutRoomText(file, untaken.withoutRoom, name);
    if (untaken.isCut)
        sentence += (sentence.empty() ? "" : " ") + file + " is cut off: the end of it is missing.";
    notices.post({Matter::leftOut, sentence, {{"Close", Offer::goOn}}});
}

} // namespace mirtane
