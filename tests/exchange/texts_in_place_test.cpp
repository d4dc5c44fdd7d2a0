#include "exchange/percent_codes.h"

#include "dxf_text.h"

#include <cmath>

namespace mirtane {
namespace {

using namespace fake;

TEST(PlainLine, CodesBecomeSigns)
{
    struct Row {
        const char* words;
        const char* plain;
        bool underlined;
    };
    const Row rows[] = {
        {"45%%d", "45°", false},
        {"%%C20 %%P0.5", "Ø20 ±0.5", false},
        {"%%uTitle%%u", "Title", true},
        {"%%oover%%O", "over", false},
        {"100%%%", "100%", false},
        {"%%176", "°", false},
        {"%%065B", "AB", false},
        {"50% of", "50% of", false},
        {"%%", "%%", false},
        {"%%x", "%%x", false},
        {"%%99", "%%99", false},
        {"a^Ib", "a b", false},
        {"x^ 2", "x^2", false},
        {"x^2", "x^2", false},
        {"%%kout", "out", false},
        {"", "", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(plainLine(row.words).words, row.plain) << row.words;
        EXPECT_EQ(plainLine(row.words).underlined, row.underlined) << row.words;
    }
}

EntityRecord text(std::initializer_list<Pair> more)
{
    return only(dxf({{0, "TEXT"}, {8, "0"}, {10, "10"}, {20, "20"}, {40, "2"}, {1, "Words"}}) + dxf(more));
}

// A text of ours hangs below its point by its size; justification 0 left, 1 right, 2 centre.
TEST(TextsInPlace, ByTheirJustification)
{
    struct Row {
        const char* what;
        std::initializer_list<Pair> more;
        double x, y; // of the line
        float justification;
    };
    const Row rows[] = {
        {"left", {}, 10, 20, 0},
        {"left, a second point that is of no use", {{11, "99"}, {21, "99"}}, 10, 20, 0},
        {"centre", {{72, "1"}, {11, "30"}, {21, "40"}}, 30, 40, 2},
        {"right", {{72, "2"}, {11, "30"}, {21, "40"}}, 30, 40, 1},
        {"right without its point", {{72, "2"}}, 10, 20, 0},
        {"aligned", {{72, "3"}, {11, "30"}, {21, "20"}}, 10, 20, 0},
        {"middle", {{72, "4"}, {11, "30"}, {21, "40"}}, 30, 39, 2},
        {"fitted", {{72, "5"}, {11, "30"}, {21, "20"}}, 10, 20, 0},
        {"top left", {{73, "3"}, {11, "30"}, {21, "40"}}, 30, 38, 0},
        {"middle right", {{72, "2"}, {73, "2"}, {11, "30"}, {21, "40"}}, 30, 39, 1},
        {"bottom centre", {{72, "1"}, {73, "1"}, {11, "30"}, {21, "40"}}, 30, 40.4, 2},
        {"middle left, upward", {{73, "2"}, {50, "90"}, {11, "30"}, {21, "40"}}, 31, 40, 0},
    };
    for (const Row& row : rows) {
        const EntityRecord r = text(row.more);
        const double a = r.a1 * 3.14159265358979 / 180;
        EXPECT_THAT(r.p1, StandsAt(row.x - 2 * std::sin(a), row.y + 2 * std::cos(a))) << row.what;
        EXPECT_EQ(r.p2.x, 24) << row.what;
        EXPECT_EQ(r.p2.y, row.justification) << row.what;
        EXPECT_EQ(r.t1, "Words") << row.what;
    }
}

TEST(TextsInPlace, TurnedUnderlinedAndInTheirFace)
{
    EXPECT_NEAR(text({{50, "-30"}}).a1, 330, 1e-9);
    EXPECT_NEAR(text({{50, "400"}}).a1, 40, 1e-9);
    EXPECT_EQ(only(dxf({{0, "TEXT"}, {40, "1"}, {1, "%%uNote"}})).p3.x, 1);
    const std::string styles = section("TABLES", dxf({{0, "STYLE"},
                                                      {2, "A"},
                                                      {3, "arial.ttf"},
                                                      {0, "STYLE"},
                                                      {2, "B"},
                                                      {3, "txt.shx"},
                                                      {0, "STYLE"},
                                                      {2, "C"},
                                                      {3, "whatever.ttf"},
                                                      {1001, "DATA"},
                                                      {1000, "Old Face"}}));
    const auto faced = [&styles](const std::string& style) {
        return objectsOf(styles + entities(dxf({{0, "TEXT"}, {40, "1"}, {1, "x"}, {7, style}}))).at(0).t2;
    };
    EXPECT_EQ(faced("a"), "Arial");
    EXPECT_EQ(faced("B"), "");
    EXPECT_EQ(faced("c"), "Old Face");
    EXPECT_EQ(faced("none"), "");
}

TEST(TextsInPlace, BlankOnesAreNone)
{
    EXPECT_TRUE(
        objectsOf(entities(dxf({{0, "TEXT"}, {40, "1"}, {1, "   "}, {0, "TEXT"}, {40, "1"}}))).empty());
}

TEST(TextsInPlace, FittedOnesRunFromPointToPoint)
{
    struct Row {
        const char* what;
        std::initializer_list<Pair> more;
        double rotation;
    };
    const Row rows[] = {
        {"aligned, upward", {{72, "3"}, {11, "10"}, {21, "70"}}, 90},
        {"fitted, slanted, another angle said", {{72, "5"}, {11, "40"}, {21, "50"}, {50, "10"}}, 45},
        {"fitted, down to the left", {{72, "5"}, {11, "-5"}, {21, "5"}, {50, "0"}}, 225},
        {"no second point", {{72, "5"}, {50, "30"}}, 30},
        {"the same point twice", {{72, "3"}, {11, "10"}, {21, "20"}, {50, "30"}}, 30},
        {"not fitted", {{72, "2"}, {11, "40"}, {21, "50"}, {50, "10"}}, 10},
    };
    for (const Row& row : rows) EXPECT_NEAR(text(row.more).a1, row.rotation, 1e-4) << row.what;
}

// They stand where their mirrored letters would, and can be read.
TEST(TextsInPlace, BackwardAndUpsideDownOnes)
{
    struct Row {
        const char* what;
        std::initializer_list<Pair> more;
        double x, y;
        float justification;
        double rotation;
    };
    const Row rows[] = {
        {"neither", {{71, "1"}}, 10, 22, 0, 0},
        {"backward", {{71, "2"}}, 10, 22, 1, 0},
        {"upside down", {{71, "4"}}, 10, 20, 0, 0},
        {"both", {{71, "6"}}, 10, 18, 0, 180},
        {"backward, right", {{71, "2"}, {72, "2"}, {11, "30"}, {21, "40"}}, 30, 42, 0, 0},
        {"backward, upward", {{71, "2"}, {50, "90"}}, 8, 20, 1, 90},
        {"backward, fitted", {{71, "2"}, {72, "5"}, {11, "30"}, {21, "20"}}, 30, 22, 1, 0},
        {"upside down, from the top", {{71, "4"}, {73, "3"}, {11, "30"}, {21, "40"}}, 30, 42, 0, 0},
    };
    for (const Row& row : rows) {
        const EntityRecord r = text(row.more);
        EXPECT_THAT(r.p1, StandsAt(row.x, row.y)) << row.what;
        EXPECT_EQ(r.p2.y, row.justification) << row.what;
        EXPECT_NEAR(std::fmod(r.a1, 360), row.rotation, 1e-4) << row.what;
    }
}

TEST(TextsInPlace, LettersThatDrawingsCannotKeepAreCounted)
{
    struct Row {
        const char* words;
        const char* leftOut;
    };
    const Row rows[] = {{"\\U+03B1", "1 text (letters that drawings can't keep) left out"},
                        {"\\U+00E9 \\U+2205", ""}};
    for (const Row& row : rows) {
        const FullReading r = readOf(entities(dxf({{0, "TEXT"}, {40, "1"}, {1, row.words}})));
        EXPECT_EQ(r.drawing.objects.size(), 1U) << row.words;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), row.leftOut) << row.words;
    }
}

// In a mirrored block letters would be mirrored; they are not, but stand where they would, and can be read.
TEST(TextsInPlace, MirroredOnesCanBeRead)
{
    struct Row {
        const char* what;
        std::initializer_list<Pair> insert;
        double x, y; // of the left upper corner, or the right one
        float justification;
        double rotation;
    };
    const Row rows[] = {
        {"left and right", {{41, "-1"}}, -10, 22, 1, 0},
        {"up and down", {{42, "-1"}}, 10, -20, 0, 0},
        {"turned over", {{41, "-1"}, {42, "-1"}}, -10, -22, 0, 180},
        {"twice as large", {{41, "-2"}, {42, "2"}}, -20, 44, 1, 0},
    };
    for (const Row& row : rows) {
        const std::string words = dxf({{0, "TEXT"}, {10, "10"}, {20, "20"}, {40, "2"}, {1, "Words"}});
        const auto all = objectsOf(section("BLOCKS", block("B", words)) +
                                   entities(dxf({{0, "INSERT"}, {2, "B"}}) + dxf(row.insert)));
        ASSERT_EQ(all.size(), 1U) << row.what;
        EXPECT_THAT(all[0].p1, StandsAt(row.x, row.y)) << row.what;
        EXPECT_EQ(all[0].p2.y, row.justification) << row.what;
        EXPECT_NEAR(std::fmod(all[0].a1, 360), row.rotation, 1e-9) << row.what;
    }
}

TEST(AttributeDefinitions, StandForOthersUnlessTheyAreTheSameEverywhere)
{
    const auto definition = [](const std::string& flags) {
        return dxf({{0, "ATTDEF"}, {10, "1"}, {20, "2"}, {40, "1"}, {1, "Words"}, {2, "TAG"}, {70, flags}});
    };
    const FullReading r =
        readOf(section("BLOCKS", block("B", definition("0") + definition("2") + definition("3"))) +
               entities(dxf({{0, "INSERT"}, {2, "B"}}) + definition("0")));
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "1 attribute definition left out");
}

} // namespace
} // namespace mirtane
