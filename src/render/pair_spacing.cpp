#include "render/pair_spacing.h"

#include "geometry/fault.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mirtane {
namespace {

constexpr char16_t space = u' ';
constexpr double noStep = std::numeric_limits<double>::quiet_NaN();

// Letters that stand one behind the other, and none of which is put upon another.
bool isLatin(char16_t letter)
{
    return (letter >= space && letter < 0x7F) || (letter >= 0xA1 && letter < 0x180 && letter != 0xAD);
}

// Rounding of positions that are given in parts of a pixel.
bool isSame(double a, double b)
{
    constexpr double ofAnEm = 1e-5;
    return std::abs(a - b) < ofAnEm;
}

} // namespace

std::optional<SetLine> PairSpacing::line(std::u16string_view text)
{
    if (text.empty() || text.front() == space || text.back() == space || !std::ranges::all_of(text, isLatin))
        return {};
    SetLine line;
    line.letters.reserve(text.size());
    double x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Alone& one = alone(text[i]);
        if (i > 0) x += step(text[i - 1], text[i]);
        if (!one.plain || std::isnan(x)) return {};
        SetLetter letter = one.letter;
        keep(letter.x, x);
        line.letters.push_back(letter);
    }
    line.width = x + alone(text.back()).width;
    return line;
}

const PairSpacing::Alone& PairSpacing::alone(char16_t letter)
{
    const auto [found, isNew] = alone_.try_emplace(letter);
    if (!isNew) return found->second;
    const SetLine set = set_({&letter, 1});
    Alone& one = found->second;
    one.plain = set.outlined && set.letters.size() == 1 && set.letters[0].x == 0 && set.letters[0].y == 0;
    if (!one.plain) return one;
    one.letter = set.letters[0];
    one.width = set.width;
    return one;
}

double PairSpacing::step(char16_t letter, char16_t next)
{
    const auto [found, isNew] = steps_.try_emplace(std::uint32_t{letter} << 16 | next);
    if (isNew) found->second = askedStep(letter, next);
    return found->second;
}

double PairSpacing::askedStep(char16_t letter, char16_t next)
{
    const char16_t both[] = {letter, next};
    const SetLine set = set_({both, 2});
    if (set.letters.size() != 2) return noStep;
    const SetLetter& second = set.letters[1];
    const bool unchanged = set.letters[0].letter == alone(letter).letter.letter && set.letters[0].x == 0 &&
                           set.letters[0].y == 0 && second.letter == alone(next).letter.letter &&
                           second.y == 0;
    // A space at the end of a line takes no width.
    const bool ends = next == space || isSame(set.width, second.x + alone(next).width);
    return unchanged && ends ? second.x : noStep;
}

} // namespace mirtane
