#include "app/files/own_file.h"

namespace mirtane {
namespace {

void say(Notices& notices, Matter matter, std::string sentence)
{
    notices.post({matter, std::move(sentence), {{"Close", Offer::goOn}}});
}

bool warnOfChange(App& app, const std::optional<FileStamp>& now)
{
    Session& s = app.s;
    s.notices.settle(Matter::fileChanged);
    if (now == s.savedStamp) return false;
    say(s.notices, Matter::fileChanged,
        now ? s.drawingName + " was changed on the disk at " + now->clock + ": saving replaces what is there."
            : s.drawingName + " is no longer on the disk: saving puts it back.");
    return true;
}

bool warnOfOthers(App& app)
{
    Session& s = app.s;
    s.notices.settle(Matter::openElsewhere);
    if (app.ports.marks == nullptr) return false;
    const std::optional<OpenElsewhere> other = app.ports.marks->markedByAnother(s.drawingFile);
    if (!other) return false;
    const std::string since = other->clock.empty() ? "" : " since " + other->clock;
    say(s.notices, Matter::openElsewhere, s.drawingName + " stands open in another Mirtane" + since + ".");
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
    if (!s.drawingFile.empty()) warnOfOthers(app);
    s.savedStamp = s.seenStamp = std::move(stamp);
}

bool warnOfOwnFile(App& app)
{
    const std::optional<FileStamp> now = app.ports.disk.stamp(app.s.drawingFile);
    app.s.seenStamp = now;
    const bool changed = warnOfChange(app, now);
    return warnOfOthers(app) || changed;
}

bool ownFileIsAsSeen(App& app)
{
    return app.ports.disk.stamp(app.s.drawingFile) == app.s.seenStamp;
}

} // namespace mirtane
