#include "sample.h"

#include "model/insertion.h"

#include <cmath>
#include <numbers>

namespace mirtane::bench {
namespace {

constexpr std::int32_t colors[] = {0xFFFFFF, 0x0000FF, 0x00FF00, 0xFFFF00, 0x00FFFF};

} // namespace

void fillWithLines(Session& s)
{
    Dice dice;
    for (std::int32_t i = 0; i < lineCount; ++i) {
        const double x = dice.between(0, width);
        const double y = dice.between(0, height);
        const double length = i % 5 < 4 ? dice.between(5, 75) : dice.between(200, 1500);
        const double angle = dice.between(0, 2 * std::numbers::pi);
        // World coordinates are 32-bit.
        s.ptA = {static_cast<float>(x), static_cast<float>(y)};
        s.ptB = {static_cast<float>(x + length * std::cos(angle)),
                 static_cast<float>(y + length * std::sin(angle))};
        s.curColor = colors[i % 5];
        addLine(s);
        commitSlot(s);
    }
}

} // namespace mirtane::bench
