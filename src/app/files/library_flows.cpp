#include "app/files/library_flows.h"

#include "app/drawing/endings.h"
#include "app/drawing/starters.h"
#include "app/files/library_rows.h"
#include "app/files/open_drawing.h"
#include "app/files/own_libraries.h"
#include "library/libraries.h"
#include "model/insertion.h"
#include "model/missing.h"
#include "model/room.h"
#include "tables/functions.h"
#include "text/code_page.h"

namespace mirtane {
namespace {

// An associate that was just opened is at once the one to place; only a click on its name chooses it.
void readyToPlaceAssociate(App& app, const LibraryRow& row)
{
    Session& s = app.s;
    updateGauge(s);
    s.associateName = noName;
    if (const FunctionRow* function = findFunction(row.function)) changeFunction(s, app.pic1, *function, 0);
}

void addToLibrary(App& app, const LibraryRow& row, const Bytes& file, const std::string& fileName)
{
    Session& s = app.s;
    const std::string name(baseName(fileName));
    const Untaken untaken = addFile(s, row.library, file, name);
    takeAsInFile(s, row.library, name);
    refillNames(s, row.library, row.select);
    if (row.library == Library::associates) readyToPlaceAssociate(app, row);
    tellMissing(s.controls, {untaken.withoutRoom});
    if (untaken.isCut) tellUntaken(s.notices, fileName, {0, true}, {}); // entry tells of the room
}

// The list gave it to the dialog. The current hatch may be another one, which is being placed.
std::string& nameToSave(Session& s, Library library)
{
    return library == Library::hatches ? s.nameToSave : currentName(s, library);
}

} // namespace

bool saveLibraryFile(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    const LibraryRow* row = rowWith(&LibraryRow::pattern, choice.pattern);
    if (row == nullptr) return false;
    std::string& toSave = nameToSave(s, row->library);
    const std::string name = toSave;
    // Nothing is saved under no name, and nothing that would be read back as removed.
    if (!isLiveName(name) || !isLiveName(toCodePage(name))) return false;
    const bool saved =
        app.ports.disk.writeWhole(choice.folder + "/" + choice.name, fileOf(s, row->library, name));
    if (saved) takeAsInFile(s, row->library, name);
    if (!isBeingPlaced(s, *row)) toSave = currentName(s, row->library) = noName;
    endWhatIsBegun(s, app.pic1);
    return saved;
}

bool isNameSpent(Session& s, const std::string& pattern)
{
    const LibraryRow* row = rowWith(&LibraryRow::pattern, pattern);
    return row != nullptr && !isLiveName(nameToSave(s, row->library));
}

bool openLibraryFile(App& app, const FileChoice& choice)
{
    const LibraryRow* row = rowWith(&LibraryRow::pattern, choice.pattern);
    const std::string name(baseName(choice.name));
    if (row == nullptr || hasName(app.s, row->library, name)) return false;
    const std::optional<Bytes> file = app.ports.disk.read(choice.folder + "/" + choice.name);
    if (!file) return false;
    const bool isDrawn = row->library == Library::associates; // its pieces take slots of the drawing's table
    if (isDrawn && !hasRoomFor(app.s, piecesIn(*file))) return true; // told, and nothing is changed
    endWhatIsBegun(app.s, app.pic1);
    addToLibrary(app, *row, *file, choice.name);
    return true;
}

} // namespace mirtane
