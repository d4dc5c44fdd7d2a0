#include "app/files/dxf_flows.h"

#include "app/drawing/endings.h"
#include "app/files/drawing_of_file.h"
#include "app/files/open_drawing.h"
#include "app/files/unsaved_work.h"
#include "commands/prompt.h"
#include "dxf/dxf_names.h"
#include "dxf/scanner.h"
#include "exchange/not_read.h"
#include "model/work_mark.h"

#include <algorithm>
#include <limits>

namespace mirtane {
namespace {

constexpr double inchesToAMillimetre = 1 / 25.4;
constexpr double inchesToAMetre = 1000 / 25.4;

void remember(App& app, const Bytes& file, const std::string& folder, const std::string& name)
{
    app.s.openedDxf = OpenedDxf{file, name, folder, workMark(app.s)};
}

// The drawing came from the file, of which so many objects found no room.
void takeDxfName(App& app, const std::string& folder, const std::string& name, std::int64_t withoutRoom)
{
    app.s.dxfName = name;
    const auto leftOut = static_cast<std::int32_t>(
        std::min<std::int64_t>(withoutRoom, std::numeric_limits<std::int32_t>::max())); // fits
    if (leftOut > 0)
        takePartOfFile(app, folder, name, {leftOut});
    else
        takeFolder(app, folder, drawingNameOf(name)); // what is there under that name is another drawing
    setPrompt(app.s, app.pic1);
}

void askForUnits(Notices& notices, const std::string& name)
{
    notices.post({Matter::noUnits,
                  name + " has no units: taken as inches.",
                  {{"Millimetres", Offer::takeAsMillimetres}, {"Metres", Offer::takeAsMetres}}});
}

void tellOfReading(Notices& notices, const std::string& name, const FullReport& report)
{
    FullReport types = report;
    types.withoutRoom = 0; // told already, with the name that the drawing has
    std::string left = sentenceOfLeftOut(types);
    if (report.isCut) left += (left.empty() ? "" : ", ") + std::string("the file is cut off");
    if (!left.empty() && report.withoutRoom == 0)
        notices.post({Matter::leftOut, name + ": " + left + ".", {{"Close", Offer::goOn}}});
    if (const std::string place = sentenceOfPlace(report); !place.empty())
        notices.post({Matter::moved, name + ": " + place + ".", {{"Close", Offer::goOn}}});
    if (!report.hasUnits) askForUnits(notices, name);
}

void offerFullReading(Session& s, const FullReading& reading, const std::string& name)
{
    const NotRead missing = notRead(reading, s.store);
    if (!missing.isNothing())
        s.notices.post({Matter::notRead, sentenceOf(missing), {{"Read all", Offer::readAll}}});
    else if (!reading.hasUnits && !reading.drawing.objects.empty())
        askForUnits(s.notices, name);
}

void takeInFull(App& app, const Bytes& file, const std::string& folder, const std::string& name,
                const FullReading& reading, bool unitsAreChosen)
{
    endWhatIsBegun(app.s, app.pic1);
    leaveWorkNobodyGaveUp(app, Goes::drawing);
    FullReport report = takeDxfInFull(app, reading);
    report.hasUnits = report.hasUnits || unitsAreChosen;
    takeDxfName(app, folder, name, report.withoutRoom);
    tellOfReading(app.s.notices, name, report);
    remember(app, file, folder, name);
}

// Nothing that was drawn may be lost to a button of the strip.
void readAgain(App& app, Matter matter, UnitsIfNone units, bool unitsAreChosen)
{
    Session& s = app.s;
    s.notices.settle(matter);
    if (!s.openedDxf) return;
    const OpenedDxf opened = *s.openedDxf; // the reading replaces it
    if (workMark(s) == opened.mark)
        return takeInFull(app, opened.file, opened.folder, opened.name,
                          readInFull(textOf(opened.file), units), unitsAreChosen);
    s.notices.post({matter,
                    "The drawing was changed since " + opened.name + " was opened: it stays as it is.",
                    {{"Close", Offer::goOn}}});
}

} // namespace

// What found no room is told above what another reading would give.
void openDxfByTheLetter(App& app, const Bytes& file, const std::string& folder, const std::string& name)
{
    endWhatIsBegun(app.s, app.pic1);
    leaveWorkNobodyGaveUp(app, Goes::drawing);
    const std::int64_t withoutRoom = openDxf(app, file);
    offerFullReading(app.s, readInFull(textOf(file)), name);
    takeDxfName(app, folder, name, withoutRoom);
    remember(app, file, folder, name);
}

bool openDxfInFull(App& app, const std::string& path)
{
    const std::optional<Bytes> file = app.ports.disk.read(path);
    if (!file) return false;
    const FullReading reading = readInFull(textOf(*file));
    if (!reading.isDxf) return false;
    const std::size_t slash = path.rfind('/');
    takeInFull(app, *file, slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1), reading, false);
    return true;
}

void readAllOfDxf(App& app)
{
    readAgain(app, Matter::notRead, {}, false);
}

void takeDxfAsMillimetres(App& app)
{
    readAgain(app, Matter::noUnits, {inchesToAMillimetre}, true);
}

void takeDxfAsMetres(App& app)
{
    readAgain(app, Matter::noUnits, {inchesToAMetre}, true);
}

} // namespace mirtane
