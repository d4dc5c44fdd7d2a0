#include "app/menus/library_menus.h"

#include "app/drawing/endings.h"
#include "app/drawing/starters.h"
#include "app/files/library_rows.h"
#include "app/files/own_libraries.h"
#include "app/menus/file_menus.h"
#include "commands/kept_letters.h"
#include "commands/prompt.h"
#include "files/library_files.h"
#include "library/boundary.h"
#include "library/libraries.h"
#include "model/insertion.h"
#include "model/missing.h"
#include "model/shown_prompt.h"
#include "render/redraw.h"
#include "tables/functions.h"
#include "tables/list_modes.h"
#include "text/code_page.h"

#include <algorithm>

namespace mirtane {
namespace {

struct ListMenu {
    ControlId menu;
    std::string_view caption;
};

constexpr ListMenu listMenus[] = {
    {ids::drawMultipleLines, list_mode::selectMultipleLines},
    {ids::removeMultipleLines, list_mode::removeMultipleLines},
    {ids::saveMultipleLines, list_mode::saveMultipleLines},
    {ids::placeHatch, list_mode::selectHatch},
    {ids::removeHatch, list_mode::removeHatch},
    {ids::saveHatch, list_mode::saveHatch},
    {ids::placeAssociate, list_mode::selectAssociate},
    {ids::removeAssociate, list_mode::removeAssociate},
    {ids::saveAssociate, list_mode::saveAssociate},
};

const LibraryRow* rowOfList(std::string_view caption)
{
    for (const auto field : {&LibraryRow::select, &LibraryRow::remove, &LibraryRow::save}) {
        if (const LibraryRow* row = rowWith(field, caption)) return row;
    }
    return nullptr;
}

std::string nameAt(const Controls& controls, int row)
{
    return controls[ids::selectionList].rows[static_cast<std::size_t>(row)]; // the shell checks rows
}

std::string_view listCaption(const Controls& controls)
{
    return controls[ids::listMode].caption;
}

} // namespace

void listLibrary(App& app, ControlId menu)
{
    Session& s = app.s;
    const auto* const list = std::ranges::find(listMenus, menu, &ListMenu::menu);
    if (list == std::end(listMenus)) return;
    const LibraryRow* row = rowOfList(list->caption);
    if (row == nullptr || !hasLiveName(s, row->library)) return;
    endWhatIsBegun(s, app.pic1);
    offerNames(s, row->library, list->caption);
    if (menu == ids::placeHatch) showPrompt(s, row->function, "(Select hatch from list:)");
}

void chooseFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::select, listCaption(s.controls));
    const FunctionRow* function = row == nullptr ? nullptr : findFunction(row->function);
    if (function == nullptr) return;
    currentName(s, row->library) = nameAt(s.controls, index);
    startFunction(s, app.pic1, *function);
}

void removeFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::remove, listCaption(s.controls));
    const std::string name = nameAt(s.controls, index);
    if (row == nullptr || name.empty()) return;
    endWhatIsBegun(s, app.pic1);
    removeName(s, row->library, name);
    refillNames(s, row->library, row->remove);
}

void saveFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::save, listCaption(s.controls));
    if (row == nullptr) return;
    std::string& name = currentName(s, row->library);
    s.nameToSave = nameAt(s.controls, index);
    if (!isBeingPlaced(s, *row) || !isLiveName(name)) name = s.nameToSave;
    openNamedFlow(app, row->save, s.nameToSave + std::string(row->extension));
}

void createInLibrary(App& app, ControlId menu)
{
    if (!hasSelection(app.s)) {
        setText(app.s.controls[ids::entry], "Nothing Selected!");
        return;
    }
    if (menu == ids::createAssociate) app.s.associateName = noName;
    startFromControl(app, menu);
}

void libraryNameEntered(Session& s, Canvas& pic1)
{
    const LibraryRow* row = rowWith(&LibraryRow::create, s.curFunc);
    Control& entry = s.controls[ids::entry];
    if (row == nullptr || entry.text.empty() || refusesText(s.controls, entry.text)) return;
    // noName is what removed rows and pieces are called: nothing could be placed or saved under it.
    const bool isTaken = !isLiveName(entry.text) || hasName(s, row->library, entry.text);
    if (isTaken) return setSelectedText(entry, "Name already exists!");
    currentName(s, row->library) = entry.text;
    takeAsNew(s, row->library, entry.text);
    setText(entry, "");
    s.stepNo = 1;
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
}

} // namespace mirtane
