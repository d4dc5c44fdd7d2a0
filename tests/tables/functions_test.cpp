#include "tables/functions.h"

#include "commands/prompt.h"
#include "model/shown_prompt.h"
#include "ops_text.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

struct Expected {
    const char* name;
    const char* starter;
    Starts starts;
    bool base;
    std::vector<const char*> prompts; // from step 0 on; "" where a step has none of its own
    bool andOn;                       // the last prompt stands at all later steps too
};

constexpr auto atOnce = Starts::atOnce;
constexpr auto fromList = Starts::fromList;
constexpr auto fromEdits = Starts::fromEdits;
constexpr auto byMatchKey = Starts::byMatchKey;

const std::vector<const char*> linePrompts = {"(Enter beginning point of line:)",
                                              "(Enter ending point of line:)"};
const std::vector<const char*> windowPrompts = {"(Place window around objects:)",
                                                "(Enter opposite corner of window:)"};
const std::vector<const char*> matchPrompts = {"(Enter beginning point of match line:)",
                                               "(Enter ending point of match line:)"};

const Expected functions[] = {
    {"Line", "Command1", atOnce, true, linePrompts, false},
    {"Measure Distance", "ut3", atOnce, false, linePrompts, false},
    {"2pt. Circle",
     "Command2",
     atOnce,
     true,
     {"(Enter center of circle:)", "(Enter radius of circle:)"},
     false},
    {"3pt. Circle",
     "Command3",
     atOnce,
     true,
     {"(Enter first point on circle:)", "(Enter second point on circle:)", "(Enter last point on circle:)"},
     false},
    {"2pt. Arc",
     "Command4",
     atOnce,
     true,
     {"(Enter center of arc:)", "(Enter radius of arc:)", "(Enter end of arc:)"},
     false},
    {"3pt. Arc",
     "Command5",
     atOnce,
     true,
     {"(Enter first point on arc:)", "(Enter second point on arc:)", "(Enter last point on arc:)"},
     false},
    {"Curve",
     "Command6",
     atOnce,
     true,
     {"(Enter first point on curve:)", "(Enter next point on curve:)"},
     true},
    {"Ellipse",
     "Command7",
     atOnce,
     true,
     {"(Enter beginning point of first axis:)", "(Enter ending point of first axis:)",
      "(Enter ending point of second axis:)"},
     false},
    {"Point", "Command8", atOnce, true, {"(Enter point:)"}, true},
    {"Polygon",
     "Command9",
     atOnce,
     true,
     {"(Enter number of sides (3) or enter center of polygon:", "(Enter (1) corner of polygon:)"},
     false},
    {"Multiple Lines",
     "Command10",
     fromList,
     true,
     {"(Enter beginning point of reference line:)", "(Enter ending point of reference line:)"},
     true},
    {"Create Multiple Lines",
     "ml3",
     atOnce,
     false,
     {"(Enter Multiple Lines Name:)", "(Enter reference point:)"},
     false},
    {"Ortho Dimension",
     "Command11",
     atOnce,
     true,
     {"(Enter first dimension point:)", "(Enter next dimension point:)", "(Enter off-set point:)",
      "(Enter next dimension point:)"},
     true},
    {"Radial Dimension",
     "Command12",
     atOnce,
     true,
     {"(Click near circle or arc:)", "(Enter shoulder point:)"},
     false},
    {"Angular Dimension",
     "Command13",
     atOnce,
     true,
     {"(Enter point of angle:)", "(Enter first vertex:)", "(Enter second vertex:)", "(Enter off-set point:)"},
     false},
    {"Leader",
     "Command14",
     atOnce,
     true,
     {"(Enter leader text:)", "(Enter beginning point of leader:)", "(Enter shoulder point:)"},
     false},
    {"Place Text",
     "Command15",
     atOnce,
     true,
     {"(Enter location of text line:)", "(Enter text:)", "(Enter new location of text line:)"},
     false},
    {"Text Edit", "Command16", atOnce, true, {"(Click near upper-left of text:)", "(Edit text:)"}, true},
    {"Object Select", "Command20", atOnce, true, {"(Click near object:)"}, true},
    {"Window Select", "Command19", atOnce, true, windowPrompts, false},
    {"Window Select Filtered", "Command18", atOnce, true, windowPrompts, false},
    {"Place Hatch",
     "ht3",
     fromList,
     true,
     {"(Enter the first point on the boundary:)", "(Enter the next point on the boundary:)"},
     true},
    {"Create Hatch",
     "ht5",
     atOnce,
     false,
     {"(Enter new hatch name:)", "(Enter upper-left corner of hatch:)",
      "(Enter lower-right corner of hatch:)"},
     false},
    {"Hatch Scale", "ht10", atOnce, false, {"(Current hatch scale is (1) Enter new hatch scale:"}, true},
    {"Place Associate",
     "ass3",
     fromList,
     true,
     {"(Select associate from list:)", "(Enter location of associate:)"},
     false},
    {"Create Associate",
     "ass7",
     atOnce,
     false,
     {"(Enter new associate name:)", "(Enter associate reference point:)"},
     false},
    {"Copy",
     "List1",
     fromEdits,
     false,
     {"(Enter reference point:)", "(Enter new reference point:)", "(Left click for another copy:)"},
     true},
    {"Move", "List1", fromEdits, false, {"(Enter reference point:)", "(Enter new reference point:)"}, false},
    {"Mirror Copy",
     "List1",
     fromEdits,
     false,
     {"(Enter beginning of mirror line:)", "(Enter end of mirror line:)"},
     false},
    {"Rotate",
     "List1",
     fromEdits,
     false,
     {"(Enter center of rotation:)", "(Enter number of degrees:)"},
     false},
    {"Scale",
     "List1",
     fromEdits,
     false,
     {"(Enter reference point:)", "(Enter X scale:)", "(Enter Y scale:)"},
     false},
    {"Radial Copy",
     "List1",
     fromEdits,
     false,
     {"(Enter center of rotation:)", "(Enter total number of degrees:)", "(Enter total number of copies:)"},
     false},
    {"Concentric Copy", "List1", fromEdits, false, {"(Enter off-set distance:)"}, true},
    {"Break",
     "List1",
     fromEdits,
     false,
     {"(Enter first break point:)", "(Enter second break point:)"},
     false},
    {"Trim", "List1", fromEdits, false, {"(Click near object to which to trim:)"}, true},
    {"Fillet", "List1", fromEdits, false, {"(Enter new radius (6) or click near inside of radius:"}, true},
    {"Stretch",
     "List1",
     fromEdits,
     false,
     {"(Place window around points to be moved:)", "", "(Enter reference point:)",
      "(Enter new reference point:)"},
     false},
    {"Change", "List1", fromEdits, false, {}, false},
    {"Text Size", "tk3", atOnce, false, {"(Current text size is (4.000) Enter new text size:"}, true},
    {"Arrow Size", "dim7", atOnce, false, {"(Current arrow size is (4.000) Enter new arrow size:"}, true},
    {"Measure Area",
     "ut4",
     atOnce,
     false,
     {"(Enter first point on boundary:)", "(Enter next point on boundary) Snap first point to finish:)"},
     true},
    {"Ortho Angle Match", "angle", byMatchKey, false, matchPrompts, false},
    {"Text Rotation Match", "textrot", byMatchKey, false, matchPrompts, false},
    {"Move Dimension Text", "dim11", atOnce, false, {}, false},
    {"Blank Line", "blank", atOnce, false, {}, false},
};

TEST(Vocabulary, HoldsEachFunctionWithItsStarterAndBase)
{
    EXPECT_EQ(vocabulary().size(), std::size(functions));
    for (const Expected& e : functions) {
        const FunctionRow* row = findFunction(e.name);
        ASSERT_NE(row, nullptr) << e.name;
        EXPECT_EQ(row->starter.row().name, e.starter) << e.name;
        EXPECT_EQ(row->starts, e.starts) << e.name;
        EXPECT_EQ(row->setsBase, e.base) << e.name;
        ControlId id;
        EXPECT_TRUE(findControl(e.starter, id)) << e.name;
    }
}

// The prompts as the title shows them, numbers at their first values.
TEST(Vocabulary, ShowsEachPromptAtItsStepsAndNoOtherStepChangesIt)
{
    const auto s = std::make_unique<Session>();
    RecordingCanvas pic1(Size{10, 10});
    for (const Expected& e : functions) {
        s->curFunc = e.name;
        for (std::int16_t step = 0; step < 7; ++step) {
            s->stepNo = step;
            showPrompt(*s, e.name, "(before)");
            setPrompt(*s, pic1);
            const auto at = static_cast<std::size_t>(step); // not negative
            std::string expected = "(before)";
            if (at < e.prompts.size() && *e.prompts[at] != '\0') expected = e.prompts[at];
            if (at >= e.prompts.size() && e.andOn) expected = e.prompts.back();
            EXPECT_EQ(s->promptText, expected) << e.name << " at step " << step;
        }
    }
}

TEST(Vocabulary, ComparesNamesLetterForLetter)
{
    for (const char* name : {"3pt Circle", "3pt.Circle", "3pt. circle", "line", "Line ", ""}) {
        EXPECT_EQ(findFunction(name), nullptr) << name;
    }
}

TEST(Vocabulary, StartsOnlyWhatAControlOfItsOwnStarts)
{
    for (const Expected& e : functions) {
        ControlId starter;
        ASSERT_TRUE(findControl(e.starter, starter)) << e.name;
        const FunctionRow* row = functionStartedBy(starter);
        if (e.starts == fromEdits) {
            EXPECT_EQ(row, nullptr) << e.name;
        } else {
            ASSERT_NE(row, nullptr) << e.name;
            EXPECT_EQ(row->name, e.name);
        }
    }
    EXPECT_EQ(functionStartedBy("Command42"_c), nullptr); // zooming is no function
    EXPECT_EQ(functionStartedBy("Command43"_c), nullptr);
}

TEST(Vocabulary, FunctionsThatTakeAValueOrALocationAtOnceStartAtStepOne)
{
    std::vector<std::string> names;
    for (const FunctionRow& row : vocabulary()) {
        if (row.firstStep != 0) names.emplace_back(row.name);
        EXPECT_LE(row.firstStep, 1) << row.name;
    }
    const std::vector<std::string> expected = {"Hatch Scale", "Place Associate", "Concentric Copy",
                                               "Fillet",      "Text Size",       "Arrow Size"};
    EXPECT_EQ(names, expected);
}

const std::vector<std::string> freeOnClick = {"3pt. Circle",
                                              "3pt. Arc",
                                              "Curve",
                                              "Point",
                                              "Ortho Angle Match",
                                              "Place Text",
                                              "Text Rotation Match",
                                              "Radial Dimension",
                                              "Leader",
                                              "Angular Dimension",
                                              "Text Edit",
                                              "Create Hatch",
                                              "Place Associate",
                                              "Create Associate",
                                              "Break",
                                              "Trim",
                                              "Radial Copy",
                                              "Rotate",
                                              "Scale",
                                              "Fillet",
                                              "Measure Area",
                                              "Move Dimension Text"};
const std::vector<std::string> freeOnMove = {
    "3pt. Circle",  "3pt. Arc",           "Curve",  "Ortho Angle Match", "Text Rotation Match",
    "Place Text",   "Radial Dimension",   "Leader", "Angular Dimension", "Place Associate",
    "Measure Area", "Move Dimension Text"};

bool isIn(const std::vector<std::string>& names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

TEST(Vocabulary, ConfinesClicksByTheLongerListAndMovesByTheShorter)
{
    for (const FunctionRow& row : vocabulary()) {
        for (std::int16_t step = 0; step < 6; ++step) {
            bool onClick = !isIn(freeOnClick, row.name);
            if (row.name == "Ortho Dimension") onClick = step == 3;
            if (row.name == "Stretch") onClick = step != 3;
            bool onMove = !isIn(freeOnMove, row.name);
            if (row.name == "Stretch") onMove = step == 3;
            EXPECT_EQ(applies(row.orthoOnClick, step), onClick) << row.name << " " << step;
            EXPECT_EQ(applies(row.orthoOnMove, step), onMove) << row.name << " " << step;
        }
    }
}

TEST(Vocabulary, TakesATypedDistanceInTenFunctionsAlone)
{
    const std::vector<std::string> taking = {"Line",    "2pt. Circle",    "2pt. Arc",        "Ellipse",
                                             "Polygon", "Multiple Lines", "Ortho Dimension", "Copy",
                                             "Move",    "Stretch"};
    for (const FunctionRow& row : vocabulary()) {
        EXPECT_EQ(row.typedDistance == TypedDistance::laysPoint, isIn(taking, row.name)) << row.name;
    }
}

// Two go on, and of those whose points come behind a name, a text or a number the first point is none.
TEST(Vocabulary, LetsAClickOnTheFirstPointEndTheFunctionsThatHaveOne)
{
    const std::vector<std::string> goOn = {"Place Text",   "Place Associate",  "Create Multiple Lines",
                                           "Create Hatch", "Create Associate", "Leader",
                                           "Fillet",       "Concentric Copy",  "Text Size",
                                           "Arrow Size",   "Hatch Scale"};
    for (const FunctionRow& row : vocabulary()) {
        EXPECT_EQ(row.samePointCancels, !isIn(goOn, row.name)) << row.name;
    }
}

TEST(Vocabulary, KnowsTheThreeSelectionFunctions)
{
    for (const FunctionRow& row : vocabulary()) {
        const bool window = row.name == "Window Select" || row.name == "Window Select Filtered";
        EXPECT_EQ(isWindowFunction(row.name), window) << row.name;
        EXPECT_EQ(isSelectionFunction(row.name), window || row.name == "Object Select") << row.name;
    }
}

TEST(Vocabulary, ForwardsEveryCharacterOnlyWhereANameIsTyped)
{
    for (const FunctionRow& row : vocabulary()) {
        const bool naming = row.name == "Create Multiple Lines" || row.name == "Create Hatch" ||
                            row.name == "Create Associate";
        const bool live = row.name == "Place Text" || row.name == "Leader" || row.name == "Text Edit";
        EXPECT_EQ(row.canvasKeys == CanvasKeys::name, naming) << row.name;
        EXPECT_EQ(row.canvasKeys == CanvasKeys::liveText, live) << row.name;
        EXPECT_EQ(row.canvasKeys == CanvasKeys::numberAlways, row.name == "Fillet") << row.name;
        EXPECT_EQ(row.canvasKeys == CanvasKeys::numberOnceBlankLeg, row.name == "Blank Line") << row.name;
        EXPECT_EQ(row.canvasKeys == CanvasKeys::sidesAtStart, row.name == "Polygon") << row.name;
    }
}

} // namespace
} // namespace mirtane
