#include "commands/match.h"

#include "commands/prompt.h"
#include "geometry/angle.h"
#include "render/redraw.h"
#include "text/numbers.h"

#include <cmath>

namespace mirtane {
namespace {

// The angle literals are short: a line at 135 degrees computes as 135.0000038.
constexpr double sameDegrees = 0.0005;

bool above(double degrees, double limit)
{
    return degrees > limit + sameDegrees;
}

bool below(double degrees, double limit)
{
    return degrees < limit - sameDegrees;
}

bool equals(double degrees, double limit)
{
    return std::abs(degrees - limit) <= sameDegrees;
}

void takeOrthoAngle(Session& s, double degrees)
{
    const double folded = foldedDegrees(degrees);
    s.orthoAngle = folded / degreesPerRadian;
    s.orthoAngleSaved = s.orthoAngle;
    setText(s.controls[ids::orthoAngle], formatNumber(folded, NumberFormat::paddedThousandths));
}

// What the field would show as a whole turn is none.
double belowWholeTurn(double degrees)
{
    return below(degrees, 360) ? degrees : 0;
}

void takeTextRotation(Session& s, double degrees)
{
    s.textRotation = belowWholeTurn(degrees);
    setText(s.controls[ids::textRotation], formatNumber(s.textRotation, NumberFormat::paddedThousandths));
}

template <void (*take)(Session&, double degrees)> void matchStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 2) return;
    take(s, directionAngle(s.pickFirst, s.pickLast, 0) * degreesPerRadian);
    returnToBase(s);
    setPrompt(s, pic1);
    resetPicture(pic1);
}

} // namespace

double foldedDegrees(double degrees)
{
    if (degrees < 0) degrees += 360;
    if (above(degrees, 45) && below(degrees, 135)) degrees -= 90;
    if (equals(degrees, 135)) degrees -= 90;
    if (above(degrees, 135) && below(degrees, 225)) degrees -= 180;
    if (equals(degrees, 225)) degrees -= 180;
    if (above(degrees, 225)) degrees -= 270;
    return degrees;
}

void orthoAngleMatchStep(Session& s, Canvas& pic1)
{
    matchStep<takeOrthoAngle>(s, pic1);
}

void textRotationMatchStep(Session& s, Canvas& pic1)
{
    matchStep<takeTextRotation>(s, pic1);
}

void matchBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    restorePicture(pic1);
    pic1.line(s.pickFirst.x, s.pickFirst.y, s.pickLast.x, s.pickLast.y);
}

} // namespace mirtane
