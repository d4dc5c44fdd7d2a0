#include "exchange/look.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mirtane {
namespace {

// Red, green and blue of a pen, which is none: what has no hue to speak of is drawn in white.
struct Colour {
    int red = 0, green = 0, blue = 0;
};

constexpr Colour colourOf(std::int32_t rgb)
{
    return {rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF};
}

struct HuePen {
    std::int32_t color; // 0xBBGGRR
    Colour hue;
};

constexpr std::int32_t whitePen = 0xFFFFFF;
constexpr HuePen huePens[] = {
    {0xFF0000, {0, 0, 255}},   {0x00FF00, {0, 255, 0}},   {0xFFFF00, {0, 255, 255}}, {0x0000FF, {255, 0, 0}},
    {0xFF00FF, {255, 0, 255}}, {0x0080FF, {255, 128, 0}}, {0x00FFFF, {255, 255, 0}},
};

int squared(int a)
{
    return a * a;
}

int farness(Colour a, Colour b)
{
    return squared(a.red - b.red) + squared(a.green - b.green) + squared(a.blue - b.blue);
}

// The same hue, as pure and as bright as can be.
Colour pure(Colour c, int low, int high)
{
    const auto stretched = [low, high](int part) { return 255 * (part - low) / (high - low); };
    return {stretched(c.red), stretched(c.green), stretched(c.blue)};
}

// The first nine and the greys behind 249 are a list; the others are 24 hues, each in five shades, pale and
// not.
constexpr std::int32_t firstColours[] = {0xFFFFFF, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                         0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};

// How much of 255 one of the three primaries has at a hue, 0 to 23; it is at its full at 0.
int shareAt(int hue)
{
    const int away = std::min(hue % 24, 24 - hue % 24); // 0 to 12
    return std::clamp(8 - away, 0, 4) * 255 / 4;
}

std::int32_t trueColorOf(int number)
{
    constexpr int firstGrey = 250;
    constexpr int shades[] = {255, 165, 127, 76, 38};
    if (number < 10) return firstColours[number];
    if (number >= firstGrey) return 0xFFFFFF;
    const int hue = number / 10 - 1;
    const int shade = shades[number % 10 / 2];
    const bool pale = number % 2 == 1;
    std::int32_t rgb = 0;
    for (const int from : {0, 16, 8}) { // red, green, blue
        const int share = shareAt(hue + from);
        rgb = rgb << 8 | (pale ? (255 + share) / 2 : share) * shade / 255;
    }
    return rgb;
}

} // namespace

std::int32_t penOfTrueColor(std::int32_t rgb)
{
    constexpr int leastHue = 4; // parts of the brightest
    const Colour colour = colourOf(rgb);
    const auto [low, high] = std::minmax({colour.red, colour.green, colour.blue});
    if ((high - low) * leastHue < std::max(high, 1)) return whitePen;
    const Colour bright = pure(colour, low, high);
    return std::ranges::min_element(huePens, {},
                                    [bright](const HuePen& pen) { return farness(pen.hue, bright); })
        ->color;
}

std::int32_t penOfColorNumber(int number)
{
    constexpr int last = 255;
    const int positive = std::abs(std::clamp(number, -last, last)); // below zero it is a layer's that is off
    return penOfTrueColor(trueColorOf(positive));
}

} // namespace mirtane
