#include "app/files/unsaved_work.h"

#include "app/drawing/endings.h"
#include "app/files/open_drawing.h"
#include "app/files/own_file.h"
#include "commands/prompt.h"
#include "model/insertion.h"
#include "model/work_mark.h"
#include "text/numbers.h"

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

std::string nowBy(Clock* clock)
{
    return clock != nullptr ? clock->now() : std::string();
}

// "14:32" of today, the day before it of any other.
std::string shortTime(const std::string& time, const std::string& now)
{
    const auto blank = time.find(' ');
    const bool today = blank != std::string::npos && now.substr(0, blank + 1) == time.substr(0, blank + 1);
    return today ? time.substr(blank + 1) : time;
}

std::int32_t unsavedChanges(const Session& s)
{
    return std::max(1, s.changesBefore + s.log.undoGroupNext - s.savedMark.undoGroupNext);
}

KeptAbout aboutDrawing(const Session& s, const Ports& ports)
{
    return {s.drawingName,   s.drawingFile,     nowBy(ports.clock), s.savedStamp,
            s.drawingFolder, unsavedChanges(s), s.savedTime};
}

std::optional<KeptWork> workOnOffer(App& app)
{
    const std::optional<Bytes> bytes = app.ports.work->read(app.s.leftWork.back());
    return bytes ? readKeptWork(*bytes) : std::nullopt;
}

// It is told once, and until it goes well again.
void tellWhetherItFails(Notices& notices, const WorkKeeper& keeper)
{
    if (!keeper.fails()) return notices.settle(Matter::workNotKept);
    if (notices.tells(Matter::workNotKept)) return;
    notices.postBehind({Matter::workNotKept,
                        "What you draw is not kept for the case that the machine goes down: the disk takes "
                        "nothing. Save often.",
                        {}});
}

// What can't be read stays where it is, out of the way.
void offerNext(App& app)
{
    Session& s = app.s;
    s.notices.settle(Matter::workLeft);
    for (; !s.leftWork.empty(); s.leftWork.pop_back()) {
        const std::optional<KeptWork> work = workOnOffer(app);
        if (!work) continue;
        const std::string time = shortTime(work->about.time, nowBy(app.ports.clock));
        s.notices.postBehind({Matter::workLeft,
                              work->about.drawingName + ", " + time + ": work that was not saved is here.",
                              {{"Restore", Offer::restoreWork}, {"Throw away", Offer::throwWorkAway}}});
        return;
    }
}

// It is unsaved, whatever its objects count to.
void takeAsUnsaved(Session& s, const KeptWork& work)
{
    const KeptAbout& about = work.about;
    s.drawingName = about.drawingName;
    s.drawingFile = about.drawingFile;
    s.drawingFolder = about.folder;
    s.savedCount = 0;
    s.savedTime = about.since;
    s.changesBefore = about.changes;
    s.savedMark = s.keptMark = workMark(s);
    s.keptNames = namesOf(work.libraries);
}

void keepAsItIs(App& app, LibraryNames names)
{
    Session& s = app.s;
    app.ports.work->keep(keptWork(s, aboutDrawing(s, app.ports), librariesOf(s, names)));
    s.keptMark = workMark(s);
    s.keptNames = std::move(names);
    tellWhetherItFails(s.notices, *app.ports.work);
}

// What has no room stays for the next run as it was kept. If that was taken over, it is this run's no more.
void leaveWhatHasNoRoom(App& app, const LibraryNames& names, bool isTakenOver)
{
    if (isNone(names)) return;
    if (isTakenOver) {
        app.ports.work->leave();
        app.s.keptMark = {};
    }
    app.s.notices.post({Matter::leftOut, sentenceOfNoRoom(names), {{"Close", Offer::goOn}}});
}

bool differsFromSaved(const Session& s)
{
    return livingSlots(s.store) != s.savedLiving || workMark(s).layerNames != s.savedMark.layerNames;
}

} // namespace

bool hasUnsavedWork(const Session& s)
{
    return s.savedCount < s.store.entCount;
}

void keepUnsavedWork(App& app)
{
    Session& s = app.s;
    const WorkMark mark = workMark(s);
    WorkKeeper* const keeper = app.ports.work;
    if (keeper == nullptr || s.ended) return;
    tellWhetherItFails(s.notices, *keeper);
    LibraryNames names = inNoFile(s);
    if (mark == s.keptMark && names == s.keptNames && !keeper->fails()) return;
    if (mark != s.savedMark || !isNone(names) || hasUnsavedWork(s) || !ownFileIsAsSaved(app))
        return keepAsItIs(app, std::move(names));
    keeper->forget(); // what was kept is in files by now
    s.keptMark = mark;
    s.keptNames = std::move(names);
    tellWhetherItFails(s.notices, *keeper);
}

bool isKeepingUnsure(const App& app)
{
    const WorkKeeper* const keeper = app.ports.work;
    if (keeper == nullptr || app.s.ended) return false;
    return keeper->isUnderWay() || keeper->fails() || app.s.notices.tells(Matter::workNotKept);
}

void leaveWorkNobodyGaveUp(App& app, Goes goes)
{
    const Session& s = app.s;
    if (app.ports.work == nullptr || hasUnsavedWork(s)) return; // which was asked about
    LibraryNames names = inNoFile(s);
    if (ownFileIsAsSaved(app) && !differsFromSaved(s) && isNone(lostWith(goes, names))) return;
    keepAsItIs(app, std::move(names));
    app.ports.work->leave();
}

void keepBeforeSave(App& app)
{
    if (app.ports.work == nullptr) return;
    keepUnsavedWork(app);
    app.ports.work->flush();
}

void keepBeforePartReplacesIt(App& app)
{
    if (app.ports.work == nullptr) return;
    keepAsItIs(app, inNoFile(app.s));
    app.ports.work->flush();
}

void takeAsSaved(App& app)
{
    Session& s = app.s;
    s.savedMark = workMark(s);
    s.savedLiving = livingSlots(s.store);
    s.keptMark = s.savedMark;
    s.keptNames = {};
    s.changesBefore = 0;
    s.savedTime = nowBy(app.ports.clock);
    if (app.ports.work != nullptr) app.ports.work->forget();
}

std::string whatIsUnsaved(const Session& s, Goes goes, Clock* clock)
{
    const std::string_view button = goes == Goes::program ? "End" : "Close";
    const std::int32_t changes = unsavedChanges(s);
    std::string text =
        s.drawingName + ": " + withThousands(changes) + (changes == 1 ? " change" : " changes");
    if (!s.savedTime.empty()) text += " since " + shortTime(s.savedTime, nowBy(clock));
    text += ". \"" + std::string(button) + "\" gives " + (changes == 1 ? "it" : "them") + " up.";
    const std::string libraries = sentenceOfNoFile(lostWith(goes, inNoFile(s)));
    return libraries.empty() ? text : text + " " + libraries;
}

void offerLeftWork(App& app)
{
    if (app.ports.work == nullptr) return;
    app.s.leftWork = app.ports.work->left();
    offerNext(app);
}

void restoreLeftWork(App& app)
{
    Session& s = app.s;
    if (s.leftWork.empty()) return;
    const std::optional<KeptWork> work = workOnOffer(app);
    if (work) {
        endWhatIsBegun(s, app.pic1);
        leaveWorkNobodyGaveUp(app, Goes::drawing);
    }
    // Of two runs one takes it over. Where the folder takes nothing it is brought back all the same, and
    // stays there.
    const bool isTakenOver = work && app.ports.work->adopt(s.leftWork.back());
    const bool ours = isTakenOver || (work && workOnOffer(app));
    s.leftWork.pop_back();
    if (ours) {
        forgetOwners(s.store);
        openDrawing(app, work->drawing);
        const LibraryNames withoutRoom = giveBack(s, work->libraries);
        updateGauge(s);
        takeAsUnsaved(s, *work);
        watchOwnFile(app, work->about.stamp); // as that run knew it: what others did since is told
        leaveWhatHasNoRoom(app, withoutRoom, isTakenOver);
        keepUnsavedWork(app); // what this run had kept has gone
        setPrompt(s, app.pic1);
    }
    offerNext(app);
}

bool leftWorkIsThere(App& app)
{
    return !app.s.leftWork.empty() && workOnOffer(app);
}

void throwLeftWorkAway(App& app)
{
    if (app.s.leftWork.empty()) return;
    app.ports.work->remove(app.s.leftWork.back());
    app.s.leftWork.pop_back();
    offerNext(app);
}

} // namespace mirtane
