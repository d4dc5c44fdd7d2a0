#include "text/code_page.h"

#include <gtest/gtest.h>
#include <string>

namespace mirtane {
namespace {

struct Pair {
    const char* what;
    const char* utf8;
    const char* bytes;
};

const Pair pairs[] = {
    {"plain letters", "Line 1", "Line 1"},
    {"nothing", "", ""},
    {"degree sign", "45\xC2\xB0", "45\xB0"},
    {"letters with marks", "\xC3\x84\xC3\xA9\xC3\xBF", "\xC4\xE9\xFF"},
    {"no-break space, first of the upper part", "\xC2\xA0", "\xA0"},
    {"euro, first of the odd part", "\xE2\x82\xAC", "\x80"},
    {"florin", "\xC6\x92", "\x83"},
    {"ellipsis", "\xE2\x80\xA6", "\x85"},
    {"circumflex", "\xCB\x86", "\x88"},
    {"per mille", "\xE2\x80\xB0", "\x89"},
    {"capital s caron", "\xC5\xA0", "\x8A"},
    {"capital ligature", "\xC5\x92", "\x8C"},
    {"capital z caron", "\xC5\xBD", "\x8E"},
    {"single quotes", "\xE2\x80\x98\xE2\x80\x99", "\x91\x92"},
    {"double quotes", "\xE2\x80\x9C\xE2\x80\x9D", "\x93\x94"},
    {"low quotes", "\xE2\x80\x9A\xE2\x80\x9E", "\x82\x84"},
    {"daggers", "\xE2\x80\xA0\xE2\x80\xA1", "\x86\x87"},
    {"angle quotes", "\xE2\x80\xB9\xE2\x80\xBA", "\x8B\x9B"},
    {"bullet and dashes", "\xE2\x80\xA2\xE2\x80\x93\xE2\x80\x94", "\x95\x96\x97"},
    {"small tilde and trade mark", "\xCB\x9C\xE2\x84\xA2", "\x98\x99"},
    {"small s caron, ligature, z caron", "\xC5\xA1\xC5\x93\xC5\xBE", "\x9A\x9C\x9E"},
    {"y diaeresis, last of the odd part", "\xC5\xB8", "\x9F"},
    {"the five open bytes", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D", "\x81\x8D\x8F\x90\x9D"},
};

TEST(CodePage, WritesEachCharacterAsItsByte)
{
    for (const Pair& pair : pairs) EXPECT_EQ(toCodePage(pair.utf8), pair.bytes) << pair.what;
}

TEST(CodePage, ReadsEachByteAsItsCharacter)
{
    for (const Pair& pair : pairs) EXPECT_EQ(fromCodePage(pair.bytes), pair.utf8) << pair.what;
}

TEST(CodePage, AllBytesComeBack)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i); // each byte once, zero too
    EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
}

TEST(CodePage, WhatItLacksIsOneQuestionMark)
{
    const Pair rows[] = {
        {"Greek", "\xCE\xB1", "?"},
        {"first code beyond the bytes", "\xC4\x80", "?"},
        {"a character of four bytes", "a\xF0\x9F\x98\x80z", "a?z"},
        {"the control character whose byte is the euro", "\xC2\x80", "?"},
        {"the control character whose byte is a dash", "\xC2\x96", "?"},
        {"infinity", "\xE2\x88\x9E", "?"},
    };
    for (const Pair& row : rows) EXPECT_EQ(toCodePage(row.utf8), row.bytes) << row.what;
}

TEST(CodePage, IsTheSameAsUtf8BelowEightyAlone)
{
    EXPECT_TRUE(isSameInCodePage(""));
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = "ab" + std::string(1, static_cast<char>(byte)) + "c"; // its bits
        EXPECT_EQ(isSameInCodePage(text), byte < 0x80) << byte;
        EXPECT_EQ(isSameInCodePage(text) && toCodePage(text) != text, false) << byte;
    }
}

TEST(CodePage, TellsTheFirstCharacterThatItLacks)
{
    const Pair rows[] = {
        {"nothing", "", ""},
        {"all there", "\xC3\x98 20 \xE2\x82\xAC\xC2\x81\xC2\xA0", ""},
        {"at the start", "\xCE\xA9 and \xD0\x96", "\xCE\xA9"},
        {"at the end", "d\xC3\xA9j\xC3\xA0 \xE5\xAE\xB6", "\xE5\xAE\xB6"},
        {"of four bytes", "a\xF0\x9F\x98\x80z", "\xF0\x9F\x98\x80"},
        {"an accent by itself", "e\xCC\x81", "\xCC\x81"},
        {"a malformed byte", "a\xFFz", "\xFF"},
    };
    for (const Pair& row : rows) EXPECT_EQ(firstBeyondCodePage(row.utf8), row.bytes) << row.what;
}

TEST(CodePage, EachMalformedByteIsAQuestionMark)
{
    const Pair rows[] = {
        {"a continuation alone", "a\x80z", "a?z"},
        {"a lead at the end", "a\xC3", "a?"},
        {"a character cut short", "\xE2\x82", "??"},
        {"a character broken off", "\xE2\x82z", "??z"},
        {"an overlong form", "\xC0\xAF", "??"},
        {"an encoded surrogate", "\xED\xA0\x80", "???"},
        {"beyond the last code", "\xF4\x90\x80\x80", "????"},
        {"a good character after a bad byte", "\xFF\xC2\xB0", "?\xB0"},
    };
    for (const Pair& row : rows) EXPECT_EQ(toCodePage(row.utf8), row.bytes) << row.what;
}

} // namespace
} // namespace mirtane
