#include "app/library_menus.h"

#include "app/endings.h"
#include "app/file_menus.h"
#include "app/starters.h"
#include "commands/kept_letters.h"
#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "files/library_files.h"
#include "library/boundary.h"
#include "library/libraries.h"
#include "model/insertion.h"
#include "model/missing.h"
#include "model/shown_prompt.h"
#include "render/redraw.h"
#include "text/code_page.h"

#include <algorithm>

namespace mirtane {
namespace {

struct LibraryRow {
    Library library;
    std::string_view function; // that draws with it
    std::string_view create;   // that makes a new one
    std::string_view extension;
    std::string_view pattern;
    std::string_view select, remove, save; // captions of Label3
};

constexpr LibraryRow libraryRows[] = {
    {Library::multipleLines, "Multiple Lines", "Create Multiple Lines", ".mtm", "*.mtm",
     "Select Multiple Lines", "Remove Multiple Lines", "Save Multiple Lines"},
    {Library::hatches, "Place Hatch", "Create Hatch", ".mth", "*.mth", "Select Hatch", "Remove Hatch",
     "Save Hatch"},
    {Library::associates, "Place Associate", "Create Associate", ".mta", "*.mta", "Select Associate",
     "Remove Associate", "Save Associate"},
};

struct ListMenu {
    ControlId menu;
    std::string_view caption;
};

constexpr ListMenu listMenus[] = {
    {"Command10"_c, "Select Multiple Lines"},
    {"ml9"_c, "Remove Multiple Lines"},
    {"ml5"_c, "Save Multiple Lines"},
    {"ht3"_c, "Select Hatch"},
    {"ht11"_c, "Remove Hatch"},
    {"ht7"_c, "Save Hatch"},
    {"ass3"_c, "Select Associate"},
    {"ass21"_c, "Remove Associate"},
    {"ass9"_c, "Save Associate"},
};

const LibraryRow* rowWith(std::string_view LibraryRow::*field, std::string_view value)
{
    const auto* const found = std::ranges::find(libraryRows, value, field);
    return found == std::end(libraryRows) ? nullptr : found;
}

const LibraryRow* rowOfList(std::string_view caption)
{
    for (const auto field : {&LibraryRow::select, &LibraryRow::remove, &LibraryRow::save}) {
        if (const LibraryRow* row = rowWith(field, caption)) return row;
    }
    return nullptr;
}

std::string nameAt(const Session& s, int row)
{
    return s.controls["List1"_c].rows[static_cast<std::size_t>(row)]; // the shell checks rows
}

std::string_view listCaption(const Session& s)
{
    return s.controls["Label3"_c].caption;
}

// A hatch that is saved while one is being placed goes on being the one that boundaries are filled with.
bool isBeingPlaced(const Session& s, const LibraryRow& row)
{
    return row.library == Library::hatches && s.baseFunc == row.function;
}

Bytes bytesOf(const Session& s, Library library, const std::string& name)
{
    if (library == Library::multipleLines) return multipleLinesBytes(s.multipleLinesLibrary, name);
    if (library == Library::hatches) return hatchBytes(s.hatchLibrary, name);
    return associateBytes(s.store, name);
}

// An associate that was just opened is at once the one to place; only a click on its name chooses it.
void readyToPlaceAssociate(App& app, const LibraryRow& row)
{
    Session& s = app.s;
    updateGauge(s);
    s.associateName = noName;
    if (const FunctionRow* function = findFunction(row.function)) changeFunction(s, app.pic1, *function, 0);
}

void addToLibrary(App& app, const LibraryRow& row, const Bytes& file, const std::string& name)
{
    Session& s = app.s;
    Missing missing;
    if (row.library == Library::multipleLines)
        missing.pieces = addMultipleLines(s.multipleLinesLibrary, file);
    if (row.library == Library::hatches) missing.pieces = addHatch(s.hatchLibrary, file);
    if (row.library == Library::associates) missing.pieces = addAssociate(s, file, name);
    refillNames(s, row.library, row.select);
    if (row.library == Library::associates) readyToPlaceAssociate(app, row);
    tellMissing(s.controls, missing);
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
    if (menu == "ht3"_c) showPrompt(s, row->function, "(Select hatch from list:)");
}

void chooseFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::select, listCaption(s));
    const FunctionRow* function = row == nullptr ? nullptr : findFunction(row->function);
    if (function == nullptr) return;
    currentName(s, row->library) = nameAt(s, index);
    startFunction(s, app.pic1, *function);
}

void removeFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::remove, listCaption(s));
    const std::string name = nameAt(s, index);
    if (row == nullptr || name.empty()) return;
    endWhatIsBegun(s, app.pic1);
    removeName(s, row->library, name);
    refillNames(s, row->library, row->remove);
}

void saveFromLibrary(App& app, int index)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::save, listCaption(s));
    if (row == nullptr) return;
    std::string& name = currentName(s, row->library);
    s.nameToSave = nameAt(s, index);
    if (!isBeingPlaced(s, *row) || !isLiveName(name)) name = s.nameToSave;
    openNamedFlow(app, row->save, s.nameToSave + std::string(row->extension));
}

void createInLibrary(App& app, ControlId menu)
{
    if (countWithStat(app.s.store, Stat::sel) == 0) {
        setText(app.s.controls["entry"_c], "Nothing Selected!");
        return;
    }
    if (menu == "ass7"_c) app.s.associateName = noName;
    startFromControl(app, menu);
}

void libraryNameEntered(Session& s, Canvas& pic1)
{
    const LibraryRow* row = rowWith(&LibraryRow::create, s.curFunc);
    Control& entry = s.controls["entry"_c];
    if (row == nullptr || entry.text.empty() || refusesText(s.controls, entry.text)) return;
    if (hasName(s, row->library, entry.text)) return setSelectedText(entry, "Name already exists!");
    currentName(s, row->library) = entry.text;
    setText(entry, "");
    s.stepNo = 1;
    setPrompt(s, pic1);
    s.controls.focus = "pic1"_c;
}

bool saveLibraryFile(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::pattern, choice.pattern);
    if (row == nullptr) return false;
    std::string& current = currentName(s, row->library);
    const std::string name = isBeingPlaced(s, *row) ? s.nameToSave : current;
    // Nothing is saved under no name, and nothing that would be read back as removed.
    if (!isLiveName(name) || !isLiveName(toCodePage(name))) return false;
    const bool saved =
        app.ports.disk.writeWhole(choice.folder + "/" + choice.name, bytesOf(s, row->library, name));
    if (!isBeingPlaced(s, *row)) current = noName;
    endWhatIsBegun(s, app.pic1);
    return saved;
}

bool openLibraryFile(App& app, const FileChoice& choice)
{
    const LibraryRow* row = rowWith(&LibraryRow::pattern, choice.pattern);
    const std::string name(baseName(choice.name));
    if (row == nullptr || hasName(app.s, row->library, name)) return false;
    const std::optional<Bytes> file = app.ports.disk.read(choice.folder + "/" + choice.name);
    if (!file) return false;
    endWhatIsBegun(app.s, app.pic1);
    addToLibrary(app, *row, *file, name);
    return true;
}

} // namespace mirtane
