#include "app/file_flows.h"

#include "app/open_drawing.h"
#include "commands/prompt.h"
#include "files/drawing_file.h"

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

} // namespace

bool saveFile(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    const Bytes bytes = drawingBytes(s, SaveWhat::drawing);
    if (!isPlainName(choice.name) || !app.ports.disk.writeWhole(pathOf(choice), bytes)) {
        setText(s.controls["entry"_c], "Drawing not saved!");
        return false;
    }
    s.drawingName = choice.name;
    afterSave(s, SaveWhat::drawing);
    return true;
}

bool openFile(App& app, const FileChoice& choice)
{
    if (!isPlainName(choice.name)) return false;
    const std::optional<Bytes> file = app.ports.disk.read(pathOf(choice));
    if (!file) return false;
    app.s.drawingName = choice.name;
    forgetOwners(app.s.store);
    openDrawing(app, *file);
    setPrompt(app.s, app.pic1);
    return true;
}

} // namespace mirtane
