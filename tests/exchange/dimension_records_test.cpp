#include "read_in_full.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using std::numbers::pi;

const std::string picture = "0 BLOCK\n2 *D7\n70 1\n10 0\n20 0\n0 LINE\n8 0\n62 0\n10 1\n20 2\n11 30\n21 2\n0 "
                            "POINT\n8 DEFPOINTS\n10 1\n20 0\n"
                            "0 MTEXT\n8 0\n10 15\n20 3\n40 1\n71 5\n1 29\n0 ENDBLK\n";

TEST(DimensionRecord, IsDrawnByItsPicture)
{
    for (const char* type : {"DIMENSION", "ARC_DIMENSION", "LARGE_RADIAL_DIMENSION"}) {
        const auto drawing =
            madeFrom(std::string("0 ") + type +
                         "\n8 0\n62 1\n2 *D7\n10 30\n20 2\n11 15\n21 3\n70 32\n13 1\n23 0\n14 30\n24 0\n",
                     picture);
        ASSERT_EQ(drawing.objects.size(), 2U) << type; // and not what it was measured by
        EXPECT_EQ(drawing.objects[0].p[1], (Vec{30, 2}));
        EXPECT_EQ(drawing.objects[0].look.color, 0x0000FF);
        EXPECT_EQ(drawing.objects[1].text.words, "29");
        EXPECT_TRUE(drawing.leftOut.empty());
    }
}

const std::string style =
    "0 TABLE\n2 DIMSTYLE\n0 DIMSTYLE\n2 SMALL\n70 0\n40 10\n41 0.25\n140 0.3\n271 1\n0 ENDTAB\n";

TEST(DimensionRecord, WithoutAPictureALinearOneIsOneOfOurs)
{
    struct Row {
        const char* what;
        std::string groups;
        Vec from, to; // of its line
        const char* words;
    };
    const Row rows[] = {
        {"level", "70 0\n10 30\n20 12\n13 1\n23 0\n14 30\n24 5\n50 0\n", {30, 12}, {1, 12}, "29"},
        {"upright", "70 32\n10 -8\n20 40\n13 1\n23 0\n14 30\n24 5.27\n50 90\n", {-8, 5.27}, {-8, 0}, "5.3"},
        {"along what it measures",
         "70 1\n10 3\n20 4\n13 4\n23 -3\n14 12\n24 3\n",
         {8.28, 7.96},
         {0.28, 1.96},
         "10"},
        {"words of its own",
         "70 0\n1 about <> all\n10 30\n20 12\n13 1\n23 0\n14 30\n24 5\n50 0\n",
         {30, 12},
         {1, 12},
         "about 29 all"},
        {"words alone",
         "70 0\n1 {\\H2x;wide}\n10 30\n20 12\n13 1\n23 0\n14 30\n24 5\n50 0\n",
         {30, 12},
         {1, 12},
         "wide"},
    };
    for (const Row& row : rows) {
        const auto drawing = madeFrom("0 DIMENSION\n8 0\n3 SMALL\n" + row.groups, "", style);
        ASSERT_EQ(drawing.objects.size(), 1U) << row.what;
        const Made& made = drawing.objects[0];
        EXPECT_EQ(made.kind, Kind::linearDimension) << row.what;
        EXPECT_LT(length(made.p[2] - row.from), 0.01) << row.what;
        EXPECT_LT(length(made.p[3] - row.to), 0.01) << row.what;
        EXPECT_EQ(made.text.words, row.words) << row.what;
        EXPECT_NEAR(made.size, 3, 1e-9) << row.what;
    }
}

TEST(DimensionRecord, WithoutAPictureRadialAndAngularOnesAreOneOfOurs)
{
    const auto radius =
        madeFrom("0 DIMENSION\n8 0\n3 SMALL\n70 4\n10 5\n20 6\n15 8\n25 10\n11 14\n21 18\n", "", style);
    ASSERT_EQ(radius.objects.size(), 1U);
    EXPECT_EQ(radius.objects[0].kind, Kind::radialDimension);
    EXPECT_EQ(radius.objects[0].p[3], (Vec{8, 10}));
    EXPECT_EQ(radius.objects[0].text.words, "R5");

    const auto diameter = madeFrom("0 DIMENSION\n8 0\n3 SMALL\n70 3\n10 2\n20 2\n15 8\n25 10\n", "", style);
    ASSERT_EQ(diameter.objects.size(), 1U);
    EXPECT_EQ(diameter.objects[0].p[0], (Vec{5, 6}));
    EXPECT_EQ(diameter.objects[0].text.words, "\u00D810");

    struct Row {
        const char* what;
        std::string groups;
        double from, turn;
        const char* words;
    };
    const Row rows[] = {
        {"three points", "70 5\n10 9\n20 9\n15 2\n25 2\n13 12\n23 2\n14 2\n24 12\n", 0, pi / 2, "90\u00B0"},
        {"the other way round", "70 5\n10 9\n20 9\n15 2\n25 2\n13 2\n23 12\n14 12\n24 2\n", 0, pi / 2,
         "90\u00B0"},
        {"the other side", "70 5\n10 -5\n20 -5\n15 2\n25 2\n13 12\n23 2\n14 2\n24 12\n", pi / 2, 3 * pi / 2,
         "270\u00B0"},
        {"two lines", "70 2\n13 4\n23 2\n14 12\n24 2\n15 2\n25 4\n10 2\n20 12\n16 9\n26 9\n", 0, pi / 2,
         "90\u00B0"},
    };
    for (const Row& row : rows) {
        const auto drawing = madeFrom("0 DIMENSION\n8 0\n3 SMALL\n" + row.groups, "", style);
        ASSERT_EQ(drawing.objects.size(), 1U) << row.what;
        const Made& made = drawing.objects[0];
        EXPECT_EQ(made.kind, Kind::angularDimension) << row.what;
        EXPECT_LT(length(made.p[0] - Vec{2, 2}), 1e-9) << row.what;
        EXPECT_NEAR(made.from, row.from, 1e-9) << row.what;
        EXPECT_NEAR(made.to - made.from, row.turn, 1e-9) << row.what;
        EXPECT_EQ(made.text.words, row.words) << row.what;
    }
}

std::string pictureLine(double x1, double y1, double x2, double y2, const std::string& pen = "0")
{
    return "0 LINE\n8 0\n62 " + pen + "\n10 " + std::to_string(x1) + "\n20 " + std::to_string(y1) + "\n11 " +
           std::to_string(x2) + "\n21 " + std::to_string(y2) + "\n";
}

std::string pictureText(double x, double y, const std::string& words, const std::string& height = "3")
{
    return "0 MTEXT\n8 0\n62 0\n10 " + std::to_string(x) + "\n20 " + std::to_string(y) + "\n40 " + height +
           "\n71 5\n1 " + words + "\n";
}

std::string arrowHead(double x, double y, double to)
{
    return pictureLine(x, y, to, y + 0.42) + pictureLine(to, y + 0.42, to, y - 0.42) +
           pictureLine(to, y - 0.42, x, y);
}

// Level, 60 long, as other programs draw it: its arrows narrower, its extension lines from a little farther
// off.
TEST(DimensionRecord, IsOneOfOursWhereThatShowsTheSame)
{
    const std::string record = "0 DIMENSION\n8 0\n3 SMALL\n2 *D3\n70 32\n13 10\n23 0\n14 70\n24 4\n10 70\n20 "
                               "30\n11 40\n21 32.5\n";
    const std::string extensions = pictureLine(10, 1.6, 10, 31.8) + pictureLine(70, 5.6, 70, 31.8);
    const std::string shaft = pictureLine(12.5, 30, 67.5, 30);
    const std::string arrows = arrowHead(10, 30, 12.5) + arrowHead(70, 30, 67.5);
    const std::string figure = pictureText(40, 32.5, "60");
    const std::string mark = "0 POINT\n8 DEFPOINTS\n10 10\n20 0\n";
    struct Row {
        const char* what;
        std::string record, picture;
        const char* words; // of ours; none where the picture is drawn
    };
    const std::string whole = extensions + shaft + arrows + figure + mark;
    const auto variable = [](const std::string& pairs) {
        return "1001 ACAD\n1000 DSTYLE\n1002 {\n" + pairs + "1002 }\n";
    };
    const std::string turned =
        "0 DIMENSION\n8 0\n3 SMALL\n2 *D3\n70 33\n13 10\n23 0\n14 70\n24 9\n10 70\n20 30\n";
    const Row rows[] = {
        {"the same", record, whole, "60"},
        {"another figure", record, extensions + shaft + arrows + pictureText(40, 32.5, "5'-0\""), "5'-0\""},
        {"more words", record, whole + pictureText(40, 37, "typ."), nullptr},
        {"words that the record says", record + "1 about <>\n",
         extensions + shaft + arrows + pictureText(40, 32.5, "about 60"), "about 60"},
        {"words in another place", record, extensions + shaft + arrows + pictureText(60, 32.5, "60"), "60"},
        {"words turned", record, extensions + shaft + arrows + pictureText(40, 32.5, "60") + "50 45\n",
         nullptr},
        {"smaller words", record, extensions + shaft + arrows + pictureText(40, 32.5, "60", "2"), nullptr},
        {"strokes for arrows", record + variable("1070 142\n1040 2\n"),
         extensions + pictureLine(9, 30, 71, 30) + pictureLine(9.4, 29.4, 10.6, 30.6) +
             pictureLine(69.4, 29.4, 70.6, 30.6) + figure,
         "60"},
        {"arrows that we have none like", record + variable("1070 342\n1005 7A\n"), whole, nullptr},
        {"one extension line", record, pictureLine(10, 1.6, 10, 31.8) + shaft + arrows + figure, nullptr},
        {"a line to its words", record, whole + pictureLine(40, 30, 55, 45), nullptr},
        {"lines of another pen", record, whole + pictureLine(10, 0.6, 10, 20, "3"), nullptr},
        {"a ring about its words", record, whole + "0 CIRCLE\n8 0\n10 40\n20 32.5\n40 3\n", nullptr},
        {"slanted", turned, whole, nullptr},
    };
    for (const Row& row : rows) {
        const std::string block = "0 BLOCK\n2 *D3\n70 1\n10 0\n20 0\n" + row.picture + "0 ENDBLK\n";
        const auto drawing = madeFrom(row.record, block, style);
        const auto own = ofKind(drawing, Kind::linearDimension);
        ASSERT_EQ(own.size(), row.words != nullptr ? 1U : 0U) << row.what;
        EXPECT_EQ(drawing.objects.size() == 1, row.words != nullptr) << row.what;
        for (const Made& one : own) EXPECT_EQ(one.text.words, row.words) << row.what;
    }
    const std::string plan = "0 BLOCK\n2 PLAN\n70 0\n10 0\n20 0\n" + record + "0 ENDBLK\n";
    const std::string block = "0 BLOCK\n2 *D3\n70 1\n10 0\n20 0\n" + whole + "0 ENDBLK\n";
    const auto inserted = madeFrom("0 INSERT\n8 0\n2 PLAN\n10 5\n20 0\n41 2\n42 2\n", plan + block, style);
    EXPECT_TRUE(ofKind(inserted, Kind::linearDimension).empty()); // it would measure the scaled lines
}

TEST(DimensionRecord, ItsFigureIsTheFilesOrThatOfItsStyle)
{
    const std::string head = "0 DIMENSION\n8 0\n3 SMALL\n";
    const std::string level = "70 0\n10 30\n20 12\n13 1\n23 0\n14 30\n24 5\n50 0\n";
    const std::string corner = "70 5\n10 9\n20 9\n15 2\n25 2\n13 12\n23 2\n14 2\n24 12\n";
    const std::string tenfold = "1001 ACAD\n1000 DSTYLE\n1002 {\n1070 144\n1040 10\n1002 }\n";
    const auto styled = [](const std::string& factor) {
        return "0 TABLE\n2 DIMSTYLE\n0 DIMSTYLE\n2 SMALL\n70 0\n40 1\n140 3\n144 " + factor +
               "\n271 1\n0 ENDTAB\n";
    };
    struct Row {
        const char* what;
        std::string groups, factor;
        const char* words;
    };
    const Row rows[] = {
        {"by the style", level, "2.5", "72.5"},
        {"for sheets alone", level, "-2.5", "29"},
        {"never set", level, "0", "29"},
        {"by the record", level + tenfold, "2.5", "290"},
        {"as the file says", level + "42 31.5\n", "2", "31.5"},
        {"said without the factor", level + "42 29\n", "2", "58"},
        {"said with the factor", level + "42 58\n", "2", "58"},
        {"nothing is said", level + "42 0\n", "1", "29"},
        {"an angle has no factor", corner, "2", "90\u00B0"},
        {"an angle is said in radians", corner + "42 0.7853981634\n", "2", "45\u00B0"},
        {"a radius", "70 4\n10 5\n20 6\n15 8\n25 10\n11 14\n21 18\n", "0.5", "R2.5"},
    };
    for (const Row& row : rows) {
        const auto drawing = madeFrom(head + row.groups, "", styled(row.factor));
        ASSERT_EQ(drawing.objects.size(), 1U) << row.what;
        EXPECT_EQ(drawing.objects[0].text.words, row.words) << row.what;
    }
}

TEST(DimensionRecord, OfAnotherTypeWithoutAPictureItIsLeftOut)
{
    for (const std::string type : {"ARC_DIMENSION", "LARGE_RADIAL_DIMENSION"}) {
        const auto drawing = madeFrom("0 " + type + "\n8 0\n70 0\n10 30\n20 12\n13 1\n14 30\n24 5\n");
        EXPECT_TRUE(drawing.objects.empty()) << type;
        EXPECT_TRUE(drawing.leftOut.contains({type, "without a picture"})) << type;
    }
}

TEST(DimensionRecord, AnOrdinateWithoutAPictureIsLeftOut)
{
    const auto drawing = madeFrom("0 DIMENSION\n8 0\n2 *D9\n70 6\n10 0\n20 0\n13 5\n23 5\n14 9\n24 5\n");
    EXPECT_TRUE(drawing.objects.empty());
    EXPECT_EQ(drawing.leftOut.size(), 1U);
}

TEST(LeaderRecord, IsItsLineAndItsArrow)
{
    const std::string line = "10 0\n20 0\n30 0\n10 30\n20 40\n30 0\n10 50\n20 40\n30 0\n";
    const auto plain = madeFrom("0 LEADER\n8 0\n3 SMALL\n71 0\n72 0\n" + line, "", style);
    ASSERT_EQ(plain.objects.size(), 2U);
    EXPECT_EQ(plain.objects[0].p[0], (Vec{0, 0}));
    const auto arrow = madeFrom("0 LEADER\n8 0\n3 SMALL\n71 1\n72 0\n" + line, "", style);
    EXPECT_EQ(arrow.objects.size(), 5U);
    const auto atTip = [](const Made& one) { return one.p[0] == Vec{0, 0} || one.p[1] == Vec{0, 0}; };
    EXPECT_EQ(std::ranges::count_if(arrow.objects, atTip), 2);
    const auto small = madeFrom("0 LEADER\n8 0\n3 SMALL\n71 1\n72 0\n" + line +
                                    "1001 ACAD\n1000 DSTYLE\n1002 {\n1070 41\n1040 30\n1002 }\n",
                                "", style);
    EXPECT_EQ(small.objects.size(), 2U); // too big an arrow for its first leg
    const auto bent = madeFrom("0 LEADER\n8 0\n3 SMALL\n71 0\n72 1\n" + line, "", style);
    EXPECT_GE(ofKind(bent, Kind::arc).size(), 2U);
}

const std::string context =
    "0 MULTILEADER\n8 0\n100 AcDbMLeader\n300 CONTEXT_DATA{\n40 1\n10 60\n20 20\n30 0\n41 2\n140 3\n145 "
    "1\n290 1\n304 said\\Ptwice\n"
    "340 2B\n12 64\n22 21\n32 0\n13 1\n23 0\n33 0\n42 0\n43 0\n45 1\n170 1\n90 -1023410175\n171 1\n";
const std::string branch = "302 LEADER{\n290 1\n291 1\n10 60\n20 20\n30 0\n11 1\n21 0\n31 0\n90 0\n40 4\n304 "
                           "LEADER_LINE{\n10 0\n20 0\n30 0\n91 0\n305 }\n"
                           "304 LEADER_LINE{\n10 0\n20 50\n30 0\n10 30\n20 50\n30 0\n91 1\n305 }\n303 }\n";
const std::string behind = "301 }\n340 1C\n170 1\n91 -1056964608\n290 1\n291 1\n41 4\n42 3\n172 2\n";

TEST(MultileaderRecord, IsItsLinesItsArrowsAndItsWords)
{
    const auto drawing = madeFrom(context + branch + behind);
    const auto texts = ofKind(drawing, Kind::text);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text.words, "said");
    EXPECT_EQ(texts[1].text.words, "twice");
    EXPECT_LT(length(texts[0].p[0] - Vec{64, 21}), 1e-9);
    EXPECT_EQ(texts[0].look.color, 0x0000FF);
    EXPECT_EQ(ofKind(drawing, Kind::line).size(), 3U + 2U * 3U + 1U); // legs, arrows, the landing
    const auto landing = [](const Made& one) { return one.p[0] == Vec{60, 20} && one.p[1] == Vec{64, 20}; };
    EXPECT_EQ(std::ranges::count_if(drawing.objects, landing), 1);
}

TEST(MultileaderRecord, CutShortItTakesNoHarm)
{
    const std::string whole = fileOf(context + branch + behind);
    for (std::size_t n = 0; n < whole.size(); ++n)
        EXPECT_LE(readInFull(whole.substr(0, n)).drawing.objects.size(), 12U);
}

TEST(MultileaderRecord, ABlockInPlaceOfWordsIsFoundByItsHandle)
{
    const std::string tables = "0 TABLE\n2 BLOCK_RECORD\n0 BLOCK_RECORD\n5 3F\n2 Tag\n0 ENDTAB\n";
    const std::string block = "0 BLOCK\n2 TAG\n70 0\n10 0\n20 0\n0 CIRCLE\n8 0\n10 1\n20 0\n40 5\n0 ENDBLK\n";
    const auto drawing = madeFrom("0 MULTILEADER\n8 0\n300 CONTEXT_DATA{\n40 1\n140 3\n290 0\n296 1\n341 "
                                  "3F\n15 70\n25 30\n35 0\n16 2\n26 2\n36 2\n46 0\n301 }\n170 1\n",
                                  block, tables);
    ASSERT_EQ(drawing.objects.size(), 1U);
    EXPECT_LT(length(drawing.objects[0].p[0] - Vec{72, 30}), 1e-9);
    EXPECT_NEAR(drawing.objects[0].radius, 10, 1e-9);
}

} // namespace
} // namespace mirtane
