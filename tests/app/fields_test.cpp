// The five numeric fields: what passes, what Enter takes, what leaving undoes.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

constexpr double radian = 57.29578; // degrees, as the fields divide by it

constexpr ControlId angleFields[] = {"angle"_c, "textrot"_c, "hatrot"_c, "assrot"_c};
constexpr ControlId allFields[] = {"angle"_c, "textrot"_c, "hatrot"_c, "assrot"_c, "snapper"_c};

void typeInto(Desk& desk, ControlId field, std::string_view text)
{
    desk.press(field);
    desk.type(text);
}

void enterInto(Desk& desk, ControlId field, std::string_view text)
{
    typeInto(desk, field, text);
    desk.enter();
}

double storedDegrees(const Desk& desk, ControlId field)
{
    if (field == "angle"_c) return desk.s.orthoAngle * radian;
    if (field == "textrot"_c) return desk.s.textRotation;
    if (field == "hatrot"_c) return desk.s.hatchRotation * radian;
    return desk.s.associateRotation * radian;
}

TEST(Field, IsClearedByAClick)
{
    Desk desk;
    for (const ControlId field : allFields) {
        EXPECT_NE(desk.text(field), "") << field.row().name;
        desk.press(field);
        EXPECT_EQ(desk.text(field), "") << field.row().name;
        EXPECT_EQ(desk.focused(), field.row().name);
    }
    desk.press("Combo3"_c);
    EXPECT_EQ(desk.text("Combo3"_c), "");
}

TEST(Field, LetsOnlyDigitsPointMinusAndBackspacePass)
{
    const std::pair<const char*, const char*> rows[] = {{"0123456789", "0123456789"},
                                                        {"1,5", "1.5"},
                                                        {"-1.5-", "-1.5-"},
                                                        {"1+2", "12"},
                                                        {"1'6\"", "16"},
                                                        {"xyz 1e2", "12"},
                                                        {"\xC3\xA9"
                                                         "5",
                                                         "5"},
                                                        {"3/4", "34"}};
    for (const ControlId field : allFields) {
        for (const auto& [typed, shown] : rows) {
            Desk desk;
            typeInto(desk, field, typed);
            EXPECT_EQ(desk.text(field), shown) << field.row().name << " " << typed;
        }
    }
    Desk desk;
    typeInto(desk, "angle"_c, "12");
    desk.backspace();
    EXPECT_EQ(desk.text("angle"_c), "1");
    desk.backspace();
    desk.backspace();
    EXPECT_EQ(desk.text("angle"_c), "");
}

TEST(Field, WithoutATextIgnoresEnter)
{
    for (const ControlId field : allFields) {
        Desk desk;
        enterInto(desk, field, "");
        EXPECT_EQ(desk.focused(), field.row().name);
        EXPECT_EQ(desk.text(field), "");
    }
}

struct EnteredRow {
    const char* typed;
    double degrees;
    const char* shown;
};

TEST(AngleField, TakesAngleBelowAFullTurnAndTurnsNegativeOnesOnce)
{
    const EnteredRow rows[] = {{"0", 0, "000.000"},
                               {"45", 45, "045.000"},
                               {"12.3456", 12.3456, "012.346"},
                               {"359.999", 359.999, "359.999"},
                               {"-90", 270, "270.000"},
                               {"-0.5", 359.5, "359.500"},
                               {"-360", 0, "000.000"},
                               {"-400", -40, "-040.000"},
                               {".5", 0.5, "000.500"},
                               {"7.", 7, "007.000"},
                               {"22,5", 22.5, "022.500"},
                               {"1.2.3", 1.2, "001.200"},
                               {"5-3", 5, "005.000"},
                               {"-720", -360, "-360.000"}};
    for (const ControlId field : angleFields) {
        for (const EnteredRow& row : rows) {
            Desk desk;
            enterInto(desk, field, row.typed);
            EXPECT_NEAR(storedDegrees(desk, field), row.degrees, 1e-9)
                << field.row().name << " " << row.typed;
            EXPECT_EQ(desk.text(field), row.shown) << field.row().name << " " << row.typed;
            EXPECT_EQ(desk.focused(), "pic1");
        }
    }
}

TEST(AngleField, RefusesAFullTurnAndMoreAndKeepsItsValue)
{
    for (const ControlId field : angleFields) {
        for (const char* typed : {"360", "360.001", "361", "9999999999", "-720.001", "-1000"}) {
            Desk desk;
            enterInto(desk, field, "30");
            enterInto(desk, field, typed);
            EXPECT_NEAR(storedDegrees(desk, field), 30, 1e-9) << field.row().name << " " << typed;
            EXPECT_EQ(desk.text(field), "030.000") << field.row().name << " " << typed;
            EXPECT_EQ(desk.focused(), "pic1") << field.row().name << " " << typed;
        }
    }
}

TEST(AngleField, StoresRadiansButTextRotationDegrees)
{
    Desk desk;
    enterInto(desk, "angle"_c, "90");
    EXPECT_DOUBLE_EQ(desk.s.orthoAngle, 90 / radian);
    EXPECT_DOUBLE_EQ(desk.s.orthoAngleSaved, 90 / radian);
    enterInto(desk, "textrot"_c, "90");
    EXPECT_EQ(desk.s.textRotation, 90);
    enterInto(desk, "hatrot"_c, "90");
    EXPECT_DOUBLE_EQ(desk.s.hatchRotation, 90 / radian);
    enterInto(desk, "assrot"_c, "90");
    EXPECT_DOUBLE_EQ(desk.s.associateRotation, 90 / radian);
}

TEST(SnapField, TakesPercentagesAboveNothingUpToAHundred)
{
    struct Row {
        const char* typed;
        float stored;
        const char* shown;
    };
    const Row rows[] = {{"50", 0.5F, "050.000"},         {"100", 1, "100.000"},   {"0.5", 0.005F, "000.500"},
                        {"33.333", 0.33333F, "033.333"}, {"0", 0.25F, "025.000"}, {"-1", 0.25F, "025.000"},
                        {"100.001", 0.25F, "025.000"},   {".", 0.25F, "025.000"}, {"-", 0.25F, "025.000"},
                        {"1000", 0.25F, "025.000"}};
    for (const Row& row : rows) {
        Desk desk;
        enterInto(desk, "snapper"_c, row.typed);
        EXPECT_FLOAT_EQ(desk.s.snapPercentage, row.stored) << row.typed;
        EXPECT_EQ(desk.text("snapper"_c), row.shown) << row.typed;
        EXPECT_EQ(desk.focused(), "pic1") << row.typed;
    }
}

TEST(Field, LeftShowsItsStoredValueAgain)
{
    for (const ControlId field : allFields) {
        Desk desk;
        const std::string before = desk.text(field);
        typeInto(desk, field, "99");
        desk.shell.giveFocus("pic1"_c);
        EXPECT_EQ(desk.text(field), before) << field.row().name;
        typeInto(desk, field, "99");
        desk.press(field == "angle"_c ? "textrot"_c : "angle"_c);
        EXPECT_EQ(desk.text(field), before) << field.row().name;
    }
}

TEST(Field, ShowsACommaOnceItIsLeftWhereNumbersHaveOne)
{
    for (const ControlId field : allFields) {
        Desk desk;
        desk.s.numComma = 1;
        typeInto(desk, field, "12,5");
        EXPECT_EQ(desk.text(field), "12.5") << field.row().name;
        desk.enter();
        EXPECT_EQ(desk.text(field), "012,500") << field.row().name;
        typeInto(desk, field, "3,3");
        desk.shell.giveFocus("pic1"_c);
        EXPECT_EQ(desk.text(field), "012,500") << field.row().name;
        desk.s.numComma = 0;
        desk.press(field);
        desk.shell.giveFocus("pic1"_c);
        EXPECT_EQ(desk.text(field), "012.500") << field.row().name;
    }
}

TEST(Field, OfAnAngleStartsItsMatchAtMInEitherCaseAndAtAnyText)
{
    const std::pair<ControlId, const char*> rows[] = {{"angle"_c, "Ortho Angle Match"},
                                                      {"textrot"_c, "Text Rotation Match"}};
    for (const auto& [field, function] : rows) {
        for (const char* typed : {"m", "M", "12m", "-.M"}) {
            Desk desk;
            desk.press("Command8"_c);
            desk.click(100, 100);
            typeInto(desk, field, typed);
            EXPECT_EQ(desk.s.curFunc, function) << typed;
            EXPECT_EQ(desk.s.baseFunc, "Point") << typed;
            EXPECT_EQ(desk.s.stepNo, 0) << typed;
            EXPECT_EQ(desk.focused(), "pic1") << typed;
            EXPECT_EQ(desk.text(field), "000.000") << typed;
        }
    }
}

TEST(Field, OfNoMatchDropsM)
{
    for (const ControlId field : {"hatrot"_c, "assrot"_c, "snapper"_c}) {
        Desk desk;
        typeInto(desk, field, "1m2M3");
        EXPECT_EQ(desk.text(field), "123") << field.row().name;
        EXPECT_EQ(desk.s.curFunc, "Line") << field.row().name;
        EXPECT_EQ(desk.focused(), field.row().name);
    }
}

TEST(Match, TakesTheDirectionOfTwoClicksAndReturnsToTheFunctionBefore)
{
    struct Row {
        float x, y; // from 1000, 1000
        double ortho;
        double text;
    };
    const Row rows[] = {{2000, 1000, 0, 0}, {1000, 0, 0, 90}, {0, 1000, 0, 180},  {1000, 2000, 0, 270},
                        {2000, 0, 45, 45},  {0, 0, 45, 135},  {0, 2000, 45, 225}, {2000, 2000, 45, 315}};
    for (const Row& row : rows) {
        for (const ControlId field : {"angle"_c, "textrot"_c}) {
            Desk desk;
            desk.press("freecurs"_c); // the match line itself is not confined
            desk.press("Command8"_c);
            typeInto(desk, field, "m");
            desk.click(1000, 1000);
            desk.click(row.x, row.y);
            const double expected = field == "angle"_c ? row.ortho : row.text;
            EXPECT_NEAR(storedDegrees(desk, field), expected, 0.001) << row.x << " " << row.y;
            EXPECT_EQ(desk.s.curFunc, "Point");
            EXPECT_EQ(desk.s.stepNo, 0);
            if (field == "angle"_c) {
                EXPECT_EQ(desk.s.orthoAngleSaved, desk.s.orthoAngle);
            }
        }
    }
}

TEST(Match, GivenUpLeavesTheAngle)
{
    Desk desk;
    enterInto(desk, "angle"_c, "30");
    typeInto(desk, "angle"_c, "m");
    desk.click(1000, 1000);
    desk.cancel();
    desk.cancel();
    EXPECT_NEAR(desk.s.orthoAngle * radian, 30, 1e-9);
    EXPECT_EQ(desk.text("angle"_c), "030.000");
    EXPECT_EQ(desk.s.curFunc, "Line");
}

TEST(Gauge, CannotBeEdited)
{
    Desk desk;
    desk.shell.giveFocus("angle"_c);
    desk.press("memy"_c);
    EXPECT_EQ(desk.focused(), "pic1");
    desk.shell.giveFocus("memy"_c);
    desk.type("55");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.text("memy"_c), "000.000");
}

TEST(Displays, GiveTheFocusBackAtAClick)
{
    for (const ControlId id : {"memy"_c, "setts"_c, "entry"_c}) {
        Desk desk;
        desk.shell.giveFocus("angle"_c);
        const std::string before = desk.text(id);
        desk.press(id);
        EXPECT_EQ(desk.focused(), "pic1") << id.row().name;
        EXPECT_EQ(desk.text(id), before) << id.row().name;
    }
}

TEST(OrthoToggle, TurnsItsCaptionAndGivesTheFocusBack)
{
    Desk desk;
    for (const char* caption : {"Ortho/Off", "Ortho/On", "Ortho/Off"}) {
        desk.shell.giveFocus("angle"_c);
        desk.press("freecurs"_c);
        EXPECT_EQ(desk.caption("freecurs"_c), caption);
        EXPECT_EQ(desk.s.orthoCaption, caption);
        EXPECT_EQ(desk.focused(), "pic1");
    }
}

TEST(SnapButtons, ArmOneSnapAndGiveTheFocusBack)
{
    const std::pair<ControlId, const char*> rows[] = {{"Command35"_c, "sp"},
                                                      {"Command36"_c, "so"},
                                                      {"Command37"_c, "si"},
                                                      {"Command38"_c, "sf"},
                                                      {"Command21"_c, "sm"}};
    for (const auto& [button, letters] : rows) {
        Desk desk;
        desk.shell.giveFocus("angle"_c);
        desk.press(button);
        EXPECT_EQ(desk.text("snapbox"_c), letters);
        EXPECT_EQ(desk.focused(), "pic1") << letters;
    }
}

TEST(SnapButtons, ThatAreRefusedInAConstructionLineChangeNothingButTheFocus)
{
    for (const ControlId button : {"Command39"_c, "Command40"_c}) {
        Desk desk;
        desk.press("blank"_c);
        ASSERT_EQ(desk.s.curFunc, "Blank Line");
        const std::string snap = desk.text("snapbox"_c);
        const std::string shown = desk.caption("snaplab"_c);
        desk.shell.giveFocus("angle"_c);
        desk.press(button);
        EXPECT_EQ(desk.text("snapbox"_c), snap);
        EXPECT_EQ(desk.caption("snaplab"_c), shown);
        EXPECT_EQ(desk.focused(), "pic1");
    }
}

TEST(Field, IsLeftByAPressOnTheDrawing)
{
    Desk desk;
    desk.press("angle"_c);
    desk.type("45");
    desk.click(100, 100);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.text("angle"_c), "000.000");
    desk.type("12");
    EXPECT_EQ(desk.text("entry"_c), "12");
}

} // namespace
} // namespace mirtane
