#include "exchange/percent_codes.h"

#include "text/code_page.h"
#include "text/utf8.h"

namespace mirtane {
namespace {

struct Sign {
    char letter;
    std::string_view utf8;
};

constexpr Sign signs[] = {{'d', "°"}, {'p', "±"}, {'c', "Ø"}, {'%', "%"}, {'u', ""}, {'o', ""}, {'k', ""}};

const Sign* signOf(char letter)
{
    for (const Sign& sign : signs) {
        if (sign.letter == letter || (letter >= 'A' && letter <= 'Z' && sign.letter == letter - 'A' + 'a'))
            return &sign;
    }
    return nullptr;
}

// Three digits are the number of a character.
std::string numbered(std::string_view digits)
{
    int code = 0;
    for (const char c : digits) {
        if (!isDigit(static_cast<unsigned char>(c))) return {}; // char may be signed
        code = code * 10 + (c - '0');
    }
    if (digits.size() != 3 || code < ' ' || code > 255) return {};
    return fromCodePage(std::string(1, static_cast<char>(code))); // a byte, tested above
}

// What stands behind "%%" at the start of rest, and how long the code is; 0 for none.
std::size_t takePercent(std::string_view rest, MadeText& text)
{
    if (rest.size() < 3 || !rest.starts_with("%%")) return 0;
    if (const Sign* const sign = signOf(rest[2])) {
        text.words += sign->utf8;
        text.underlined = text.underlined || sign->letter == 'u';
        return 3;
    }
    const std::string character = numbered(rest.substr(2, 3));
    text.words += character;
    return character.empty() ? 0 : 5;
}

// "^I" is the control character of that letter, a tab; "^ " is the sign itself.
std::size_t takeCaret(std::string_view rest, MadeText& text)
{
    if (rest.size() < 2 || rest[0] != '^') return 0;
    if (rest[1] == ' ') {
        text.words += '^';
        return 2;
    }
    if (rest[1] < '@' || rest[1] > '_') return 0;
    text.words += ' ';
    return 2;
}

} // namespace

MadeText plainLine(std::string_view words)
{
    MadeText text;
    while (!words.empty()) {
        std::size_t taken = takePercent(words, text);
        if (taken == 0) taken = takeCaret(words, text);
        if (taken == 0) {
            text.words += words[0] >= 0 && words[0] < ' ' ? ' ' : words[0];
            taken = 1;
        }
        words.remove_prefix(taken);
    }
    return text;
}

} // namespace mirtane
