#include "tables/functions.h"

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
constexpr auto steps = Clicks::countSteps;

//                        at points                     on objects                    own legs                 from first click
constexpr Snaps toLeg    {SnapGives::onLeg,             SnapGives::onLeg,             OwnLegs::none,           false};
constexpr Snaps toItself {SnapGives::itself,            SnapGives::itself,            OwnLegs::none,           false};
constexpr Snaps pointsToItself {SnapGives::itself,      SnapGives::onLeg,             OwnLegs::none,           false};
constexpr Snaps objectsToItself {SnapGives::onLeg,      SnapGives::itself,            OwnLegs::none,           false};
constexpr Snaps ofLine   {SnapGives::onLeg,             SnapGives::onLeg,             OwnLegs::none,           true};
constexpr Snaps ofHatch  {SnapGives::onLeg,             SnapGives::onLeg,             OwnLegs::endsAndMiddles, false};
constexpr Snaps ofArea   {SnapGives::itself,            SnapGives::onLeg,             OwnLegs::ends,           false};
constexpr Snaps ofStretch{SnapGives::itselfBeforeStep4, SnapGives::itselfBeforeStep4, OwnLegs::none,           false};

// Where the points of a function come behind its name, its text or a number, the first point in the session is
// none of its own, and no click is held against it.
constexpr FunctionRow rows[] = {
//   name                     starter                     starts    base   ortho on move       ortho on click      keys on the drawing           keys in entry                   typed distance                   clicks                       snaps            edits text, same point cancels, first step, prompts, in the manual
    {"Line",                  ids::drawLine,              atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       ofLine,          false, true,  0, linePrompts, {7, "Line"}},
    {"Measure Distance",      ids::measureDistance,       atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, linePrompts, {15, "Utilities > Measure Distance"}},
    {"2pt. Circle",           ids::drawCircleTwo,         atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, circleTwoPrompts, {7, "2pt. Circle"}},
    {"3pt. Circle",           ids::drawCircleThree,       atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, circleThreePrompts, {7, "3pt. Circle"}},
    {"2pt. Arc",              ids::drawArcTwo,            atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, arcTwoPrompts, {7, "2pt. Arc"}},
    {"3pt. Arc",              ids::drawArcThree,          atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, arcThreePrompts, {7, "3pt. Arc"}},
    {"Curve",                 ids::drawCurve,             atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, curvePrompts, {7, "Curve"}},
    {"Ellipse",               ids::drawEllipse,           atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, ellipsePrompts, {7, "Ellipse"}},
    {"Point",                 ids::drawPoint,             atOnce,   true,  confined,           freely,             canvasNumber,                 distance,                       discarded,                       steps,                       objectsToItself, false, true,  0, pointPrompts, {7, "Point"}},
    {"Polygon",               ids::drawPolygon,           atOnce,   true,  confined,           confined,           CanvasKeys::sidesAtStart,     EntryKeys::sidesAtStart,        laysPoint,                       steps,                       toLeg,           false, true,  0, polygonPrompts, {7, "Polygon"}},
    {"Multiple Lines",        ids::drawMultipleLines,     fromList, true,  confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, multipleLinesPrompts, {18, "Place"}},
    {"Create Multiple Lines", ids::createMultipleLines,   atOnce,   false, confined,           unlessSnapped,      canvasName,                   name,                           discarded,                       steps,                       toItself,        false, false, 0, createMultipleLinesPrompts, {18, "Create"}},
    {"Ortho Dimension",       ids::drawLinearDimension,   atOnce,   true,  confined,           Ortho::onlyAtStep3, canvasNumber,                 distance,                       laysPoint,                       steps,                       toItself,        false, true,  0, orthoDimensionPrompts, {9, "Linear dimension"}},
    {"Radial Dimension",      ids::drawRadialDimension,   atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, radialDimensionPrompts, {9, "Radial dimension"}},
    {"Angular Dimension",     ids::drawAngularDimension,  atOnce,   true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, angularDimensionPrompts, {9, "Angular dimension"}},
    {"Leader",                ids::drawLeader,            atOnce,   true,  freely,             freely,             liveText,                     distance,                       discarded,                       steps,                       toItself,        false, false, 0, leaderPrompts, {9, "Leader"}},
    {"Place Text",            ids::placeText,             atOnce,   true,  freely,             freely,             liveText,                     distance,                       discarded,                       steps,                       objectsToItself, false, false, 0, placeTextPrompts, {8, "Place Text"}},
    {"Text Edit",             ids::editText,              atOnce,   true,  confined,           freely,             liveText,                     distance,                       discarded,                       steps,                       toLeg,           true,  true,  0, textEditPrompts, {8, "Edit Text"}},
    {"Object Select",         ids::selectObjects,         atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       Clicks::pickObjects,         toLeg,           false, true,  0, objectSelectPrompts, {10, "Object Select"}},
    {"Window Select",         ids::selectWindow,          atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       Clicks::takeWindow,          toLeg,           false, true,  0, windowSelectPrompts, {10, "Window Select"}},
    {"Window Select Filtered",ids::selectWindowFiltered,  atOnce,   true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       Clicks::takeFilteredWindow,  toLeg,           false, true,  0, windowSelectPrompts, {10, "Window Select Filtered"}},
    {"Place Hatch",           ids::placeHatch,            fromList, true,  confined,           confined,           canvasNumber,                 distance,                       discarded,                       steps,                       ofHatch,         false, true,  0, placeHatchPrompts, {16, "Place"}},
    {"Create Hatch",          ids::createHatch,           atOnce,   false, confined,           freely,             canvasName,                   name,                           discarded,                       steps,                       toLeg,           false, false, 0, createHatchPrompts, {16, "Create"}},
    {"Hatch Scale",           ids::hatchScale,            atOnce,   false, confined,           confined,           canvasNumber,                 EntryKeys::hatchScale,          discarded,                       steps,                       toLeg,           false, false, 1, hatchScalePrompts, {16, "Scale"}},
    {"Place Associate",       ids::placeAssociate,        fromList, true,  freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, false, 1, placeAssociatePrompts, {17, "Place"}},
    {"Create Associate",      ids::createAssociate,       atOnce,   false, confined,           freely,             canvasName,                   name,                           discarded,                       steps,                       toItself,        false, false, 0, createAssociatePrompts, {17, "Create"}},
    {"Copy",                  ids::selectionList,         fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, copyPrompts, {11, "Copy"}},
    {"Move",                  ids::selectionList,         fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       laysPoint,                       steps,                       toLeg,           false, true,  0, movePrompts, {11, "Move"}},
    {"Mirror Copy",           ids::selectionList,         fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, mirrorCopyPrompts, {11, "Mirror Copy"}},
    {"Rotate",                ids::selectionList,         fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::rotate,              discarded,                       steps,                       toLeg,           false, true,  0, rotatePrompts, {11, "Rotate"}},
    {"Scale",                 ids::selectionList,         fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::scale,               discarded,                       steps,                       toLeg,           false, true,  0, scalePrompts, {11, "Scale"}},
    {"Radial Copy",           ids::selectionList,         fromEdits,false, confined,           freely,             canvasNumber,                 EntryKeys::radialCopy,          discarded,                       steps,                       toLeg,           false, true,  0, radialCopyPrompts, {11, "Radial Copy"}},
    {"Concentric Copy",       ids::selectionList,         fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::offsetsCopy,      steps,                       toLeg,           false, false, 1, concentricCopyPrompts, {11, "Concentric Copy"}},
    {"Break",                 ids::selectionList,         fromEdits,false, confined,           freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toItself,        false, true,  0, breakPrompts, {11, "Break"}},
    {"Trim",                  ids::selectionList,         fromEdits,false, confined,           freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, trimPrompts, {11, "Trim"}},
    {"Fillet",                ids::selectionList,         fromEdits,false, confined,           freely,             CanvasKeys::numberAlways,     EntryKeys::distanceAlways,      TypedDistance::setsFilletRadius, steps,                       toLeg,           false, false, 1, filletPrompts, {11, "Fillet"}},
    {"Stretch",               ids::selectionList,         fromEdits,false, Ortho::onlyAtStep3, Ortho::notAtStep3,  canvasNumber,                 distance,                       laysPoint,                       steps,                       ofStretch,       false, true,  0, stretchPrompts, {11, "Stretch"}},
    {"Change",                ids::selectionList,         fromEdits,false, confined,           confined,           canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, {}, {11, "Change"}},
    {"Text Size",             ids::textSize,              atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::setsTextSize,     steps,                       toLeg,           false, false, 1, textSizePrompts, {8, "Settings for text to come, in the menu Text"}},
    {"Arrow Size",            ids::arrowSize,             atOnce,   false, confined,           confined,           canvasNumber,                 distance,                       TypedDistance::setsArrowSize,    steps,                       toLeg,           false, false, 1, arrowSizePrompts, {9, "Arrow Size"}},
    {"Measure Area",          ids::measureArea,           atOnce,   false, freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       ofArea,          false, true,  0, measureAreaPrompts, {15, "Utilities > Measure Area"}},
    {"Ortho Angle Match",     ids::orthoAngle,            byMatchKey,false,freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       pointsToItself,  false, true,  0, matchPrompts, {2, "Changing a number in one of the fields"}},
    {"Text Rotation Match",   ids::textRotation,          byMatchKey,false,freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, matchPrompts, {2, "Changing a number in one of the fields"}},
    {"Move Dimension Text",   ids::moveDimensionText,     atOnce,   false, freely,             freely,             canvasNumber,                 distance,                       discarded,                       steps,                       toLeg,           false, true,  0, {}, {9, "Move Dimension Text"}},
    {"Blank Line",            ids::blankToggle,           atOnce,   false, confined,           confined,           CanvasKeys::numberOnceBlankLeg, EntryKeys::distanceOnceBlankLeg, TypedDistance::laysBlankLeg, Clicks::layConstructionLine, toLeg,           false, true,  0, {}, {5, "The construction line (\"blank line\")"}},
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

const FunctionRow& functionRow(std::string_view name)
{
    static constexpr FunctionRow none{"",     ControlId{},  byMatchKey, false,     freely,
                                      freely, canvasNumber, distance,   discarded, steps,
                                      toLeg,  false,        false,      0,         {}};
    const FunctionRow* const row = findFunction(name);
    return row == nullptr ? none : *row;
}

const FunctionRow* functionStartedBy(ControlId control)
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
    return functionRow(name).clicks == Clicks::pickObjects || isWindowFunction(name);
}

bool isWindowFunction(std::string_view name)
{
    const Clicks clicks = functionRow(name).clicks;
    return clicks == Clicks::takeWindow || clicks == Clicks::takeFilteredWindow;
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
