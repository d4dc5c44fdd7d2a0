#include "app/dialogs/help.h"

#include "text/code_page.h"

namespace mirtane {
namespace {

// Lines may end in LF, CR LF or CR; they are joined with CR LF, the last one without.
std::string joinedLines(const Bytes& file)
{
    std::string joined;
    for (std::size_t i = 0; i < file.size(); ++i) {
        const auto c = static_cast<char>(file[i]); // a byte of text
        const bool endsLine = c == '\n' || c == '\r';
        if (!endsLine) joined += c;
        if (c == '\r' && i + 1 < file.size() && file[i + 1] == '\n') ++i;
        if (endsLine && i + 1 < file.size()) joined += "\r\n";
    }
    return joined;
}

} // namespace

void showHelp(App& app, ControlId)
{
    Session& s = app.s;
    Control& text = s.controls[ids::helpPage];
    setText(text, "");
    s.controls[ids::helpForm].visible = true;
    s.controls.focus = ids::helpPage;
    if (const std::optional<Bytes> file = app.ports.disk.read(s.programFolder + "/mirtanehelp.txt")) {
        setText(text, fromCodePage(joinedLines(*file)));
    } else {
        setText(s.controls[ids::entry], "Help file not found!");
    }
    setCaret(text, 0);
}

} // namespace mirtane
