#include "app/files/own_file.h"

namespace mirtane {
namespace {

void say(Notices& notices, Matter matter, std::string sentence)
{
    notices.post({matter, std::move(sentence), {{"Close", Offer::goOn}}});
}

std::string since(const OpenElsewhere& other)
{
    return other.clock.empty() ? "" : " since " + other.clock;
}

std::string sentenceOfChange(App& app, const std::optional<FileStamp>& now)
{
    const FileState& s = app.s;
    if (now)
        return s.drawingName + " was changed on the disk at " + now->clock +
               ": saving replaces what is there.";
    if (app.ports.folders.exists(s.drawingFile))
        return "A folder stands where " + s.drawingName + " was: save the drawing under another name.";
    return s.drawingName + " is no longer on the disk: saving puts it back.";
}

bool warnOfChange(App& app, const std::optional<FileStamp>& now)
{
    Session& s = app.s;
    s.notices.settle(Matter::fileChanged);
    if (now == s.savedStamp) return false;
    say(s.notices, Matter::fileChanged, sentenceOfChange(app, now));
    return true;
}

bool warnOfOthers(App& app)
{
    Session& s = app.s;
    s.notices.settle(Matter::openElsewhere);
    if (app.ports.marks == nullptr) return false;
    const std::optional<OpenElsewhere> other = app.ports.marks->markedByAnother(s.drawingFile);
    if (!other) return false;
    say(s.notices, Matter::openElsewhere,
        s.drawingName + " stands open in another Mirtane" + since(*other) + ".");
    return true;
}

} // namespace

void watchOwnFile(App& app, std::optional<FileStamp> stamp)
{
    Session& s = app.s;
    OpenMarks* const marks = app.ports.marks;
    if (marks != nullptr && s.markedFile != s.drawingFile) {
        if (!s.markedFile.empty()) marks->unmark(s.markedFile);
        if (!s.drawingFile.empty()) marks->mark(s.drawingFile);
        s.markedFile = s.drawingFile;
    }
    s.notices.settle(Matter::fileChanged);
    s.notices.settle(Matter::openElsewhere);
    s.notices.settle(Matter::fileInTheWay);
    if (!s.drawingFile.empty()) warnOfOthers(app);
    s.savedStamp = s.seenStamp = std::move(stamp);
}

bool warnOfOwnFile(App& app)
{
    const std::optional<FileStamp> now = app.ports.disk.stamp(app.s.drawingFile);
    app.s.seenStamp = now;
    const bool others = warnOfOthers(app);
    return warnOfChange(app, now) || others; // the change comes in front: saving would replace it
}

void tellThatOwnFolderIsGone(App& app)
{
    Session& s = app.s;
    say(s.notices, Matter::fileChanged,
        s.drawingName + " is no longer on the disk: there is no folder " + s.drawingFolder + ".");
}

void takeBackWhatWasTold(App& app)
{
    app.s.notices.settle(Matter::fileChanged);
    app.s.seenStamp = app.s.savedStamp;
}

void reviewOthers(App& app)
{
    const Session& s = app.s;
    if (s.notices.tells(Matter::openElsewhere) && !app.ports.marks->markedByAnother(s.drawingFile)) {
        app.s.notices.settle(Matter::openElsewhere);
    }
}

bool ownFileIsGone(App& app)
{
    return !app.s.drawingFile.empty() && !app.ports.disk.stamp(app.s.drawingFile);
}

bool ownFileIsAsSaved(App& app)
{
    const Session& s = app.s;
    return s.drawingFile.empty() || app.ports.disk.stamp(s.drawingFile) == s.savedStamp;
}

void tellThatPartIsInOwnFile(App& app)
{
    Session& s = app.s;
    say(s.notices, Matter::fileChanged,
        s.drawingName + " holds only what you just saved: save the drawing to have all of it there again.");
}

bool warnOfFileInTheWay(App& app, const std::string& path, const std::string& name, bool toldBefore)
{
    const std::optional<OpenElsewhere> other =
        app.ports.marks != nullptr ? app.ports.marks->markedByAnother(path) : std::nullopt;
    if (!other && (toldBefore || !app.ports.disk.stamp(path))) return false;
    say(app.s.notices, Matter::fileInTheWay,
        name + (other ? " stands open in another Mirtane" + since(*other) : " is there already") +
            ": saving replaces it.");
    return true;
}

bool ownFileIsAsSeen(App& app)
{
    return app.ports.disk.stamp(app.s.drawingFile) == app.s.seenStamp;
}

} // namespace mirtane
