#include "exchange/pairs_out.h"

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

constexpr std::string_view lineEnd = "\r\n";

} // namespace

// Nothing is added to a zero, so that none of them has a minus.
double toInches(double world)
{
    return world / worldPerInch + 0.0;
}

Vec toInches(Point world)
{
    return {toInches(double{world.x}), toInches(-double{world.y})};
}

void PairsOut::code(int code)
{
    constexpr std::size_t width = 3;
    const std::string digits = std::to_string(code);
    if (digits.size() < width) lines_.append(width - digits.size(), ' ');
    lines_ += digits;
    lines_ += lineEnd;
}

void PairsOut::text(int group, std::string_view value)
{
    code(group);
    lines_ += value;
    lines_ += lineEnd;
}

void PairsOut::whole(int group, std::int64_t value)
{
    text(group, std::to_string(value));
}

void PairsOut::handle(int group, DxfHandle value)
{
    std::array<char, 8> digits{}; // of 32 bits
    const auto end = std::to_chars(digits.begin(), digits.end(), value, 16).ptr;
    for (char* c = digits.begin(); c != end; ++c) {
        if (*c >= 'a') *c = static_cast<char>(*c - 'a' + 'A'); // a digit from a to f
    }
    text(group, {digits.begin(), end});
}

// A number that is whole has a point all the same: some readers go by it.
void PairsOut::number(int group, double value, int digits)
{
    std::array<char, 32> letters{}; // at 17 digits the longest has 24
    const auto end =
        std::to_chars(letters.begin(), letters.end(), value, std::chars_format::general, digits).ptr;
    const std::string_view written{letters.begin(), end};
    code(group);
    lines_ += written;
    if (written.find_first_of(".e") == std::string_view::npos) lines_ += ".0";
    lines_ += lineEnd;
}

// Of the numbers around the quotient, if it is not the nearest one itself.
double degreesOf(double radians)
{
    constexpr double beyondTurns = 2 * std::numbers::pi * 1000; // an angle of a drawing has one at the most
    const double angle = std::fmod(radians, beyondTurns);
    const double nearest = angle / exactRadiansPerDegree;
    for (const double beside : {-1e9, 1e9}) {
        const double other = std::nextafter(nearest, beside);
        if (nearest * exactRadiansPerDegree != angle && other * exactRadiansPerDegree == angle) return other;
    }
    return nearest;
}

void PairsOut::point(int code, Vec p)
{
    constexpr int step = 10;
    number(code, p.x);
    number(code + step, p.y);
    number(code + 2 * step, 0);
}

} // namespace mirtane
