#include "app/actions.h"

#include "app/attribute_controls.h"
#include "app/construction_line.h"
#include "app/dispatch.h"
#include "app/edit_list.h"
#include "app/endings.h"
#include "app/fields.h"
#include "app/file_dialog.h"
#include "app/file_menus.h"
#include "app/filter_dialog.h"
#include "app/help.h"
#include "app/layer_menus.h"
#include "app/library_menus.h"
#include "app/print_dialog.h"
#include "app/selection.h"
#include "app/starters.h"
#include "app/text_menus.h"
#include "commands/live_text.h"
#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"

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
}

template <bool (*flip)(EntityStore&, UndoLog&)> void undoAction(App& app, ControlId)
{
    if (!flip(app.s.store, app.s.log)) return;
    redrawAll(app.s, app.pic1);
    app.s.controls.focus = "pic1"_c;
}

void toggleOrtho(App& app, ControlId freecurs)
{
    std::string& caption = app.s.controls[freecurs].caption;
    caption = caption == "Ortho/On" ? "Ortho/Off" : "Ortho/On";
    app.s.orthoCaption = caption;
    app.s.controls.focus = "pic1"_c;
}

void snapButton(App& app, ControlId button)
{
    pressSnapButton(app.s, app.pic1, button);
}

// Boxes that only display take no click.
void backToDrawing(App& app, ControlId)
{
    app.s.controls.focus = "pic1"_c;
}

struct ActionRow {
    ControlId control;
    Action action;
};

constexpr ActionRow actionRows[] = {
    {"fil4"_c, openFileFlow},
    {"fil5"_c, closeDrawing},
    {"fil7"_c, openFileFlow},
    {"fil9"_c, openFileFlow},
    {"dd2"_c, openFileFlow},
    {"dd4"_c, openFileFlow},
    {"ass10"_c, openFileFlow},
    {"ht8"_c, openFileFlow},
    {"ml6"_c, openFileFlow},
    {"fil14"_c, exitProgram},
    {"hlp3"_c, showHelp},
    {"prtstp"_c, setUpPrinter},
    {"picset"_c, askForPrintScale},
    {"frmprintset.Text1"_c, emptyPrintScale},
    {"frmprintset.Command1"_c, confirmPrint},
    {"frmprintset.Command2"_c, cancelPrint},
    {"undu"_c, undoAction<undo>},
    {"redu"_c, undoAction<redo>},
    {"Command42"_c, zoomAction<zoomAll>},
    {"Command43"_c, startZoomWindow},
    {"Command44"_c, zoomAction<zoomOut>},
    {"blank"_c, toggleConstructionLine},
    {"freecurs"_c, toggleOrtho},
    {"Command17"_c, selectLastObjects},
    {"Command18"_c, startSelection},
    {"Command19"_c, startSelection},
    {"Command20"_c, startSelection},
    {"Command35"_c, snapButton},
    {"Command36"_c, snapButton},
    {"Command37"_c, snapButton},
    {"Command38"_c, snapButton},
    {"Command39"_c, snapButton},
    {"Command40"_c, snapButton},
    {"Command21"_c, snapButton},
    {"flt1"_c, showFilterDialog},
    {"frmfilter.rst1"_c, resetFilter},
    {"frmfilter.Command1"_c, acceptFilter},
    {"frmfilter.Command2"_c, cancelFilter},
    {"frmfilter.ob5"_c, takeFilterKind},
    {"frmfilter.ob6"_c, takeFilterKind},
    {"frmfilter.ob7"_c, takeFilterKind},
    {"frmfilter.ob8"_c, takeFilterKind},
    {"frmfilter.ob9"_c, takeFilterKind},
    {"frmfilter.ob10"_c, takeFilterKind},
    {"frmfilter.ob11"_c, takeFilterKind},
    {"frmfilter.cu5"_c, takeFilterColor},
    {"frmfilter.cu6"_c, takeFilterColor},
    {"frmfilter.cu7"_c, takeFilterColor},
    {"frmfilter.cu8"_c, takeFilterColor},
    {"frmfilter.cu9"_c, takeFilterColor},
    {"frmfilter.cu10"_c, takeFilterColor},
    {"frmfilter.cu11"_c, takeFilterColor},
    {"frmfilter.cu12"_c, takeFilterColor},
    {"frmfilter.st5"_c, takeFilterStyle},
    {"frmfilter.st6"_c, takeFilterStyle},
    {"frmfilter.st7"_c, takeFilterStyle},
    {"frmfilter.st8"_c, takeFilterStyle},
    {"frmfilter.st9"_c, takeFilterStyle},
    {"frmfilter.Text1"_c, showAllInBox},
    {"frmfilter.Text2"_c, showAllInBox},
    {"frmfilter.Text3"_c, showAllInBox},
    {"frmfilter.Text4"_c, showAllInBox},
    {"frmedit.Command1"_c, startEditFromButton},
    {"frmedit.Command2"_c, startEditFromButton},
    {"frmedit.Command3"_c, startEditFromButton},
    {"frmedit.Command4"_c, startEditFromButton},
    {"frmedit.Command5"_c, startEditFromButton},
    {"frmedit.Command6"_c, startEditFromButton},
    {"frmedit.Command7"_c, startEditFromButton},
    {"frmedit.Command8"_c, startEditFromButton},
    {"frmedit.Command9"_c, startEditFromButton},
    {"frmedit.Command10"_c, startEditFromButton},
    {"frmedit.Command11"_c, startEditFromButton},
    {"frmedit.Command12"_c, deselectFromButton},
    {"frmedit.Command13"_c, startEditFromButton},
    {"frmedit.Command14"_c, startEditFromButton},
    {"frmedit.Command15"_c, closeEditsForm},
    {"ly3"_c, showLayerList},
    {"ly7"_c, showLayerList},
    {"ly9"_c, showLayerList},
    {"ly9a"_c, showLayerList},
    {"ly13"_c, showLayerList},
    {"ly15"_c, showLayerList},
    {"ly11"_c, addLayerMenu},
    {"ly5"_c, hideAllLayers},
    {"ly6"_c, displayAllLayers},
    {"Command10"_c, listLibrary},
    {"ml9"_c, listLibrary},
    {"ml5"_c, listLibrary},
    {"ht3"_c, listLibrary},
    {"ht11"_c, listLibrary},
    {"ht7"_c, listLibrary},
    {"ass3"_c, listLibrary},
    {"ass21"_c, listLibrary},
    {"ass9"_c, listLibrary},
    {"ml3"_c, createInLibrary},
    {"ht5"_c, createInLibrary},
    {"ass7"_c, createInLibrary},
    {"ht10"_c, startWhenIdle},
    {"ass5"_c, toggleCheckMark},
    {"num1"_c, takeAttribute},
    {"num2"_c, takeAttribute},
    {"num3"_c, takeAttribute},
    {"num4"_c, takeAttribute},
    {"num5"_c, takeAttribute},
    {"ang1"_c, takeAttribute},
    {"ang2"_c, takeAttribute},
    {"dim3"_c, takeAttribute},
    {"dim4"_c, takeAttribute},
    {"dim5"_c, takeAttribute},
    {"dtol2"_c, takeAttribute},
    {"dtol3"_c, takeAttribute},
    {"dtol4"_c, takeAttribute},
    {"dtol5"_c, takeAttribute},
    {"dtol6"_c, takeAttribute},
    {"tk7"_c, takeAttribute},
    {"tk8"_c, takeAttribute},
    {"tk9"_c, takeAttribute},
    {"tk3"_c, startWhenIdle},
    {"dim7"_c, startWhenIdle},
    {"dim11"_c, startWhenIdle},
    {"tk5"_c, listFonts},
    {"tk12"_c, toggleCheckMark},
    {"tk14"_c, listFontsForSelection},
    {"lw3"_c, takeLineColor},
    {"lw4"_c, takeLineColor},
    {"lw5"_c, takeLineColor},
    {"lw6"_c, takeLineColor},
    {"lw7"_c, takeLineColor},
    {"lw8"_c, takeLineColor},
    {"lw9"_c, takeLineColor},
    {"lw10"_c, takeLineColor},
    {"ls3"_c, takeLineStyle},
    {"ls4"_c, takeLineStyle},
    {"ls5"_c, takeLineStyle},
    {"ls6"_c, takeLineStyle},
    {"ls7"_c, takeLineStyle},
    {"angle"_c, fieldClicked},
    {"textrot"_c, fieldClicked},
    {"hatrot"_c, fieldClicked},
    {"assrot"_c, fieldClicked},
    {"snapper"_c, fieldClicked},
    {"Combo3"_c, fieldClicked},
    {"entry"_c, backToDrawing},
    {"memy"_c, backToDrawing},
    {"setts"_c, backToDrawing},
    {"frmfile.Command1"_c, confirmFileDialog},
    {"frmfile.Command2"_c, dismissFileDialog},
};

bool startsAtOnce(ControlId id)
{
    const FunctionRow* row = functionStartedBy(id.row().name);
    return row != nullptr && row->starts == Starts::atOnce;
}

} // namespace

Action actionOf(ControlId id)
{
    for (const ActionRow& row : actionRows) {
        if (row.control == id) return row.action;
    }
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

} // namespace mirtane
