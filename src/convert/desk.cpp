#include "convert/desk.h"

#include "app/files/open_drawing.h"
#include "dxf/scanner.h"

namespace mirtane::convert {
namespace {

// What a reading in full has to say of itself.
void tell(const FullReport& report, Outcome& outcome)
{
    outcome.leftOut = !report.isWhole();
    std::string left = sentenceOfLeftOut(report);
    if (!report.isDxf) {
        outcome.fault = "not a DXF file";
        return;
    }
    if (report.isCut) left += (left.empty() ? "" : ", ") + std::string("the file is cut off");
    const std::string came = sentenceOfWhatCame(report);
    if (!left.empty()) outcome.remarks.push_back(left + (came.empty() ? "" : "; " + came + " came"));
    if (!report.hasUnits) outcome.remarks.emplace_back("no units: taken as inches");
    if (const std::string place = sentenceOfPlace(report); !place.empty()) outcome.remarks.push_back(place);
}

// That there was no room is told by who writes what came.
void tell(const Untaken& untaken, Outcome& outcome)
{
    if (!untaken.isCut) return;
    outcome.leftOut = true;
    outcome.remarks.emplace_back("the file is cut off: the end of it is missing");
}

} // namespace

void open(App& app, const Job& job, bool asWindow, Outcome& outcome)
{
    const std::optional<Format> format = formatOf(job.in);
    if (format != Format::mtd && format != Format::dxf) {
        outcome.fault = "not a .mtd or .dxf file";
        return;
    }
    const std::optional<Bytes> file = app.ports.disk.read(job.in);
    if (!file) {
        outcome.fault = "can't be read";
        return;
    }
    forgetOwners(app.s.store);
    if (format == Format::mtd)
        tell(openDrawing(app, *file), outcome);
    else if (asWindow)
        openDxf(app, *file);
    else
        tell(takeDxfInFull(app, readInFull(textOf(*file))), outcome);
}

} // namespace mirtane::convert
