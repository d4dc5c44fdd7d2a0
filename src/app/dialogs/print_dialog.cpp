#include "app/dialogs/print_dialog.h"

#include "app/drawing/endings.h"
#include "app/files/file_dialog.h"
#include "app/typing/keys.h"
#include "geometry/fault.h"
#include "print/page.h"
#include "render/redraw.h"
#include "text/numbers.h"
#include "text/utf8.h"

#include <algorithm>

namespace mirtane {
namespace {

void dropSelection(App& app)
{
    changeStat(app.s.store, Stat::sel, Stat::on);
    redrawAll(app.s, app.pic1);
}

double typedScale(const Controls& controls)
{
    return readNumber(controls[ids::printScale].text);
}

double fittedScaleShown(const Controls& controls)
{
    return readNumber(controls[ids::fittedScale].text);
}

// Where a page may go: a file that was there before the session is somebody's, and stays.
bool isFree(App& app, const std::string& file)
{
    return app.s.pageFiles.contains(file) || !app.ports.disk.isTaken(file);
}

// A drawing is printed beside the place where it is kept, unless the user chose another.
std::string folderOfPage(App& app, const Printer& printer)
{
    for (const std::string& folder : {printer.folder(), app.s.drawingFolder})
        if (app.ports.folders.exists(folder)) return folder;
    return folderToSaveIn(app, app.s.drawings);
}

std::string fileOfPage(App& app, const Printer& printer)
{
    Session& s = app.s;
    const std::string base = s.drawingName.substr(0, s.drawingName.find('.'));
    const std::string folder = folderOfPage(app, printer);
    const std::string start = (folder == "/" ? "" : folder) + "/" + base;
    std::string file = start + ".pdf";
    for (int number = 2; !isFree(app, file); ++number) file = start + "-" + std::to_string(number) + ".pdf";
    return file;
}

bool putPageOut(Session& s, Printer& printer, const std::string& file)
{
    if (!printer.beginPage({file, s.drawingName})) return false;
    drawPage(s.store, pageMapping(s, s.store), s.pageHeight, printer);
    return printer.endPage();
}

void printIntoFile(App& app, Printer& printer)
{
    Session& s = app.s;
    const std::string file = fileOfPage(app, printer);
    const bool done = putPageOut(s, printer, file);
    if (done) s.pageFiles.insert(file);
    setText(s.controls[ids::entry], done ? file.substr(file.rfind('/') + 1) : "File not saved!");
}

void printSelection(App& app)
{
    Session& s = app.s;
    Printer* printer = app.ports.printer;
    const bool hasPage = printer != nullptr && s.pageWidth > 0 && s.pageHeight > 0;
    if (hasPage && printer->printsToFile()) {
        printIntoFile(app, *printer);
    } else if (hasPage) {
        putPageOut(s, *printer, {});
    }
    dropSelection(app);
}

std::string whereItGoes(App& app)
{
    const Printer* const printer = app.ports.printer;
    const bool hasPage = printer != nullptr && app.s.pageWidth > 0 && app.s.pageHeight > 0;
    if (!hasPage) return "There is no printer";
    if (printer->printsToFile()) return "Goes to the file " + fileOfPage(app, *printer);
    return printer->name().empty() ? "" : "Goes to the printer " + printer->name();
}

// The picture of the page follows the value typed.
void showScaleOfPicture(Controls& controls)
{
    setText(controls[ids::pagePicture], controls[ids::printScale].text);
}

} // namespace

void askForPrintScale(App& app, ControlId)
{
    Session& s = app.s;
    endWhatIsBegun(s, app.pic1);
    s.printFactor = 1;
    if (countWithStat(s.store, Stat::sel) == 0) {
        setText(s.controls[ids::entry], "Nothing selected!");
        return;
    }
    std::string fitted = plainNumber(fittedScale(s, s.store));
    std::ranges::replace(fitted, 'e', 'E');
    setSelectedText(s.controls[ids::printScale], fitted);
    setText(s.controls[ids::fittedScale], fitted);
    showScaleOfPicture(s.controls);
    s.controls[ids::printPlace].caption = whereItGoes(app);
    s.controls[ids::printForm].visible = true;
    s.controls.focus = ids::printScale;
}

void setUpPrinter(App& app, ControlId)
{
    Printer* const printer = app.ports.printer;
    const std::string said =
        printer == nullptr ? std::string() : printer->setup({fileOfPage(app, *printer), app.s.drawingName});
    setText(app.s.controls[ids::entry], said.empty() ? "There is no printer to set up" : said);
}

void confirmPrint(App& app, ControlId)
{
    Session& s = app.s;
    if (s.controls[ids::printScale].text.empty()) return;
    const double typed = typedScale(s.controls);
    const double fitted = fittedScaleShown(s.controls);
    if (typed < fitted) return;
    keep(s.printFactor, quotient(fitted, typed));
    endWhatIsBegun(s, app.pic1);
    printSelection(app);
    leaveForm(s.controls, ids::printForm);
}

void cancelPrint(App& app, ControlId)
{
    dropSelection(app);
    leaveForm(app.s.controls, ids::printForm);
}

void emptyPrintScale(App& app, ControlId box)
{
    setText(app.s.controls[box], "");
    showScaleOfPicture(app.s.controls);
}

void printScaleKeyPress(App& app, char32_t code)
{
    if (code == enterKey) return confirmPrint(app, ids::printConfirm);
    if (code == U',') code = U'.';
    if (!isDigit(code) && code != U'.' && code != U'-' && code != backspaceKey) return;
    passKey(app.s.controls[ids::printScale], code);
    showScaleOfPicture(app.s.controls);
}

std::vector<PrintOp> pagePreview(const Session& s)
{
    const double typed = typedScale(s.controls);
    const double fitted = fittedScaleShown(s.controls);
    const bool isEmpty = s.controls[ids::printScale].text.empty();
    if (isEmpty || !(s.pageWidth > 0 && s.pageHeight > 0) || typed < fitted) return {};
    PrintState page = static_cast<const PrintState&>(s); // the page alone
    keep(page.printFactor, quotient(fitted, typed));
    RecordingPrinter recording(s.pageWidth, s.pageHeight);
    drawPage(s.store, pageMapping(page, s.store), s.pageHeight, recording);
    return recording.printed();
}

} // namespace mirtane
