#include "app/file_flows.h"

#include "app/attribute_controls.h"
#include "app/open_drawing.h"
#include "commands/prompt.h"
#include "files/drawing_file.h"
#include "model/insertion.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

// A name is a name in the folder shown: a slash in it would lead elsewhere.
bool isPlainName(const std::string& name)
{
    return name.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
}

std::string pathOf(const FileChoice& choice)
{
    return choice.folder + "/" + choice.name;
}

bool saveDrawingFile(App& app, const FileChoice& choice, SaveWhat what)
{
    Session& s = app.s;
    if (!app.ports.disk.writeWhole(pathOf(choice), drawingBytes(s, what))) return false;
    if (what == SaveWhat::drawing) s.drawingName = choice.name;
    afterSave(s, what);
    if (what == SaveWhat::selected) redrawAll(s, app.pic1);
    return true;
}

SaveWhat whatIsSaved(const FileChoice& choice)
{
    if (choice.caption == "Save Selected") return SaveWhat::selected;
    if (choice.caption == "Save Layer") return SaveWhat::layer;
    return SaveWhat::drawing;
}

void mergeDrawing(App& app, const Bytes& file)
{
    mergeLayer(app.s, file, app.s.chosenLayer);
    showLayers(app.s);
    redrawAll(app.s, app.pic1);
    updateGauge(app.s);
}

bool openDrawingFile(App& app, const FileChoice& choice)
{
    const std::optional<Bytes> file = app.ports.disk.read(pathOf(choice));
    if (!file) return false;
    forgetOwners(app.s.store);
    if (choice.caption == "Load Layer") {
        mergeDrawing(app, *file);
    } else {
        app.s.drawingName = choice.name;
        openDrawing(app, *file);
    }
    setPrompt(app.s, app.pic1);
    return true;
}

} // namespace

bool savesWholeDrawing(const FileChoice& choice)
{
    return choice.pattern == "*.mtd" && whatIsSaved(choice) == SaveWhat::drawing;
}

bool saveFile(App& app, const FileChoice& choice)
{
    const bool isDrawing = choice.pattern == "*.mtd";
    if (isDrawing && isPlainName(choice.name) && saveDrawingFile(app, choice, whatIsSaved(choice)))
        return true;
    setText(app.s.controls["entry"_c], isDrawing ? "Drawing not saved!" : "File not saved!");
    return false;
}

bool openFile(App& app, const FileChoice& choice)
{
    return choice.pattern == "*.mtd" && isPlainName(choice.name) && openDrawingFile(app, choice);
}

} // namespace mirtane
