// text/code_page.cpp: Windows-1252 is Latin-1 but for the 32 bytes from 80 to 9F.

#include "text/code_page.h"

#include "text/utf8.h"

#include <algorithm>
#include <iterator>

namespace mirtane {
namespace {

constexpr char32_t firstOdd = 0x80;
constexpr char32_t oddCodes[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};
constexpr char32_t lastOdd = firstOdd + std::size(oddCodes) - 1;
constexpr char32_t lastByte = 0xFF;

bool isOdd(char32_t code)
{
    return code >= firstOdd && code <= lastOdd;
}

const char32_t* oddCode(char32_t code)
{
    return std::ranges::find(oddCodes, code);
}

char32_t byteFor(char32_t code)
{
    if (!inCodePage(code)) return U'?';
    if (code <= lastByte && !isOdd(code)) return code;
    return firstOdd + static_cast<char32_t>(oddCode(code) - std::begin(oddCodes)); // below 32
}

} // namespace

bool inCodePage(char32_t code)
{
    return (code <= lastByte && !isOdd(code)) || oddCode(code) != std::end(oddCodes);
}

std::string_view firstBeyondCodePage(std::string_view utf8)
{
    while (!utf8.empty()) {
        const Utf8Step step = firstCharacter(utf8);
        if (!step.wellFormed || !inCodePage(step.code)) return utf8.substr(0, step.size);
        utf8.remove_prefix(step.size);
    }
    return {};
}

bool isSameInCodePage(std::string_view utf8)
{
    // A char is signed on some machines and not on others.
    return std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < firstOdd; });
}

std::string toCodePage(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Step step = firstCharacter(utf8);
        bytes += step.wellFormed ? static_cast<char>(byteFor(step.code)) : '?'; // at most 0xFF
        utf8.remove_prefix(step.size);
    }
    return bytes;
}

std::string fromCodePage(std::string_view bytes)
{
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const char32_t byte = static_cast<unsigned char>(c); // char may be signed
        utf8 += encodeUtf8(isOdd(byte) ? oddCodes[byte - firstOdd] : byte);
    }
    return utf8;
}

} // namespace mirtane
