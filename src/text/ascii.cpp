#include "text/ascii.h"

#include <algorithm>

namespace mirtane {

std::string inSmallLetters(std::string_view text)
{
    std::string small(text);
    std::ranges::transform(small, small.begin(), smallLetter);
    return small;
}

std::string inCapitals(std::string_view text)
{
    std::string capitals(text);
    std::ranges::transform(capitals, capitals.begin(), capitalLetter);
    return capitals;
}

} // namespace mirtane
