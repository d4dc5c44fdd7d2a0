#include "commands/kept_letters.h"

#include "text/code_page.h"
#include "text/utf8.h"

namespace mirtane {
namespace {

std::string refusalOf(std::string_view letter)
{
    return std::string(letter) + " can't be kept in a drawing";
}

} // namespace

bool refusesLetter(Controls& controls, char32_t letter)
{
    return refusesText(controls, encodeUtf8(letter));
}

bool refusesText(Controls& controls, std::string_view utf8)
{
    const std::string_view letter = firstBeyondCodePage(utf8);
    if (letter.empty()) return false;
    setSelectedText(controls[ids::entry], refusalOf(letter));
    return true;
}

bool isRefusalOf(std::string_view text, char32_t letter)
{
    return !inCodePage(letter) && text == refusalOf(encodeUtf8(letter));
}

} // namespace mirtane
