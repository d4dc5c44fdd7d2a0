#include "exchange/words_out.h"

#include "exchange/code_pages.h"
#include "exchange/folded_name.h"
#include "text/ascii.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <algorithm>

namespace mirtane {
namespace {

void addHex(std::string& to, char32_t code)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    to += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) to += digits[(code >> shift) & 0xF];
}

// Four digits have no room for what is beyond the first plane: it stands there in two halves.
void addUnicode(std::string& to, char32_t code)
{
    constexpr char32_t firstPlane = 0x10000;
    if (code < firstPlane) return addHex(to, code);
    addHex(to, 0xD800 + ((code - firstPlane) >> 10));
    addHex(to, 0xDC00 + ((code - firstPlane) & 0x3FF));
}

bool isControl(char32_t code)
{
    return code < U' ' || (code >= 0x7F && code < 0xA0);
}

bool partsWords(char32_t code)
{
    return code == U'\n' || code == U'\r' || code == U'\t';
}

using AddLetter = void (*)(std::string& to, char32_t code, std::string_view rest);

void addAsNumber(std::string& to, char32_t code, std::string_view)
{
    addUnicode(to, code);
}

// Takes each letter of a text that shows; addAscii and addOther are asked what becomes of it. The words on
// both sides of a line end or a tab stay apart.
std::string encoded(std::string_view utf8, AddLetter addAscii, AddLetter addOther = addAsNumber)
{
    constexpr char32_t beyondAscii = 0x80;
    std::string line;
    while (!utf8.empty()) {
        const Utf8Step step = firstCharacter(utf8);
        const bool ofTwo = utf8.starts_with("\r\n");
        utf8.remove_prefix(step.size);
        if (partsWords(step.code) && !ofTwo) line += ' ';
        if (isControl(step.code)) continue;
        if (step.code >= beyondAscii)
            addOther(line, step.code, utf8);
        else
            addAscii(line, step.code, utf8);
    }
    return line;
}

char asciiOf(char32_t code)
{
    return static_cast<char>(code); // below 0x80 where this is asked
}

void addCaret(std::string& to)
{
    to += "^ ";
}

// A backslash begins the number of a letter.
void addBackslash(std::string& to, std::string_view rest)
{
    if (rest.starts_with("U+") || rest.starts_with("u+") || rest.starts_with("M+"))
        addHex(to, U'\\');
    else
        to += '\\';
}

// Two percent signs begin a sign, and three are one that shows.
void addPercent(std::string& to, std::string_view rest)
{
    const bool behindAnother = to.ends_with('%');
    to += rest.starts_with('%') || behindAnother ? "%%%" : "%";
}

void addToLine(std::string& to, char32_t code, std::string_view rest)
{
    if (code == U'^') return addCaret(to);
    if (code == U'\\') return addBackslash(to, rest);
    if (code == U'%') return addPercent(to, rest);
    to += asciiOf(code);
}

void addToParagraph(std::string& to, char32_t code, std::string_view)
{
    if (code == U'^') return addCaret(to);
    if (code == U'\\' || code == U'{' || code == U'}') to += '\\';
    to += asciiOf(code);
}

void addAsItIs(std::string& to, char32_t code, std::string_view rest)
{
    if (code == U'\\') return addBackslash(to, rest);
    to += asciiOf(code);
}

void addToName(std::string& to, char32_t code, std::string_view)
{
    constexpr std::string_view forbidden = "<>/\\\":;?*|,=`^%";
    const char letter = asciiOf(code);
    to += forbidden.find(letter) == std::string_view::npos ? letter : '_';
}

// As a byte of the file's code page, which even those know who don't know the numbers of letters.
void addToNameBeyondAscii(std::string& to, char32_t code, std::string_view)
{
    if (inCodePage(code))
        to += toCodePage(encodeUtf8(code));
    else
        addUnicode(to, code);
}

void addAsLetter(std::string& to, char32_t code, std::string_view)
{
    to += encodeUtf8(code);
}

std::string withoutBlanksAround(const std::string& name)
{
    const std::string_view bare = trimmed(name, " ");
    return bare.empty() ? "_" : std::string(bare);
}

// The first letters of a text, as many as have room.
std::string_view shortened(std::string_view utf8, std::size_t letters)
{
    std::size_t end = 0;
    for (; letters > 0 && end < utf8.size(); --letters) end += firstCharacter(utf8.substr(end)).size;
    return utf8.substr(0, end);
}

} // namespace

std::string dxfLineOfText(std::string_view utf8)
{
    return encoded(utf8, addToLine);
}

std::string dxfParagraph(std::string_view utf8)
{
    return encoded(utf8, addToParagraph);
}

std::vector<std::string> dxfPieces(std::string_view utf8)
{
    constexpr std::size_t lettersOfAPiece = 20; // of at most 14 bytes each: a piece has 255 at the most
    std::vector<std::string> pieces;
    do {
        const std::string_view piece = shortened(utf8, lettersOfAPiece);
        utf8.remove_prefix(piece.size());
        pieces.push_back(encoded(piece, addAsItIs));
    } while (!utf8.empty());
    return pieces;
}

std::string dxfFirstPiece(std::string_view utf8)
{
    constexpr std::size_t longest = 255; // bytes
    std::string_view kept = shortened(utf8, longest);
    std::string piece = encoded(kept, addAsItIs);
    while (piece.size() > longest) {
        kept = shortened(kept, utf8Length(kept) - 1);
        piece = encoded(kept, addAsItIs);
    }
    return piece;
}

std::string DxfNames::add(std::string_view utf8)
{
    constexpr std::size_t longest = 240; // bytes, of 255 that a name may have
    std::string_view kept = shortened(utf8, longest);
    std::string whole = encoded(kept, addToName, addToNameBeyondAscii);
    while (whole.size() > longest) {
        kept = shortened(kept, utf8Length(kept) - 1);
        whole = encoded(kept, addToName, addToNameBeyondAscii);
    }
    const std::string base = withoutBlanksAround(whole);
    const std::string read = withoutBlanksAround(encoded(kept, addToName, addAsLetter));
    std::string more;
    for (int n = 2; !taken_.insert(foldedName(read + more)).second; ++n) more = "-" + std::to_string(n);
    return base + more;
}

std::string nameAsRead(std::string_view written)
{
    return TextCoding(writtenCodePage, writtenRelease).utf8(written);
}

int dxfSideOf(std::int16_t justification)
{
    constexpr std::int16_t right = 1;
    constexpr std::int16_t centre = 2;
    if (justification == centre) return 1;
    return justification == right ? 2 : 0;
}

} // namespace mirtane
