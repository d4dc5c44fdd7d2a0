#include "exchange/folded_name.h"

#include "text/utf8.h"

#include <cstdint>

namespace mirtane {
namespace {

// Capitals from first to last; every one of them, or every other, has its small letter so far behind it.
struct Capitals {
    char32_t first, last;
    char32_t step;
    std::int32_t toSmall;
};

constexpr Capitals capitalRows[] = {
    {U'A', U'Z', 1, 32},   {0xC0, 0xD6, 1, 32},   {0xD8, 0xDE, 1, 32},   {0x100, 0x12E, 2, 1},
    {0x132, 0x136, 2, 1},  {0x139, 0x147, 2, 1},  {0x14A, 0x176, 2, 1},  {0x178, 0x178, 1, -121},
    {0x179, 0x17D, 2, 1},  {0x218, 0x21A, 2, 1},  {0x386, 0x386, 1, 38}, {0x388, 0x38A, 1, 37},
    {0x38C, 0x38C, 1, 64}, {0x38E, 0x38F, 1, 63}, {0x391, 0x3A1, 1, 32}, {0x3A3, 0x3AB, 1, 32},
    {0x3C2, 0x3C2, 1, 1}, // the sigma at the end of a word
    {0x400, 0x40F, 1, 80}, {0x410, 0x42F, 1, 32}, {0x460, 0x480, 2, 1},  {0x48A, 0x4BE, 2, 1},
};

char32_t small(char32_t c)
{
    for (const Capitals& row : capitalRows) {
        const bool isIn = c >= row.first && c <= row.last && (c - row.first) % row.step == 0;
        if (isIn) return static_cast<char32_t>(static_cast<std::int32_t>(c) + row.toSmall); // a letter
    }
    return c;
}

} // namespace

std::string foldedName(std::string_view utf8)
{
    std::string folded;
    while (!utf8.empty()) {
        const Utf8Step step = firstCharacter(utf8);
        if (step.wellFormed)
            folded += encodeUtf8(small(step.code));
        else
            folded += utf8.substr(0, step.size);
        utf8.remove_prefix(step.size);
    }
    return folded;
}

} // namespace mirtane
