#pragma once

#include "app/app.h"

#include <cstddef>

namespace mirtane {

// The one dialog of all file work. Its caption, buttons and pattern are what tells it what to do
// when it is confirmed.

// What the dialog says it is for.
struct FileFlow {
    std::string_view caption;
    std::string_view button; // "Open" or "Save"
    std::string_view pattern;
};

// Shows the dialog in the folder of the flow's pattern, with a name to begin with. Nothing follows the flow.
void openFileDialog(App& app, const FileFlow& flow, const std::string& name);

// Of the two folders the first that is there, the one of the last file before the other; the user's own where
// neither is.
std::string folderToSaveIn(App& app, const FolderPair& folders);

// Opens the drawing at an absolute path as if it had been chosen in "Open Drawing"; the dialog stays up with
// the name where that fails. A DXF file is read in full. A name with no "." gets ".mtd"; one with another
// extension is that of no drawing.
void openDrawingAt(App& app, const std::string& path);

// Opens a file at an absolute path as if it had been chosen in the dialog that opens its kind, which its
// extension tells.
void openFileAt(App& app, const std::string& path);

// The same, once it is settled what becomes of unsaved work, where the file takes the place of the drawing.
// Says it if so many others came with it.
void openDroppedFile(App& app, const std::string& path, std::ptrdiff_t others);

// "Save Changes": asks what to do with unsaved work before what followUp names.
void offerToSave(App& app, std::int16_t followUp);

// Makes room: saves the drawing, to its own file or where the user says, and opens what was saved.
void saveAndOpenAgain(App& app);

// Within the dialog.
void confirmFileDialog(App& app, ControlId);
void dismissFileDialog(App& app, ControlId); // the second button
void closeFileDialog(App& app);              // its frame
void fileNameKeyPress(App& app, char32_t code);

} // namespace mirtane
