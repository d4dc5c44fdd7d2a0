#include "app/files/drawing_of_file.h"

#include "app/files/open_drawing.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"

namespace mirtane {

void takeFolder(App& app, const std::string& folder, const std::string& name)
{
    FileState& s = app.s;
    s.drawingName = name;
    s.drawingFile.clear();
    s.drawingFolder = folder;
    watchOwnFile(app);
    takeAsSaved(app);
}

void takePartOfFile(App& app, const std::string& folder, const std::string& file, const Untaken& untaken)
{
    takeFolder(app, folder, "untitled.mtd");
    tellUntaken(app.s.notices, file, untaken, app.s.drawingName);
}

} // namespace mirtane
