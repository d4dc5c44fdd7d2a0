// text/utf8.cpp: overlong forms and encoded surrogates are malformed, so that a character has one form only.

#include "text/utf8.h"

#include <iterator>

namespace mirtane {
namespace {

constexpr char32_t lastCode = 0x10FFFF;

bool isSurrogate(char32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

char32_t byteOf(char c)
{
    return static_cast<unsigned char>(c); // char may be signed
}

// How a character of a given length is made up: its first byte, and the least code that needs this length.
struct Shape {
    char32_t leadMask;
    char32_t lead;
    char32_t leastCode;
};

constexpr Shape shapes[] = {
    {0x80, 0x00, 0x0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

char asChar(char32_t byte)
{
    return static_cast<char>(byte); // at most 0xFF at every call
}

} // namespace

Utf8Step firstCharacter(std::string_view text)
{
    if (text.empty()) return {};
    const char32_t lead = byteOf(text[0]);
    const Utf8Step malformed{lead, 1, false};

    std::size_t size = 1;
    while (size <= std::size(shapes) && (lead & shapes[size - 1].leadMask) != shapes[size - 1].lead) ++size;
    if (size > std::size(shapes) || size > text.size()) return malformed;

    const Shape& shape = shapes[size - 1];
    char32_t code = lead & ~shape.leadMask;
    for (const char c : text.substr(1, size - 1)) {
        if ((byteOf(c) & 0xC0) != 0x80) return malformed;
        code = code << 6 | (byteOf(c) & 0x3F);
    }
    if (code < shape.leastCode || code > lastCode || isSurrogate(code)) return malformed;
    return {code, size, true};
}

std::string encodeUtf8(char32_t code)
{
    if (code > lastCode || isSurrogate(code)) return "?";
    std::size_t size = std::size(shapes);
    while (code < shapes[size - 1].leastCode) --size;

    std::string bytes(size, '\0');
    for (std::size_t i = size - 1; i > 0; --i) {
        bytes[i] = asChar(0x80 | (code & 0x3F));
        code >>= 6;
    }
    bytes[0] = asChar(shapes[size - 1].lead | code);
    return bytes;
}

std::vector<std::string> utf8Characters(std::string_view text)
{
    std::vector<std::string> characters;
    while (!text.empty()) {
        const std::size_t size = firstCharacter(text).size;
        characters.emplace_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return characters;
}

std::size_t utf8Length(std::string_view text)
{
    std::size_t length = 0;
    for (; !text.empty(); ++length) text.remove_prefix(firstCharacter(text).size);
    return length;
}

} // namespace mirtane
