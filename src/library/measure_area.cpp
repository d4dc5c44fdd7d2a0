#include "library/measure_area.h"

#include "commands/prompt.h"
#include "geometry/fault.h"
#include "library/boundary.h"
#include "library/scan_lines.h"
#include "render/redraw.h"
#include "text/measure.h"

#include <cmath>

namespace mirtane {
namespace {

constexpr double pitch = 6; // between lines, world units

// The length inside the polygon of the upright lines at a pitch, the first half a pitch inside its left end.
// So wide a polygon that the lines can't be counted has them further apart, and each stands for more.
double lengthInside(const Polygon& polygon)
{
    constexpr double mostLines = 250000;
    const Extent extent = extentInX(polygon);
    const double apart = pitch * std::ceil(std::max(1.0, (extent.high - extent.low) / (pitch * mostLines)));
    double sum = 0;
    std::vector<Extent> spans;
    for (double i = 0; i < mostLines; ++i) {
        const double x = extent.low + apart / 2 + i * apart;
        if (x > extent.high) break;
        spans.clear();
        addSpans(polygon, x, spans);
        for (const Extent& span : spans) sum += span.high - span.low;
    }
    return sum * (apart / pitch);
}

// The area as its square feet times 144. Lines both ways count it twice.
float areaForDisplay(const Polygon& polygon)
{
    constexpr double unitsPerFoot = 144;
    const double lengths = lengthInside(polygon) + lengthInside(overDiagonal(polygon));
    float area = 0;
    keep(area, lengths / (2 * unitsPerFoot / pitch));
    return area;
}

std::string areaText(const Session& s)
{
    Measure measure;
    measure.length = areaForDisplay(polygonOf(closedBoundary(s)));
    measure.display = {numStyleOf(s.numStyle), s.dimTol, s.numComma == 1};
    measure.area = true;
    return formatMeasure(measure);
}

} // namespace

void measureAreaStep(Session& s, Canvas& pic1)
{
    const bool closed = takeBoundaryClick(s) == BoundaryClick::closed;
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (!closed) return;
    setText(s.controls[ids::workText], "");
    setText(s.controls[ids::entry], areaText(s) + " Square");
    dropBoundary(s);
    returnToBase(s);
    resetPicture(pic1);
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
}

} // namespace mirtane
