#include "text/ascii.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(AsciiLetters, AloneAreMadeSmallOrCapital)
{
    EXPECT_EQ(inSmallLetters("@AZ[`az{ 09\xC3\x84"), "@az[`az{ 09\xC3\x84");
    EXPECT_EQ(inCapitals("@AZ[`az{ 09\xC3\xA4"), "@AZ[`AZ{ 09\xC3\xA4");
}

TEST(AsciiLetters, OfNamesAreComparedWithoutCase)
{
    EXPECT_TRUE(isSameButForCase("House-2.MTD", "hOUSE-2.mtd"));
    EXPECT_TRUE(isSameButForCase("", ""));
    EXPECT_FALSE(isSameButForCase("house", "houses"));
    EXPECT_FALSE(isSameButForCase("[", "{")) << "apart as a letter and its capital are";
    EXPECT_FALSE(isSameButForCase("\xC3\x84", "\xC3\xA4"));
}

TEST(Trimmed, LosesTheBlanksAtItsEndsAlone)
{
    EXPECT_EQ(trimmed(" \t two words\t "), "two words");
    EXPECT_EQ(trimmed("\t x \t", " "), "\t x \t");
    EXPECT_EQ(trimmed(" \t\r x\r", " \t\r"), "x");
    for (const char* blank : {"", " ", "\t  \t"}) EXPECT_EQ(trimmed(blank), "");
}

} // namespace
} // namespace mirtane
