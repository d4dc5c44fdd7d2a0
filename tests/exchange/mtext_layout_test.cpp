#include "exchange/mtext_layout.h"

#include "exchange/mtext_codes.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

// The words of the lines, one a row.
std::string wordsOf(std::string_view text, const ParagraphForm& form = {})
{
    std::string words;
    for (const ParagraphLine& line : paragraphLines(text, form)) words += line.words + "|";
    return words;
}

TEST(Mtext, CodesBecomeWhatTheyStandFor)
{
    struct Row {
        const char* text;
        const char* words;
    };
    const Row rows[] = {
        {"plain", "plain|"},
        {R"(one\Ptwo\P\Pfour)", "one|two|four|"},
        {R"(a\~b)", "a\u00A0b|"},
        {R"(a\\b \{c\} d)", R"(a\b {c} d|)"},
        {R"({\fArial|b1|i0|c238|p34;bold} rest)", "bold rest|"},
        {R"({\Ftxt.shx;a}{b})", "ab|"},
        {R"(\H2.5;high \H0.5x;low)", "high low|"},
        {R"(\C1;red \c255;also \A1;\W0.8;\Q15;\T1.1;x)", "red also x|"},
        {R"(\S1/2;)", "1/2|"},
        {R"(3\S1#2;")", "3 1/2\"|"},
        {R"({\H0.7x;3\S7#8;})", "3 7/8|"},
        {R"(20\S+0,1^-0,3;)", "20 +0,1/-0,3|"},
        {R"(m\S2^ ;)", "m2|"},
        {R"(a\S^ 1;)", "a1|"},
        {R"(\Sa\/b/c;)", "a/b/c|"},
        {R"(\S5)", "5|"},
        {R"(\Lunder\l \Oover\o \Kthrough\k)", "under over through|"},
        {R"(\pxi-3,l3,t3;1.^Iitem)", "1.^Iitem|"},
        {"a^Jb^Mc", "a|bc|"},
        {"line\nline", "line|line|"},
        {R"(\M\z\)", R"(\M\z\|)"},
        {R"(}}{{{\H)", ""},
        {R"(%%c20)", "%%c20|"},
        {"\u5B57\u53F7 \u00E4", "\u5B57\u53F7 \u00E4|"},
        {"", ""},
    };
    for (const Row& row : rows) EXPECT_EQ(wordsOf(row.text), row.words) << row.text;
}

// Some programs leave out the semicolon behind a number.
TEST(Mtext, ACodeWithoutItsEndTakesItsNumberAlone)
{
    struct Row {
        const char* text;
        const char* words;
    };
    const Row rows[] = {
        {R"(\T1.4wide words)", "wide words|"},
        {R"(a\Q15b\W0.8c\Q-7.5d)", "abcd|"},
        {R"(\H3.5tall; so)", "tall; so|"},
        {R"({\C3red} and {\c255blue})", "red and blue|"},
        {R"({\A1{\H0.5xlow}} high)", "low high|"},
        {R"(\T1.4;\T+2;end;)", "end;|"},
        {R"(\Tno; more)", " more|"},
    };
    for (const Row& row : rows) EXPECT_EQ(wordsOf(row.text), row.words) << row.text;
    EXPECT_EQ(letterRuns(R"(\H0.5xlow)", {.height = 8})[0].form.height, 4);
    EXPECT_EQ(letterRuns(R"(\H6.25low)", {.height = 8})[0].form.height, 6.25);
    EXPECT_EQ(letterRuns(R"(\C5low; down)", {})[0].form.color, 5);
}

TEST(Mtext, FormsHoldUntilTheBraceCloses)
{
    const auto runs = letterRuns(R"(a{\H2x;\LB{\C3;\fIsocpeur|b0;c}d}\H5;e\c16711935;f)", {.height = 3});
    ASSERT_EQ(runs.size(), 6U);
    struct Row {
        const char* words;
        double height;
        bool underlined;
        const char* face;
        std::optional<int> color, trueColor;
    };
    const Row rows[] = {
        {"a", 3, false, "", {}, {}}, {"B", 6, true, "", {}, {}},  {"c", 6, true, "Isocpeur", 3, {}},
        {"d", 6, true, "", {}, {}},  {"e", 5, false, "", {}, {}}, {"f", 5, false, "", {}, 0xFF00FF},
    };
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(runs[i].words, rows[i].words);
        EXPECT_EQ(runs[i].form.height, rows[i].height) << rows[i].words;
        EXPECT_EQ(runs[i].form.underlined, rows[i].underlined) << rows[i].words;
        EXPECT_EQ(runs[i].form.face, rows[i].face) << rows[i].words;
        EXPECT_EQ(runs[i].form.color, rows[i].color) << rows[i].words;
        EXPECT_EQ(runs[i].form.trueColor, rows[i].trueColor) << rows[i].words;
    }
    EXPECT_EQ(letterRuns(R"(\c255;x)", {})[0].form.trueColor, 0xFF0000);
    EXPECT_EQ(letterRuns(R"(\H0;\H-2;\Hq;x)", {.height = 7})[0].form.height, 7);
}

TEST(Mtext, LinesStandByTheirAttachment)
{
    struct Row {
        int attachment;
        Vec first, second;
        int justification;
    };
    // Letters of 3 are 5 apart, from line to line.
    const Row rows[] = {
        {1, {0, -3}, {0, -8}, 0}, {2, {0, -3}, {0, -8}, 2}, {3, {0, -3}, {0, -8}, 1}, {4, {0, 1}, {0, -4}, 0},
        {5, {0, 1}, {0, -4}, 2},  {6, {0, 1}, {0, -4}, 1},  {7, {0, 5}, {0, 0}, 0},   {8, {0, 5}, {0, 0}, 2},
        {9, {0, 5}, {0, 0}, 1},   {0, {0, -3}, {0, -8}, 0},
    };
    for (const Row& row : rows) {
        for (const double width : {0.0, 200.0}) {
            ParagraphForm form{.height = 3, .width = width, .attachment = row.attachment};
            const auto lines = paragraphLines(R"(upper\Plower, wider)", form);
            ASSERT_EQ(lines.size(), 2U);
            EXPECT_NEAR(lines[0].at.x, row.first.x, 1e-9) << row.attachment;
            EXPECT_NEAR(lines[0].at.y, row.first.y, 1e-9) << row.attachment;
            EXPECT_NEAR(lines[1].at.y, row.second.y, 1e-9) << row.attachment;
            EXPECT_EQ(lines[1].justification, row.justification) << row.attachment;
        }
    }
}

TEST(Mtext, HighLettersPushTheirLineDown)
{
    ParagraphForm form{.height = 3, .lineSpacing = 1.5};
    auto lines = paragraphLines(R"(\H6;A\P\H3;b{\H6;c}\Pd)", form);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_NEAR(lines[0].at.y, -6, 1e-9);
    EXPECT_NEAR(lines[1].at.y, -21, 1e-9);
    EXPECT_NEAR(lines[2].at.y, -28.5, 1e-9);
    EXPECT_EQ(lines[1].height, 3);
    form.exactSpacing = true;
    lines = paragraphLines(R"(\H6;A\P\H3;b{\H6;c}\Pd)", form);
    EXPECT_NEAR(lines[1].at.y, -13.5, 1e-9);
}

TEST(Mtext, ParagraphsStandWhereTheySay)
{
    const ParagraphForm form{.height = 2, .width = 100, .attachment = 5};
    const auto lines = paragraphLines(R"(\pxqr;right\P\pql;left\Pstill\P\pqc;mid)", form);
    ASSERT_EQ(lines.size(), 4U);
    const double x[] = {50, -50, -50, 0};
    const int justification[] = {1, 0, 0, 2};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(lines[i].at.x, x[i], 1e-9) << i;
        EXPECT_EQ(lines[i].justification, justification[i]) << i;
    }
}

TEST(Mtext, LinesAreWrappedBetweenWords)
{
    const ParagraphForm narrow{.height = 1, .width = 12};
    EXPECT_EQ(wordsOf("seven words that stand in a narrow place", narrow),
              "seven words that|stand in a narrow|place|");
    EXPECT_EQ(wordsOf("unbreakableasitis word", narrow), "unbreakableasitis|word|");
    EXPECT_EQ(wordsOf("\u5B57\u53F7\u5B57\u53F7\u5B57\u53F7\u5B57\u53F7\u5B57\u53F7", narrow).size(), 32U);
    EXPECT_EQ(wordsOf("seven words that stand in a narrow place"),
              "seven words that stand in a narrow place|");
    const ParagraphForm slim{.height = 1, .width = 12, .widthFactor = 0.5};
    EXPECT_EQ(wordsOf("seven words that stand in a narrow place", slim),
              "seven words that stand in a narrow|place|");
}

TEST(Mtext, ColumnsStandSideBySide)
{
    ParagraphForm form{.height = 1};
    form.columns = {3, 20, 5, {4, 0, 4}};
    const auto lines = paragraphLines(R"(a\Pb\Pc\Pd\Ne)", form);
    ASSERT_EQ(lines.size(), 5U);
    const double x[] = {0, 0, 0, 25, 50};
    for (std::size_t i = 0; i < 5; ++i) EXPECT_NEAR(lines[i].at.x, i == 2 ? 25 : x[i], 1e-9) << i;
    EXPECT_NEAR(lines[2].at.y, -1, 1e-9);
    EXPECT_NEAR(lines[4].at.y, -1, 1e-9);
    form.attachment = 3;
    EXPECT_NEAR(paragraphLines("a", form)[0].at.x, -50, 1e-9);
}

} // namespace
} // namespace mirtane
