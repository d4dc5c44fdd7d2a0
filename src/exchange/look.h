#pragma once

#include <cstdint>
#include <string_view>

namespace mirtane {

// What an object shares with every other: resolved, so that no ByLayer and no ByBlock is left.
struct Look {
    std::int32_t color = 0xFFFFFF; // one of our pens, 0xBBGGRR
    std::int16_t layer = 0;        // row of our layers
    std::int16_t style = 0;
    bool hidden = false;

    friend bool operator==(const Look&, const Look&) = default;
};

// The nearest of our pens to a colour of red, green and blue (0xRRGGBB), and to one by its number in DXF
// files.
std::int32_t penOfTrueColor(std::int32_t rgb);
std::int32_t penOfColorNumber(int number);

} // namespace mirtane
