#pragma once

#include "app/app.h"

namespace mirtane {

// The one dialog of all file work, frmfile. Its caption, buttons and pattern are what tells it what to do
// when it is confirmed.

// File menu entries.
void openDrawingEntry(App& app, ControlId);
void closeDrawingEntry(App& app, ControlId);
void saveDrawingEntry(App& app, ControlId);
void exitEntry(App& app, ControlId);

// "Save Changes": asks what to do with unsaved work before what followUp names.
void offerToSave(App& app, std::int16_t followUp);

// Within the dialog.
void confirmFileDialog(App& app, ControlId);
void dismissFileDialog(App& app, ControlId); // Command2
void closeFileDialog(App& app);              // its frame
void fileNameKeyPress(App& app, char32_t code);
void chooseFile(App& app, int row);
void chooseFolder(App& app, int row);
void chooseDrive(App& app, int row);

} // namespace mirtane
