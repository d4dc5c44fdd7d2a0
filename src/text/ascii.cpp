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

bool isSameButForCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, capitalLetter, capitalLetter);
}

std::string_view trimmed(std::string_view text, std::string_view blanks)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

} // namespace mirtane
