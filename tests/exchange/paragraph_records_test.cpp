#include "read_in_full.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

Vec baselineOf(const Made& text)
{
    constexpr double radians = std::numbers::pi / 180;
    return text.p[0] - text.size * turnedLeft(wayAt(text.rotation * radians));
}

TEST(ParagraphRecord, EachLineIsATextInItsPlace)
{
    const std::string text = "0 MTEXT\n8 0\n10 100\n20 50\n30 0\n40 2\n41 0\n71 1\n1 one\\Ptwo %%c5\n";
    struct Row {
        const char* what;
        std::string turn;
        Vec first, second;
        double degrees;
    };
    const double step = 10.0 / 3;
    const Vec w = wayAt(std::numbers::pi / 6);
    const Row rows[] = {
        {"level", "", {100, 48}, {100, 48 - step}, 0},
        {"by an angle", "50 30\n", Vec{100, 50} - 2.0 * turnedLeft(w),
         Vec{100, 50} - (2 + step) * turnedLeft(w), 30},
        {"by a way", "11 0\n21 -4\n31 0\n", {98, 50}, {98 - step, 50}, 270},
        {"the later of both counts", "11 1\n21 1\n31 0\n50 0\n", {100, 48}, {100, 48 - step}, 0},
    };
    for (const Row& row : rows) {
        const auto texts = ofKind(madeFrom(text + row.turn), Kind::text);
        ASSERT_EQ(texts.size(), 2U) << row.what;
        EXPECT_EQ(texts[0].text.words, "one");
        EXPECT_EQ(texts[1].text.words, "two \u00D85");
        EXPECT_LT(length(baselineOf(texts[0]) - row.first), 1e-6) << row.what;
        EXPECT_LT(length(baselineOf(texts[1]) - row.second), 1e-6) << row.what;
        EXPECT_NEAR(std::remainder(texts[0].rotation - row.degrees, 360), 0, 1e-6) << row.what;
        EXPECT_NEAR(texts[0].size, 2, 1e-9);
    }
}

// The lines of a paragraph that is seen from below follow one another upward, and can be read.
TEST(ParagraphRecord, SeenFromBelowItIsMirrored)
{
    const std::string text = "0 MTEXT\n8 0\n10 100\n20 50\n30 0\n40 2\n41 0\n71 1\n1 one\\Ptwo\n";
    const double step = 10.0 / 3;
    struct Row {
        const char* what;
        std::string groups;
        Vec first, second; // baselines
        double degrees;
    };
    const Row rows[] = {
        {"along x", "210 0\n220 0\n230 -1\n11 1\n21 0\n31 0\n", {100, 52}, {100, 52 + step}, 0},
        {"upward", "210 0\n220 0\n230 -1\n11 0\n21 1\n31 0\n", {98, 50}, {98 - step, 50}, 90},
        {"by an angle in its plane", "210 0\n220 0\n230 -1\n50 180\n", {100, 52}, {100, 52 + step}, 0},
        {"seen from above", "210 0\n220 0\n230 1\n11 1\n21 0\n31 0\n", {100, 48}, {100, 48 - step}, 0},
    };
    for (const Row& row : rows) {
        const auto texts = ofKind(madeFrom(text + row.groups), Kind::text);
        ASSERT_EQ(texts.size(), 2U) << row.what;
        const double between = length(texts[1].p[0] - texts[0].p[0]);
        EXPECT_NEAR(between, step, 1e-6) << row.what;
        EXPECT_LT(length(texts[1].p[0] - texts[0].p[0] - (row.second - row.first)), 1e-6) << row.what;
        EXPECT_NEAR(std::remainder(texts[0].rotation - row.degrees, 360), 0, 1e-6) << row.what;
    }
}

TEST(ParagraphRecord, ALongTextStandsInSeveralGroups)
{
    const auto texts =
        ofKind(madeFrom("0 MTEXT\n8 0\n10 0\n20 0\n40 1\n41 0\n71 8\n3 the first \n3 part, \n1 the last\n"),
               Kind::text);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].text.words, "the first part, the last");
    EXPECT_EQ(texts[0].text.justification, 2);
}

TEST(ParagraphRecord, ACharacterMayBeginInOneGroupAndEndInTheNext)
{
    for (const char* words :
         {"3 caf\xC3\n1 \xA9 5\n", "3 caf\\U+0\n1 0E9 5\n", "3 caf\\U\n3 +00E\n1 9 5\n"}) {
        const auto texts =
            ofKind(madeFrom(std::string("0 MTEXT\n8 0\n10 0\n20 0\n40 1\n41 0\n71 1\n") + words), Kind::text);
        ASSERT_EQ(texts.size(), 1U) << words;
        EXPECT_EQ(texts[0].text.words, "caf\u00E9 5") << words;
    }
}

TEST(ParagraphRecord, ItsStyleGivesTheFaceAndTheTextMayChangeItAndThePen)
{
    const std::string tables =
        "0 TABLE\n2 STYLE\n0 STYLE\n2 HAND\n70 0\n40 0\n41 1\n3 arial.ttf\n1001 ACAD\n1000 Arial\n0 ENDTAB\n";
    const auto texts = ofKind(madeFrom("0 MTEXT\n8 0\n62 3\n10 0\n20 0\n40 1\n7 Hand\n1 a\\P{\\fTimes New "
                                       "Roman|b0;b}\\P{\\C1;\\Lc}\\P\\c255;d\n",
                                       "", tables),
                              Kind::text);
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].text.face, "Arial");
    EXPECT_EQ(texts[1].text.face, "Times New Roman");
    EXPECT_EQ(texts[0].look.color, 0x00FF00);
    EXPECT_EQ(texts[2].look.color, 0x0000FF);
    EXPECT_EQ(texts[3].look.color, 0x0000FF);
    EXPECT_TRUE(texts[2].text.underlined);
    EXPECT_FALSE(texts[1].text.underlined);
}

TEST(ParagraphRecord, ColumnsOfALateReleaseStandInARecordWithin)
{
    const auto texts = ofKind(
        madeFrom("0 MTEXT\n8 0\n10 10\n20 0\n30 0\n40 1\n41 20\n71 1\n1 left\\Nright\n101 Embedded "
                 "Object\n70 1\n10 1\n20 0\n30 0\n"
                 "11 99\n21 99\n31 0\n40 45\n41 5\n42 45\n43 5\n71 1\n72 2\n44 20\n45 5\n73 0\n74 0\n"),
        Kind::text);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_LT(length(baselineOf(texts[0]) - Vec{10, -1}), 1e-6);
    EXPECT_LT(length(baselineOf(texts[1]) - Vec{35, -1}), 1e-6);
    EXPECT_NEAR(texts[0].rotation, 0, 1e-9);
}

} // namespace
} // namespace mirtane
