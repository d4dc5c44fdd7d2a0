#include "commands/measure_distance.h"

#include "commands/line.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/redraw.h"
#include "text/measure.h"

namespace mirtane {

void measureDistanceStep(Session& s, Canvas& pic1)
{
    if (s.stepNo < 2) return lineStep(s, pic1); // above 2 after a typed distance, which measures nothing
    s.ptB = s.pickLast;
    float length = 0;
    keep(length, distance(s.ptA, s.ptB));
    const NumberDisplay display{numStyleOf(s.numStyle), s.dimTol, s.numComma == 1};
    setText(s.controls[ids::entry], formatMeasure({length, display}));
    setText(s.controls[ids::workText], "");
    restorePicture(pic1);
    s.ptA = s.ptB;
    s.pickFirst = s.ptB;
    s.stepNo = 1;
}

} // namespace mirtane
