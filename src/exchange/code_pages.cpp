// exchange/code_pages.cpp: bytes of a DXF file as characters. What can't be known is a question mark, never a
// wrong letter.

#include "exchange/code_pages.h"

#include "exchange/code_page_tables.h"
#include "text/ascii.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace mirtane {
namespace {

constexpr std::string_view firstInUtf8 = "AC1021";
constexpr int windowsWestern = 1252;
constexpr int japanese = 932;

// The digits of a name in one number: "ANSI_1250" is 1250, "ISO8859_2" 88592.
int numberIn(std::string_view name)
{
    constexpr int mostDigits = 100000;
    int number = 0;
    for (const char c : name) {
        if (c >= '0' && c <= '9' && number < mostDigits) number = number * 10 + (c - '0');
    }
    return number;
}

bool isDoubleByte(int number)
{
    constexpr int pages[] = {japanese, 936, 949, 950, 1361, 5601, 2312, 5};
    return std::ranges::find(pages, number) != std::end(pages);
}

// Letters of half the width that Japanese files have beside those of two bytes.
bool isHalfWidth(unsigned char byte)
{
    return byte >= 0xA1 && byte <= 0xDF;
}

const char16_t* upperHalfOf(int number)
{
    for (const CodePageTable& table : codePageTables()) {
        if (table.number == number) return table.upperHalf.data();
    }
    return nullptr;
}

bool isWellFormed(std::string_view text)
{
    while (!text.empty()) {
        const Utf8Step step = firstCharacter(text);
        if (!step.wellFormed) return false;
        text.remove_prefix(step.size);
    }
    return true;
}

struct Escape {
    std::string character;
    std::size_t size = 0;
};

bool isHex(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    });
}

constexpr std::size_t unicodeSize = 7;

// The number in \U+00E9.
std::optional<std::uint32_t> unicodeAt(std::string_view text)
{
    if (text.size() < unicodeSize || !(text.starts_with("\\U+") || text.starts_with("\\u+"))) return {};
    if (!isHex(text.substr(3, 4))) return {};
    std::uint32_t code = 0;
    std::from_chars(text.data() + 3, text.data() + unicodeSize, code, 16);
    return code;
}

// Characters past the first 65,536 stand as two numbers, each of which alone is none.
std::optional<Escape> pairAt(std::string_view text)
{
    constexpr std::uint32_t firsts = 0xD800, seconds = 0xDC00, half = 0x400, beyond = 0x10000;
    const auto first = unicodeAt(text);
    const auto second = first ? unicodeAt(text.substr(unicodeSize)) : first;
    if (!second || *first - firsts >= half || *second - seconds >= half) return {};
    return Escape{encodeUtf8(beyond + (*first - firsts) * half + (*second - seconds)), 2 * unicodeSize};
}

// \U+00E9 is a character; \M+182A0 two bytes in one of the pages that need two.
std::optional<Escape> escapeAt(std::string_view text)
{
    constexpr std::size_t bytesSize = 8;
    const bool isBytes = text.starts_with("\\M+") || text.starts_with("\\m+");
    if (isBytes && text.size() >= bytesSize && isHex(text.substr(3, 5))) return Escape{"?", bytesSize};
    if (auto pair = pairAt(text)) return pair;
    const auto code = unicodeAt(text);
    if (!code) return {};
    return Escape{*code < ' ' ? std::string() : encodeUtf8(*code), unicodeSize};
}

struct Stand {
    std::string_view sign, likeIt;
};

// Signs that drawings of ours can't keep, by those that look like them.
constexpr Stand stands[] = {
    {"\u2205", "Ø"}, {"\u2300", "Ø"}, {"\u03BC", "µ"},  {"\u2212", "-"}, {"\u2010", "-"},
    {"\u2011", "-"}, {"\u2032", "'"}, {"\u2033", "\""}, {"\u2044", "/"}, {"\u2009", " "},
};

std::string withLikeSigns(std::string text)
{
    if (isSameInCodePage(text)) return text;
    for (const Stand& one : stands) {
        for (std::size_t at = text.find(one.sign); at != text.npos;
             at = text.find(one.sign, at + one.likeIt.size()))
            text.replace(at, one.sign.size(), one.likeIt);
    }
    return text;
}

// Programs that say so write other letters all the same.
bool saysNothing(std::string_view codePage)
{
    return codePage.empty() || isSameButForCase(codePage, "ascii") || isSameButForCase(codePage, "undefined");
}

bool isUtf8Named(std::string_view codePage)
{
    return isSameButForCase(codePage, "UTF-8") || isSameButForCase(codePage, "UTF8");
}

} // namespace

TextCoding::TextCoding(std::string_view codePage, std::string_view release)
    : isUtf8_(release >= firstInUtf8 && release.starts_with("AC")),
      isGuess_(saysNothing(codePage) || isUtf8Named(codePage))
{
    const int number = numberIn(codePage);
    const bool isMac = codePage.starts_with("mac") || codePage.starts_with("MAC");
    isJapanese_ = number == japanese;
    isDouble_ = isDoubleByte(number) || codePage == "johab" || codePage == "JOHAB";
    upperHalf_ = isDouble_ ? nullptr : upperHalfOf(isMac ? 10000 : number);
}

void TextCoding::append(std::string& out, std::string_view bytes) const
{
    static const char16_t* const western = upperHalfOf(windowsWestern);
    const char16_t* const page = isGuess_ ? western : upperHalf_;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]); // char may be signed
        if (byte < 0x80) {
            out += bytes[i];
        } else if (isDouble_) {
            out += '?';
            if (!isJapanese_ || !isHalfWidth(byte)) ++i; // its second byte may look like any other
        } else {
            const char16_t code = page == nullptr ? u'\0' : page[byte - 0x80];
            out += code == 0 ? "?" : encodeUtf8(code);
        }
    }
}

bool TextCoding::losesLettersOf(std::string_view bytes) const
{
    return std::ranges::count(utf8(bytes), '?') > std::ranges::count(bytes, '?');
}

std::string TextCoding::utf8(std::string_view bytes) const
{
    std::string plain;
    const bool isPlain = std::ranges::all_of(bytes, [](char c) { return c >= 0; });
    if (isPlain || ((isUtf8_ || isGuess_) && isWellFormed(bytes)))
        plain = bytes;
    else
        append(plain, bytes);
    std::string out;
    std::string_view rest = plain;
    for (std::size_t at = rest.find('\\'); at != rest.npos; at = rest.find('\\', at)) {
        const auto escape = escapeAt(rest.substr(at));
        if (!escape) {
            ++at;
            continue;
        }
        out.append(rest.substr(0, at)).append(escape->character);
        rest.remove_prefix(at + escape->size);
        at = 0;
    }
    return withLikeSigns(std::move(out.append(rest)));
}

} // namespace mirtane
