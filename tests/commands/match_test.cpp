#include "commands/match.h"

#include "commands/text.h"

#include "desk.h"
#include "geometry/angle.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using fake::Desk;

struct FoldRow {
    const char* what;
    double degrees;
    double folded;
};

TEST(OrthoMatch, FoldsTowardsTheHorizontal)
{
    const FoldRow rows[] = {
        {"right", 0, 0},
        {"a little up", 30, 30},
        {"half way", 45, 45},
        {"half way as the short literals compute it", 45.0000004, 45.0000004},
        {"up", 90, 0},
        {"half way left", 135, 45},
        {"the same as computed", 135.0000038, 45.0000038},
        {"beyond it", 140, -40},
        {"left", 180, 0},
        {"half way down left", 225, 45},
        {"down", 270, 0},
        {"half way down right", 315, 45},
        {"almost right", 350, 80},
        {"negative", -10, 80},
    };
    for (const FoldRow& row : rows) EXPECT_NEAR(foldedDegrees(row.degrees), row.folded, 1e-9) << row.what;
}

struct ClickRow {
    const char* what;
    float dx, dy; // y down
    const char* shown;
};

TEST(OrthoMatch, SetsTheAngleAndItsCopyFromTwoClicks)
{
    const ClickRow rows[] = {
        {"135 degrees", -100, -100, "045.000"},
        {"315 degrees", 100, 100, "045.000"},
        {"45 degrees", 100, -100, "045.000"},
        {"225 degrees", -100, 100, "045.000"},
        {"up", 0, -100, "000.000"},
    };
    for (const ClickRow& row : rows) {
        Desk desk;
        desk.press("angle"_c);
        desk.type("m");
        desk.click(1000, 1000);
        desk.click(1000 + row.dx, 1000 + row.dy);
        EXPECT_EQ(desk.text("angle"_c), row.shown) << row.what;
        EXPECT_NEAR(desk.s.orthoAngle * 57.29578, std::stod(row.shown), 0.0005) << row.what;
        EXPECT_EQ(desk.s.orthoAngleSaved, desk.s.orthoAngle) << row.what;
        EXPECT_EQ(desk.s.curFunc, "Line") << row.what;
        EXPECT_EQ(desk.s.stepNo, 0) << row.what;
        EXPECT_EQ(desk.s.promptText, "(Enter beginning point of line:)") << row.what;
    }
}

TEST(OrthoMatch, IsStartedByEitherCaseOfTheKeyAndKeepsTheBaseFunction)
{
    for (const char* key : {"m", "M"}) {
        Desk desk;
        desk.press("Command8"_c);
        desk.press("angle"_c);
        desk.type(key);
        EXPECT_EQ(desk.s.curFunc, "Ortho Angle Match");
        EXPECT_EQ(desk.s.baseFunc, "Point");
        EXPECT_EQ(desk.s.promptText, "(Enter beginning point of match line:)");
        EXPECT_EQ(desk.focused(), "pic1");
    }
}

TEST(OrthoMatch, IsNotConfinedItself)
{
    Desk desk;
    desk.press("angle"_c);
    desk.type("m");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of match line:)");
    desk.ops();
    desk.move(1300, 990);
    const fake::Ops expected = {"restoreSnapshot", "line 1000 1000 1300 990"};
    EXPECT_EQ(desk.ops(), expected);
}

TEST(OrthoMatch, CancelledComesBackToTheBaseFunctionWithTheOldAngle)
{
    Desk desk;
    desk.press("angle"_c);
    desk.type("m");
    desk.click(1000, 1000);
    desk.cancel();
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.orthoAngle, 0);
    EXPECT_EQ(desk.text("angle"_c), "000.000");
}

TEST(TextRotationMatch, IsNotFolded)
{
    Desk desk;
    desk.press("textrot"_c);
    desk.type("m");
    EXPECT_EQ(desk.s.curFunc, "Text Rotation Match");
    desk.click(1000, 1000);
    desk.click(900, 900);
    EXPECT_NEAR(desk.s.textRotation, 135, 0.0001);
    EXPECT_EQ(desk.text("textrot"_c), "135.000");
    EXPECT_EQ(desk.s.orthoAngle, 0);
    EXPECT_EQ(desk.s.curFunc, "Line");
}

void matchTextRotation(Desk& desk, Point from, Point to)
{
    desk.press("textrot"_c);
    desk.type("m");
    desk.click(from.x, from.y);
    desk.click(to.x, to.y);
}

// Just below the level the angle computes as a whole turn or a little more.
TEST(TextRotationMatch, IsBelowAWholeTurn)
{
    struct Row {
        const char* what;
        Point from, to;
        double degrees;
        const char* shown;
    };
    const Row rows[] = {
        {"level", {1000, 1000}, {3000, 1000}, 0, "000.000"},
        {"a rounding step below", {1000, 1000}, {4000, 1000.00006F}, 0, "000.000"},
        {"more of them", {1000, 1000}, {1900, 1000.0005F}, 0, "000.000"},
        {"far from the origin", {-500000, 250000}, {1500000, 250000.02F}, 0, "000.000"},
        {"as much as the field would round up", {50, 0}, {100050, 0.8F}, 0, "000.000"},
        {"as little as it shows", {50, 0}, {100050, 1.0F}, 359.999427, "359.999"},
        {"a hundredth of a degree", {50, 0}, {100050, 17.45329F}, 359.99, "359.990"},
        {"a rounding step above", {1000, 1000}, {4000, 999.99994F}, 1.166e-6, "000.000"},
    };
    for (const Row& row : rows) {
        Desk desk;
        matchTextRotation(desk, row.from, row.to);
        EXPECT_NEAR(desk.s.textRotation, row.degrees, 1e-5) << row.what;
        EXPECT_GE(desk.s.textRotation, 0) << row.what;
        EXPECT_LT(desk.s.textRotation, 360) << row.what;
        EXPECT_EQ(desk.text("textrot"_c), row.shown) << row.what;
    }
}

TEST(TextRotationMatch, SetsTheNextLineOfTextApartWhateverTheDirection)
{
    Desk desk;
    for (int i = 0; i < 2000; ++i) {
        const auto along = static_cast<float>(std::pow(1.01, i % 1000)); // up to some 20,000
        const float down = (i % 2 == 0 ? 1e-4F : -1e-4F) * static_cast<float>(i % 7);
        matchTextRotation(desk, {0.5F, 0}, {i < 1000 ? along : -along, down});
        const double rotation = desk.s.textRotation;
        ASSERT_TRUE(rotation >= 0 && rotation < 360) << along << " " << down;
        ASSERT_LT(std::stod(desk.text("textrot"_c)), 360) << along << " " << down;
        ASSERT_NEAR(std::stod(desk.text("textrot"_c)), rotation, 0.000501) << along << " " << down;
        ASSERT_NEAR(distance({0, 0}, nextLine({0, 0}, 50, rotation)), 55, 0.01) << along << " " << down;
    }
}

} // namespace
} // namespace mirtane
