#include "commands/vocabulary.h"

#include <algorithm>
#include <array>

namespace mirtane {
namespace {

// clang-format off
constexpr Prompt linePrompts[] = {{0, "(Enter beginning point of line:)"}, {1, "(Enter ending point of line:)"}};
constexpr Prompt circleTwoPrompts[] = {{0, "(Enter center of circle:)"}, {1, "(Enter radius of circle:)"}};
constexpr Prompt circleThreePrompts[] = {{0, "(Enter first point on circle:)"}, {1, "(Enter second point on circle:)"}, {2, "(Enter last point on circle:)"}};
constexpr Prompt arcTwoPrompts[] = {{0, "(Enter center of arc:)"}, {1, "(Enter radius of arc:)"}, {2, "(Enter end of arc:)"}};
constexpr Prompt arcThreePrompts[] = {{0, "(Enter first point on arc:)"}, {1, "(Enter second point on arc:)"}, {2, "(Enter last point on arc:)"}};
constexpr Prompt curvePrompts[] = {{0, "(Enter first point on curve:)"}, {1, "(Enter next point on curve:)", PromptNumber::none, "", true}};
constexpr Prompt ellipsePrompts[] = {{0, "(Enter beginning point of first axis:)"}, {1, "(Enter ending point of first axis:)"}, {2, "(Enter ending point of second axis:)"}};
constexpr Prompt pointPrompts[] = {{0, "(Enter point:)", PromptNumber::none, "", true}};
constexpr Prompt polygonPrompts[] = {{0, "(Enter number of sides (", PromptNumber::polygonSides, ") or enter center of polygon:"}, {1, "(Enter (1) corner of polygon:)"}};
constexpr Prompt multipleLinesPrompts[] = {{0, "(Enter beginning point of reference line:)"}, {1, "(Enter ending point of reference line:)", PromptNumber::none, "", true}};
constexpr Prompt createMultipleLinesPrompts[] = {{0, "(Enter Multiple Lines Name:)"}, {1, "(Enter reference point:)"}};
constexpr Prompt orthoDimensionPrompts[] = {{0, "(Enter first dimension point:)"}, {1, "(Enter next dimension point:)"}, {2, "(Enter off-set point:)"}, {3, "(Enter next dimension point:)", PromptNumber::none, "", true}};
constexpr Prompt radialDimensionPrompts[] = {{0, "(Click near circle or arc:)"}, {1, "(Enter shoulder point:)"}};
constexpr Prompt angularDimensionPrompts[] = {{0, "(Enter point of angle:)"}, {1, "(Enter first vertex:)"}, {2, "(Enter second vertex:)"}, {3, "(Enter off-set point:)"}};
constexpr Prompt leaderPrompts[] = {{0, "(Enter leader text:)"}, {1, "(Enter beginning point of leader:)"}, {2, "(Enter shoulder point:)"}};
constexpr Prompt placeTextPrompts[] = {{0, "(Enter location of text line:)"}, {1, "(Enter text:)"}, {2, "(Enter new location of text line:)"}};
constexpr Prompt textEditPrompts[] = {{0, "(Click near upper-left of text:)"}, {1, "(Edit text:)", PromptNumber::none, "", true}};
constexpr Prompt objectSelectPrompts[] = {{0, "(Click near object:)", PromptNumber::none, "", true}};
constexpr Prompt windowSelectPrompts[] = {{0, "(Place window around objects:)"}, {1, "(Enter opposite corner of window:)"}};
constexpr Prompt placeHatchPrompts[] = {{0, "(Enter the first point on the boundary:)"}, {1, "(Enter the next point on the boundary:)", PromptNumber::none, "", true}};
constexpr Prompt createHatchPrompts[] = {{0, "(Enter new hatch name:)"}, {1, "(Enter upper-left corner of hatch:)"}, {2, "(Enter lower-right corner of hatch:)"}};
constexpr Prompt hatchScalePrompts[] = {{0, "(Current hatch scale is (", PromptNumber::hatchScale, ") Enter new hatch scale:", true}};
constexpr Prompt placeAssociatePrompts[] = {{0, "(Select associate from list:)"}, {1, "(Enter location of associate:)"}};
constexpr Prompt createAssociatePrompts[] = {{0, "(Enter new associate name:)"}, {1, "(Enter associate reference point:)"}};
constexpr Prompt copyPrompts[] = {{0, "(Enter reference point:)"}, {1, "(Enter new reference point:)"}, {2, "(Left click for another copy:)", PromptNumber::none, "", true}};
constexpr Prompt movePrompts[] = {{0, "(Enter reference point:)"}, {1, "(Enter new reference point:)"}};
constexpr Prompt mirrorCopyPrompts[] = {{0, "(Enter beginning of mirror line:)"}, {1, "(Enter end of mirror line:)"}};
constexpr Prompt rotatePrompts[] = {{0, "(Enter center of rotation:)"}, {1, "(Enter number of degrees:)"}};
constexpr Prompt scalePrompts[] = {{0, "(Enter reference point:)"}, {1, "(Enter X scale:)"}, {2, "(Enter Y scale:)"}};
constexpr Prompt radialCopyPrompts[] = {{0, "(Enter center of rotation:)"}, {1, "(Enter total number of degrees:)"}, {2, "(Enter total number of copies:)"}};
constexpr Prompt concentricCopyPrompts[] = {{0, "(Enter off-set distance:)", PromptNumber::none, "", true}};
constexpr Prompt breakPrompts[] = {{0, "(Enter first break point:)"}, {1, "(Enter second break point:)"}};
constexpr Prompt trimPrompts[] = {{0, "(Click near object to which to trim:)", PromptNumber::none, "", true}};
constexpr Prompt filletPrompts[] = {{0, "(Enter new radius (", PromptNumber::filletRadius, ") or click near inside of radius:", true}};
constexpr Prompt stretchPrompts[] = {{0, "(Place window around points to be moved:)"}, {2, "(Enter reference point:)"}, {3, "(Enter new reference point:)"}};
constexpr Prompt textSizePrompts[] = {{0, "(Current text size is (", PromptNumber::textSize, ") Enter new text size:", true}};
constexpr Prompt arrowSizePrompts[] = {{0, "(Current arrow size is (", PromptNumber::arrowSize, ") Enter new arrow size:", true}};
// The two closing parentheses of the second prompt are meant.
constexpr Prompt measureAreaPrompts[] = {{0, "(Enter first point on boundary:)"}, {1, "(Enter next point on boundary) Snap first point to finish:)", PromptNumber::none, "", true}};
constexpr Prompt matchPrompts[] = {{0, "(Enter beginning point of match line:)"}, {1, "(Enter ending point of match line:)"}};

constexpr auto atOnce = Starts::atOnce;
constexpr auto fromList = Starts::fromList;
constexpr auto fromEdits = Starts::fromEdits;
constexpr auto byMatchKey = Starts::byMatchKey;
constexpr auto confined = Ortho::confined;
constexpr auto unlessSnapped = Ortho::unlessSnapped;
constexpr auto freely = Ortho::free;
constexpr auto canvasNumber = CanvasKeys::numberOnceBegun;
constexpr auto canvasName = CanvasKeys::name;
constexpr auto liveText = CanvasKeys::liveText;
constexpr auto distance = EntryKeys::distanceOnceBegun;
constexpr auto name = EntryKeys::name;
constexpr auto discarded = TypedDistance::discarded;
constexpr auto laysPoint = TypedDistance::laysPoint;

constexpr FunctionRow rows[] = {
//   name                     starter      starts    base   ortho on move       ortho on click      keys on the drawing           keys in entry                   typed distance                   same point cancels, first step, prompts
    {"Line",                  "Command1",  atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, linePrompts},
    {"Measure Distance",      "ut3",       atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, linePrompts},
    {"2pt. Circle",           "Command2",  atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, circleTwoPrompts},
    {"3pt. Circle",           "Command3",  atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, circleThreePrompts},
    {"2pt. Arc",              "Command4",  atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, arcTwoPrompts},
    {"3pt. Arc",              "Command5",  atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, arcThreePrompts},
    {"Curve",                 "Command6",  atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, curvePrompts},
    {"Ellipse",               "Command7",  atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, ellipsePrompts},
    {"Point",                 "Command8",  atOnce,   true,  confined,           freely,             canvasNumber,                 distance,                       discarded,                       true,  0, pointPrompts},
    {"Polygon",               "Command9",  atOnce,   true,  confined,           confined,           CanvasKeys::sidesAtStart,     EntryKeys::sidesAtStart,        laysPoint,                       true,  0, polygonPrompts},
    {"Multiple Lines",        "Command10", fromList, true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, multipleLinesPrompts},
    {"Create Multiple Lines", "ml3",       atOnce,   false, confined,           unlessSnapped,      canvasName,                   name,                           discarded,                       true,  0, createMultipleLinesPrompts},
    {"Ortho Dimension",       "Command11", atOnce,   true,  confined,           Ortho::onlyAtStep3, canvasNumber,                 distance,                       laysPoint,                       true,  0, orthoDimensionPrompts},
    {"Radial Dimension",      "Command12", atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, radialDimensionPrompts},
    {"Angular Dimension",     "Command13", atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, angularDimensionPrompts},
    {"Leader",                "Command14", atOnce,   true,  freely,             freely,             liveText,                     distance,                       discarded,                       true,  0, leaderPrompts},
    {"Place Text",            "Command15", atOnce,   true,  freely,             freely,             liveText,                     distance,                       discarded,                       false, 0, placeTextPrompts},
    {"Text Edit",             "Command16", atOnce,   true,  confined,           freely,             liveText,                     distance,                       discarded,                       true,  0, textEditPrompts},
    {"Object Select",         "Command20", atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, objectSelectPrompts},
    {"Window Select",         "Command19", atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, windowSelectPrompts},
    {"Window Select Filtered","Command18", atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, windowSelectPrompts},
    {"Place Hatch",           "ht3",       fromList, true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, placeHatchPrompts},
    {"Create Hatch",          "ht5",       atOnce,   false, confined,           freely,             canvasName,                   name,                           discarded,                       true,  0, createHatchPrompts},
    {"Hatch Scale",           "ht10",      atOnce,   false, confined,           confined,           canvasNumber,                 EntryKeys::hatchScale,          discarded,                       true,  1, hatchScalePrompts},
    {"Place Associate",       "ass3",      fromList, true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       false, 1, placeAssociatePrompts},
    {"Create Associate",      "ass7",      atOnce,   false, confined,           freely,             canvasName,                   name,                           discarded,                       true,  0, createAssociatePrompts},
    {"Copy",                  "List1",     fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, copyPrompts},
    {"Move",                  "List1",     fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       true,  0, movePrompts},
    {"Mirror Copy",           "List1",     fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, mirrorCopyPrompts},
    {"Rotate",                "List1",     fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::rotate,              discarded,                       true,  0, rotatePrompts},
    {"Scale",                 "List1",     fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::scale,               discarded,                       true,  0, scalePrompts},
    {"Radial Copy",           "List1",     fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::radialCopy,          discarded,                       true,  0, radialCopyPrompts},
    {"Concentric Copy",       "List1",     fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::offsetsCopy,      true,  1, concentricCopyPrompts},
    {"Break",                 "List1",     fromEdits,false, confined,           freely,             canvasNumber,                 distance,                       discarded,                       true,  0, breakPrompts},
    {"Trim",                  "List1",     fromEdits,false, confined,           freely,             canvasNumber,                 distance,                       discarded,                       true,  0, trimPrompts},
    {"Fillet",                "List1",     fromEdits,false, confined,           freely,             CanvasKeys::numberAlways,     EntryKeys::distanceAlways,      TypedDistance::setsFilletRadius, true,  1, filletPrompts},
    {"Stretch",               "List1",     fromEdits,false, Ortho::onlyAtStep3, Ortho::notAtStep3,  canvasNumber,                 distance,                       laysPoint,                       true,  0, stretchPrompts},
    {"Change",                "List1",     fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       true,  0, {}},
    {"Text Size",             "tk3",       atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::setsTextSize,     true,  1, textSizePrompts},
    {"Arrow Size",            "dim7",      atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::setsArrowSize,    true,  1, arrowSizePrompts},
    {"Measure Area",          "ut4",       atOnce,   false, freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, measureAreaPrompts},
    {"Ortho Angle Match",     "angle",     byMatchKey,false,freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, matchPrompts},
    {"Text Rotation Match",   "textrot",   byMatchKey,false,freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, matchPrompts},
    {"Move Dimension Text",   "dim11",     atOnce,   false, freely,             freely,             canvasNumber,                 distance,                       discarded,                       true,  0, {}},
    {"Blank Line",            "blank",     atOnce,   false, confined,           confined,           CanvasKeys::numberOnceBlankLeg, EntryKeys::distanceOnceBlankLeg, TypedDistance::laysBlankLeg, true,  0, {}},
};
// clang-format on

} // namespace

std::span<const FunctionRow> vocabulary()
{
    return rows;
}

const FunctionRow* findFunction(std::string_view name)
{
    const auto* const found = std::ranges::find(rows, name, &FunctionRow::name);
    return found == std::end(rows) ? nullptr : found;
}

const FunctionRow* functionStartedBy(std::string_view control)
{
    const auto* const found = std::ranges::find_if(rows, [&](const FunctionRow& row) {
        return row.starter == control && row.starts != Starts::fromEdits;
    });
    return found == std::end(rows) ? nullptr : found;
}

bool applies(Ortho rule, std::int16_t stepNo)
{
    switch (rule) {
    case Ortho::confined:
    case Ortho::unlessSnapped:
        return true;
    case Ortho::free:
        return false;
    case Ortho::onlyAtStep3:
        return stepNo == 3;
    case Ortho::notAtStep3:
        return stepNo != 3;
    }
    return true;
}

bool waitsForName(const FunctionRow& row, std::int16_t stepNo)
{
    return row.canvasKeys == CanvasKeys::name && stepNo == 0;
}

bool isSelectionFunction(std::string_view name)
{
    return name == "Object Select" || isWindowFunction(name);
}

bool isWindowFunction(std::string_view name)
{
    return name == "Window Select" || name == "Window Select Filtered";
}

const Prompt* promptAt(std::span<const Prompt> prompts, std::int16_t stepNo)
{
    const Prompt* found = nullptr;
    for (const Prompt& prompt : prompts) {
        if (prompt.step == stepNo || (prompt.andOn && stepNo > prompt.step)) found = &prompt;
    }
    return found;
}

} // namespace mirtane
