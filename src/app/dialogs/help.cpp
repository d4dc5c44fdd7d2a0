#include "app/dialogs/help.h"

#include "app/dialogs/manual.h"
#include "app/typing/keys.h"
#include "tables/functions.h"
#include "text/code_page.h"

namespace mirtane {
namespace {

void openAt(Controls& controls, std::size_t place)
{
    const std::string& text = controls[ids::helpPage].text;
    setCaret(controls[ids::helpPage], characterAt(text, place));
    controls[ids::helpContents].row = chapterAt(chaptersOf(text), place);
}

void showContents(Controls& controls)
{
    Control& contents = controls[ids::helpContents];
    contents.rows.clear();
    for (const Chapter& chapter : chaptersOf(controls[ids::helpPage].text))
        contents.rows.push_back(chapter.title);
    contents.row = -1;
}

// A user who has only just begun reads from the beginning.
std::size_t placeToOpenAt(const Session& s)
{
    const bool hasJustBegun = s.store.entCount == 1 && s.stepNo == 0 && s.curFunc == vocabulary()[0].name;
    if (hasJustBegun) return 0;
    const InManual& told = functionRow(s.curFunc).inManual;
    return placeInManual(s.controls[ids::helpPage].text, told.chapter, told.heading);
}

// Marks the word where it stands next, from a place on and then from the beginning.
void find(Controls& controls, std::size_t from)
{
    Control& page = controls[ids::helpPage];
    const std::string& word = controls[ids::helpFind].text;
    const std::size_t found = findInManual(page.text, word, from);
    const bool isThere = found != std::string::npos;
    controls[ids::helpFindLabel].caption = isThere || word.empty() ? "Find" : "Not found";
    if (!isThere) return;
    openAt(controls, found);
    page.caret = characterAt(page.text, found + word.size()); // what lies between is marked
}

std::size_t placeOf(const Control& page, int character)
{
    return byteAt(page.text, character);
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
    showContents(s.controls);
    openAt(s.controls, placeToOpenAt(s));
}

void chooseChapter(App& app, int row)
{
    Controls& controls = app.s.controls;
    const std::vector<Chapter> chapters = chaptersOf(controls[ids::helpPage].text);
    const auto index = static_cast<std::size_t>(row); // the shell checks rows
    if (index < chapters.size()) openAt(controls, chapters[index].place);
}

void helpFindKeyPress(App& app, char32_t code)
{
    Controls& controls = app.s.controls;
    const Control& page = controls[ids::helpPage];
    if (code == enterKey) return find(controls, placeOf(page, page.caret));
    passKey(controls[ids::helpFind], code);
    find(controls, placeOf(page, page.anchor));
}

} // namespace mirtane
