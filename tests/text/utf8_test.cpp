#include "text/utf8.h"

#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <vector>

namespace mirtane {
namespace {

TEST(EncodeUtf8, EachLengthAtItsFirstAndLastCode)
{
    struct Row {
        char32_t code;
        const char* bytes;
    };
    const Row rows[] = {
        {0x01, "\x01"},
        {0x41, "A"},
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0xB0, "\xC2\xB0"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0x20AC, "\xE2\x82\xAC"},
        {0xD7FF, "\xED\x9F\xBF"},
        {0xE000, "\xEE\x80\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x1F600, "\xF0\x9F\x98\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(encodeUtf8(row.code), row.bytes) << "code " << std::hex << static_cast<unsigned>(row.code);
    }
    EXPECT_EQ(encodeUtf8(0), std::string(1, '\0'));
}

TEST(EncodeUtf8, SurrogatesAndCodesBeyondTheLastAreAQuestionMark)
{
    const char32_t codes[] = {0xD800, 0xDABC, 0xDFFF, 0x110000, 0xFFFFFFFF};
    for (const char32_t code : codes) EXPECT_EQ(encodeUtf8(code), "?");
}

TEST(FirstCharacter, GivesEveryCodeBackThatWasEncoded)
{
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) code = 0xE000;
        const std::string bytes = encodeUtf8(code);
        const Utf8Step step = firstCharacter(bytes);
        ASSERT_TRUE(step.wellFormed && step.code == code && step.size == bytes.size())
            << "code " << std::hex << static_cast<unsigned>(code);
    }
}

TEST(FirstCharacter, OfAnEmptyTextHasNoSize)
{
    EXPECT_EQ(firstCharacter("").size, 0u);
    EXPECT_FALSE(firstCharacter("").wellFormed);
}

TEST(Utf8Characters, CutsATextIntoItsCharacters)
{
    const std::vector<std::string> expected{"a", "\xC2\xB0", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "z"};
    EXPECT_EQ(utf8Characters("a\xC2\xB0\xE2\x82\xAC\xF0\x9F\x98\x80z"), expected);
    EXPECT_TRUE(utf8Characters("").empty());
}

TEST(Utf8Characters, EachMalformedByteStandsByItself)
{
    struct Row {
        const char* what;
        const char* text;
        std::size_t length;
    };
    const Row rows[] = {
        {"a continuation alone", "\x80", 1},
        {"a lead at the end", "\xC3", 1},
        {"a lead and another character",
         "\xC3"
         "A",
         2},
        {"three bytes cut after two", "\xE2\x82", 2},
        {"three bytes broken by a letter",
         "\xE2\x82"
         "A",
         3},
        {"four bytes cut after three", "\xF0\x9F\x98", 3},
        {"an overlong slash", "\xC0\xAF", 2},
        {"an overlong slash of three", "\xE0\x80\xAF", 3},
        {"an overlong slash of four", "\xF0\x80\x80\xAF", 4},
        {"an encoded surrogate", "\xED\xA0\x80", 3},
        {"beyond the last code", "\xF4\x90\x80\x80", 4},
        {"bytes that never occur", "\xF8\xFE\xFF", 3},
        {"a good character after a bad byte", "\xFF\xC2\xB0", 2},
        {"a good one after a cut one", "\xE2\x82\xC2\xB0", 3},
    };
    for (const Row& row : rows) {
        const std::vector<std::string> characters = utf8Characters(row.text);
        EXPECT_EQ(characters.size(), row.length) << row.what;
        EXPECT_EQ(utf8Length(row.text), row.length) << row.what;
        EXPECT_EQ(std::accumulate(characters.begin(), characters.end(), std::string()), row.text) << row.what;
    }
}

TEST(Utf8Length, CountsCharactersAndNotBytes)
{
    EXPECT_EQ(utf8Length(""), 0u);
    EXPECT_EQ(utf8Length("abc"), 3u);
    EXPECT_EQ(utf8Length("12\xC2\xB0"), 3u);
    EXPECT_EQ(utf8Length("\xF0\x9F\x98\x80"), 1u);
    EXPECT_EQ(utf8Length(std::string_view("a\0b", 3)), 3u);
}

} // namespace
} // namespace mirtane
