#pragma once

#include "app/app.h"

namespace mirtane {

// The file that the drawing was opened from or saved to, which others may change, take away or have open as
// well.

// The drawing is that of s.drawingFile as it is now on the disk; others are told that it is open here, and
// this program that it is open there. Empty is no file.
// The stamp is that of before the file was read, or after it was written.
void watchOwnFile(App& app, std::optional<FileStamp> stamp = {});

// Says in the strip what stands in the way of saving the drawing to its file unseen: someone else changed it,
// it is no longer there, or another program of ours has it open. Gives whether there was anything to say.
bool warnOfOwnFile(App& app);

// Says in the strip that it is gone with its folder, for a dialog that stands in another one.
void tellThatOwnFolderIsGone(App& app);

// What was said of saving to it is true no longer, as the dialog went to another folder; it is said again
// before it is saved there.
void takeBackWhatWasTold(App& app);

// The other program that had it open may have ended.
void reviewOthers(App& app);

// Whether the drawing has a file that is no longer on the disk.
bool ownFileIsGone(App& app);

// Whether what the drawing was opened from or saved to holds it still; true of a drawing without a file.
bool ownFileIsAsSaved(App& app);

// Says in the strip that a part of the drawing was saved in the place of the whole.
void tellThatPartIsInOwnFile(App& app);

// Says what else stands at the path to which something is to be saved: a drawing that another program has
// open, or, if the user was not told of it before, any file. Gives whether there was anything to say.
bool warnOfFileInTheWay(App& app, const std::string& path, const std::string& name, bool toldBefore);

// Whether the file is as it was when it was last asked about, in watchOwnFile or warnOfOwnFile.
bool ownFileIsAsSeen(App& app);

} // namespace mirtane
