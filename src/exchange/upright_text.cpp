#include "exchange/upright_text.h"

#include "geometry/fault.h"

#include <numbers>

namespace mirtane {
namespace {

bool readsToTheRight(Vec along)
{
    constexpr double little = 1e-9; // upwards counts
    return along.x > little || (along.x > -little && along.y > 0);
}

std::int16_t swapped(std::int16_t justification)
{
    constexpr std::int16_t centre = 2;
    return justification == centre ? centre : static_cast<std::int16_t>(1 - justification); // 0 or 1
}

} // namespace

Made uprightText(const MadeText& text, Vec baseline, Vec along, Vec up)
{
    constexpr double degrees = 180 / std::numbers::pi;
    Vec way = quotient(1, length(along)) * along;
    const double height = cross(way, up);
    Made made{.kind = Kind::text, .size = std::abs(height), .text = text};
    made.p[0] = baseline;
    if (height < 0 && !readsToTheRight(way)) { // the other way along the same line
        way = -way;
        made.turnedRound = true;
        made.text.justification = swapped(text.justification);
    }
    if (height > 0 || made.turnedRound) made.p[0] = baseline + made.size * turnedLeft(way);
    const double rotation = directionOf(way) * degrees;
    made.rotation = rotation < 0 ? rotation + 360 : rotation;
    return made;
}

} // namespace mirtane
