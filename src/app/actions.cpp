#include "app/actions.h"

#include "app/dialogs/filter_dialog.h"
#include "app/dialogs/help.h"
#include "app/dialogs/print_dialog.h"
#include "app/drawing/construction_line.h"
#include "app/drawing/dispatch.h"
#include "app/drawing/endings.h"
#include "app/drawing/selection.h"
#include "app/drawing/starters.h"
#include "app/files/file_dialog.h"
#include "app/menus/attribute_controls.h"
#include "app/menus/edit_list.h"
#include "app/menus/file_menus.h"
#include "app/menus/layer_menus.h"
#include "app/menus/library_menus.h"
#include "app/menus/text_menus.h"
#include "app/notices.h"
#include "app/typing/fields.h"
#include "commands/live_text.h"
#include "commands/prompt.h"
#include "model/attribute_rows.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"
#include "tables/functions.h"

namespace mirtane {
namespace {

template <void (*zoom)(Session&, Canvas&)> void zoomAction(App& app, ControlId)
{
    zoom(app.s, app.pic1);
    repaintTextPreview(app.s, app.pic1);
}

void startZoomWindow(App& app, ControlId)
{
    beginWindowAnew(app.s); // so that the prompt that comes back is true
    zoomWindowStart(app.s, app.pic1);
    repaintTextPreview(app.s, app.pic1);
}

template <Flipped (*flip)(EntityStore&, UndoLog&)> void undoAction(App& app, ControlId)
{
    const Flipped flipped = flip(app.s.store, app.s.log);
    if (flipped == Flipped::nothing) return;
    app.s.controls.focus = ids::drawing;
    if (flipped == Flipped::tooLongAgo) return setText(app.s.controls[ids::entry], "Too long ago to undo");
    redrawAll(app.s, app.pic1);
    repaintTextPreview(app.s, app.pic1);
}

void toggleOrtho(App& app, ControlId freecurs)
{
    std::string& caption = app.s.controls[freecurs].caption;
    caption = caption == "Ortho/On" ? "Ortho/Off" : "Ortho/On";
    app.s.orthoCaption = caption;
    app.s.controls.focus = ids::drawing;
}

void snapButton(App& app, ControlId button)
{
    pressSnapButton(app.s, app.pic1, button);
}

// Boxes that only display take no click.
void backToDrawing(App& app, ControlId)
{
    app.s.controls.focus = ids::drawing;
}

struct ActionRow {
    ControlId control;
    Action action;
};

constexpr ActionRow actionRows[] = {
    {ids::openDrawing, openFileFlow},
    {ids::closeDrawing, closeDrawing},
    {ids::saveDrawing, openFileFlow},
    {ids::saveSelected, openFileFlow},
    {ids::openDxf, openFileFlow},
    {ids::saveDxf, openFileFlow},
    {ids::openAssociates, openFileFlow},
    {ids::openHatches, openFileFlow},
    {ids::openMultipleLines, openFileFlow},
    {ids::exitProgram, exitProgram},
    {ids::displayHelp, showHelp},
    {ids::printerSetup, setUpPrinter},
    {ids::print, askForPrintScale},
    {ids::printScale, emptyPrintScale},
    {ids::printConfirm, confirmPrint},
    {ids::printCancel, cancelPrint},
    {ids::undo, undoAction<undo>},
    {ids::redo, undoAction<redo>},
    {ids::zoomAll, zoomAction<zoomAll>},
    {ids::zoomWindow, startZoomWindow},
    {ids::zoomOut, zoomAction<zoomOut>},
    {ids::blankToggle, toggleConstructionLine},
    {ids::orthoToggle, toggleOrtho},
    {ids::selectLast, selectLastObjects},
    {ids::selectWindowFiltered, startSelection},
    {ids::selectWindow, startSelection},
    {ids::selectObjects, startSelection},
    {ids::snapToPoint, snapButton},
    {ids::snapToObject, snapButton},
    {ids::snapToIntersection, snapButton},
    {ids::snapToPercentage, snapButton},
    {ids::snapPerpendicular, snapButton},
    {ids::snapTangent, snapButton},
    {ids::snapToMidpoint, snapButton},
    {ids::filter, showFilterDialog},
    {ids::filterReset, resetFilter},
    {ids::filterAccept, acceptFilter},
    {ids::filterCancel, cancelFilter},
    {ids::filterLine, takeFilterKind},
    {ids::filterCircle, takeFilterKind},
    {ids::filterArc, takeFilterKind},
    {ids::filterEllipse, takeFilterKind},
    {ids::filterPoint, takeFilterKind},
    {ids::filterText, takeFilterKind},
    {ids::filterDimension, takeFilterKind},
    {ids::filterBlue, takeFilterColor},
    {ids::filterGreen, takeFilterColor},
    {ids::filterAqua, takeFilterColor},
    {ids::filterRed, takeFilterColor},
    {ids::filterPurple, takeFilterColor},
    {ids::filterBrown, takeFilterColor},
    {ids::filterYellow, takeFilterColor},
    {ids::filterWhite, takeFilterColor},
    {ids::filterSolid, takeFilterStyle},
    {ids::filterDash, takeFilterStyle},
    {ids::filterDot, takeFilterStyle},
    {ids::filterDashDot, takeFilterStyle},
    {ids::filterDashDotDot, takeFilterStyle},
    {ids::layerSetting, showAllInBox},
    {ids::objectSetting, showAllInBox},
    {ids::colorSetting, showAllInBox},
    {ids::styleSetting, showAllInBox},
    {ids::editBreak, startEditFromButton},
    {ids::editTrim, startEditFromButton},
    {ids::editStretch, startEditFromButton},
    {ids::editCopy, startEditFromButton},
    {ids::editMirrorCopy, startEditFromButton},
    {ids::editRadialCopy, startEditFromButton},
    {ids::editRotate, startEditFromButton},
    {ids::editMove, startEditFromButton},
    {ids::editScale, startEditFromButton},
    {ids::editChange, startEditFromButton},
    {ids::editFillet, startEditFromButton},
    {ids::deselectAll, deselectFromButton},
    {ids::editConcentricCopy, startEditFromButton},
    {ids::editDelete, startEditFromButton},
    {ids::editsCancel, closeEditsForm},
    {ids::setWorkingLayer, showLayerList},
    {ids::hideDisplayLayer, showLayerList},
    {ids::nameLayer, showLayerList},
    {ids::unnameLayer, showLayerList},
    {ids::loadLayer, showLayerList},
    {ids::saveLayer, showLayerList},
    {ids::addLayer, addLayerMenu},
    {ids::hideAllLayers, hideAllLayers},
    {ids::displayAllLayers, displayAllLayers},
    {ids::drawMultipleLines, listLibrary},
    {ids::removeMultipleLines, listLibrary},
    {ids::saveMultipleLines, listLibrary},
    {ids::placeHatch, listLibrary},
    {ids::removeHatch, listLibrary},
    {ids::saveHatch, listLibrary},
    {ids::placeAssociate, listLibrary},
    {ids::removeAssociate, listLibrary},
    {ids::saveAssociate, listLibrary},
    {ids::createMultipleLines, createInLibrary},
    {ids::createHatch, createInLibrary},
    {ids::createAssociate, createInLibrary},
    {ids::hatchScale, startWhenIdle},
    {ids::reverseAssociate, toggleCheckMark},
    {ids::textSize, startWhenIdle},
    {ids::arrowSize, startWhenIdle},
    {ids::moveDimensionText, startWhenIdle},
    {ids::selectFont, listFonts},
    {ids::underlinedText, toggleCheckMark},
    {ids::changeSelectedFont, listFontsForSelection},
    {ids::bluePen, takeLineColor},
    {ids::greenPen, takeLineColor},
    {ids::aquaPen, takeLineColor},
    {ids::redPen, takeLineColor},
    {ids::purplePen, takeLineColor},
    {ids::brownPen, takeLineColor},
    {ids::yellowPen, takeLineColor},
    {ids::whitePen, takeLineColor},
    {ids::solidLine, takeLineStyle},
    {ids::dashedLine, takeLineStyle},
    {ids::dottedLine, takeLineStyle},
    {ids::dashDotLine, takeLineStyle},
    {ids::dashDotDotLine, takeLineStyle},
    {ids::orthoAngle, fieldClicked},
    {ids::textRotation, fieldClicked},
    {ids::hatchRotation, fieldClicked},
    {ids::associateRotation, fieldClicked},
    {ids::snapPercentage, fieldClicked},
    {ids::layerCombo, fieldClicked},
    {ids::entry, backToDrawing},
    {ids::memoryGauge, backToDrawing},
    {ids::lineSettings, backToDrawing},
    {ids::fileConfirm, confirmFileDialog},
    {ids::fileDismiss, dismissFileDialog},
    {ids::noticeFirst, takeOffer},
    {ids::noticeSecond, takeOffer},
};

bool startsAtOnce(ControlId id)
{
    const FunctionRow* row = functionStartedBy(id);
    return row != nullptr && row->starts == Starts::atOnce;
}

} // namespace

Action actionOf(ControlId id)
{
    for (const ActionRow& row : actionRows) {
        if (row.control == id) return row.action;
    }
    if (isChoice(id)) return takeAttribute;
    return startsAtOnce(id) ? startFromControl : nullptr;
}

bool isClickable(ControlId id)
{
    switch (id.row().kind) {
    case ControlKind::button:
    case ControlKind::toggle:
    case ControlKind::option:
    case ControlKind::entry:
    case ControlKind::checkedEntry:
        return true;
    default:
        return false;
    }
}

void greyWhatHasNoRoutine(Controls& controls)
{
    for (const ControlRow& row : controlTable) {
        if (isClickable(row.id)) controls[row.id].enabled = actionOf(row.id) != nullptr;
    }
}

} // namespace mirtane
