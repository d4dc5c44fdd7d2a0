// text/distance_grammar.cpp: "-1'6" is minus eighteen inches.

#include "text/distance_grammar.h"

#include "geometry/fault.h"
#include "text/numbers.h"

#include <string>

namespace mirtane {
namespace {

constexpr double inchesPerFoot = 12;
constexpr double worldUnitsPerInch = 12;

// Not 2.54: drawings made so far were made with this factor, and one that is edited on has to fit itself.
constexpr double centimetresPerInch = 2.5419542;

float readSingle(std::string_view digits)
{
    float value = 0;
    keep(value, readNumber(digits));
    return value;
}

struct Units {
    std::string major;
    std::string minor;
};

Units unitsIn(std::string_view text)
{
    Units units;
    bool majorEnded = false;
    for (const char c : text) {
        if (c == '-') continue;
        if (c != '\'') {
            units.minor += c;
        } else if (!majorEnded) {
            majorEnded = true;
            units.major.swap(units.minor);
        }
    }
    return units;
}

} // namespace

float readInches(std::string_view text, bool metric)
{
    const Units units = unitsIn(text);
    float major = 0;
    keep(major, readSingle(units.major) * (metric ? centimetresPerMetre : inchesPerFoot));
    float sum = major;
    keep(sum, static_cast<double>(major) + readSingle(units.minor)); // widened, so that an overflow is seen
    if (text.starts_with('-')) sum = -sum;
    if (metric) keep(sum, sum / centimetresPerInch);
    return sum;
}

float readDistance(std::string_view text, bool metric)
{
    float distance = 0;
    keep(distance, readInches(text, metric) * worldUnitsPerInch);
    return distance;
}

} // namespace mirtane
