#include "play/session_values.h"

#include "play/json_text.h"

#include <algorithm>

namespace mirtane::play {
namespace {

struct SessionValue {
    std::string_view name;
    std::string (*give)(const Session& s);
};

template <auto member> constexpr SessionValue value(std::string_view name)
{
    return {name, [](const Session& s) { return json(s.*member); }};
}

constexpr SessionValue sessionValues[] = {
    value<&Session::workLayer>("workLayer"),
    value<&Session::curColor>("curColor"),
    value<&Session::curStyle>("curStyle"),
    value<&Session::textSize>("textSize"),
    value<&Session::arrowSize>("arrowSize"),
    value<&Session::dimStyle>("dimStyle"),
    value<&Session::textJust>("textJust"),
    value<&Session::textFont>("textFont"),
    value<&Session::dimTol>("dimTol"),
    value<&Session::numComma>("numComma"),
    value<&Session::angFormat>("angFormat"),
    value<&Session::numStyle>("numStyle"),
    value<&Session::textRotation>("textRotation"),
    value<&Session::snapPercentage>("snapPercentage"),
    value<&Session::filletRadius>("filletRadius"),
    value<&Session::polygonSides>("polygonSides"),
    value<&Session::hatchScale>("hatchScale"),
    value<&Session::hatchRotation>("hatchRotation"),
    value<&Session::associateRotation>("associateRotation"),
    value<&Session::associateName>("associateName"),
    value<&Session::hatchName>("hatchName"),
    value<&Session::multipleLinesName>("multipleLinesName"),
    value<&Session::curFunc>("curFunc"),
    value<&Session::baseFunc>("baseFunc"),
    value<&Session::lastFunc>("lastFunc"),
    value<&Session::stepNo>("stepNo"),
    value<&Session::promptText>("promptText"),
    value<&Session::editPending>("editPending"),
    value<&Session::workRadius>("workRadius"),
    value<&Session::workAngle>("workAngle"),
    value<&Session::arcStart>("arcStart"),
    value<&Session::arcEnd>("arcEnd"),
    value<&Session::dimAngle>("dimAngle"),
    value<&Session::arcAngleOne>("arcAngleOne"),
    value<&Session::arcAngleTwo>("arcAngleTwo"),
    value<&Session::arcLastAngle>("arcLastAngle"),
    value<&Session::arcWinding>("arcWinding"),
    value<&Session::curveFlip>("curveFlip"),
    value<&Session::curveSide>("curveSide"),
    value<&Session::snapKey>("snapKey"),
    value<&Session::orthoSector>("orthoSector"),
    value<&Session::orthoAngle>("orthoAngle"),
    value<&Session::orthoAngleSaved>("orthoAngleSaved"),
    value<&Session::orthoCaption>("orthoCaption"),
    value<&Session::liveAngle>("liveAngle"),
    value<&Session::pointWasSnapped>("pointWasSnapped"),
    value<&Session::windowStep>("windowStep"),
    value<&Session::blankStep>("blankStep"),
    value<&Session::blankSavedFunc>("blankSavedFunc"),
    value<&Session::textLength>("textLength"),
    value<&Session::boundaryCount>("boundaryCount"),
    value<&Session::viewLeft>("viewLeft"),
    value<&Session::viewTop>("viewTop"),
    value<&Session::viewRight>("viewRight"),
    value<&Session::viewBottom>("viewBottom"),
    value<&Session::wholeViewFlag>("wholeViewFlag"),
    value<&Session::pixelOriginX>("pixelOriginX"),
    value<&Session::pixelOriginY>("pixelOriginY"),
    value<&Session::pixelPerUnitX>("pixelPerUnitX"),
    value<&Session::pixelPerUnitY>("pixelPerUnitY"),
    value<&Session::savedPrompt>("savedPrompt"),
    value<&Session::savedCount>("savedCount"),
    value<&Session::saveFollowUp>("saveFollowUp"),
    value<&Session::drawingName>("drawingName"),
    value<&Session::dxfName>("dxfName"),
    value<&Session::dimensionCount>("dimensionCount"),
    value<&Session::chosenLayer>("chosenLayer"),
    value<&Session::filterLayer>("filterLayer"),
    value<&Session::filterKind>("filterKind"),
    value<&Session::filterStyle>("filterStyle"),
    value<&Session::filterColor>("filterColor"),
    value<&Session::pickedIndex>("pickedIndex"),
    value<&Session::pickedSecond>("pickedSecond"),
    value<&Session::snapBestIndex>("snapBestIndex"),
    value<&Session::snapSecondIndex>("snapSecondIndex"),
    value<&Session::snapRadius>("snapRadius"),
    value<&Session::editDX>("editDX"),
    value<&Session::editDY>("editDY"),
    value<&Session::editStepX>("editStepX"),
    value<&Session::editStepY>("editStepY"),
    value<&Session::editAngle>("editAngle"),
    value<&Session::editDegrees>("editDegrees"),
    value<&Session::radialCount>("radialCount"),
    value<&Session::offsetDistance>("offsetDistance"),
    value<&Session::stretchLeft>("stretchLeft"),
    value<&Session::stretchTop>("stretchTop"),
    value<&Session::stretchRight>("stretchRight"),
    value<&Session::stretchBottom>("stretchBottom"),
    value<&Session::pageWidth>("pageWidth"),
    value<&Session::pageHeight>("pageHeight"),
    value<&Session::printMinX>("printMinX"),
    value<&Session::printMinY>("printMinY"),
    value<&Session::printMaxX>("printMaxX"),
    value<&Session::printMaxY>("printMaxY"),
    value<&Session::printFactor>("printFactor"),
    value<&Session::printScale>("printScale"),
    value<&Session::printOriginX>("printOriginX"),
    value<&Session::printOriginY>("printOriginY"),
    value<&Session::moveText>("moveText"),
    // Second names of some of them.
    value<&Session::associateName>("assocName"),
    value<&Session::associateRotation>("assocRotation"),
    value<&Session::hatchName>("hatchCurrentName"),
    value<&Session::multipleLinesName>("mlineName"),
    value<&Session::snapPercentage>("snapPercent"),
    {"mlineCount", [](const Session& s) { return json(s.multipleLinesLibrary.count); }},
    {"hatchRowCount", [](const Session& s) { return json(s.hatchLibrary.count); }},
    {"entCount", [](const Session& s) { return json(s.store.entCount); }},
    {"undoLogCount", [](const Session& s) { return json(s.log.undoLogCount); }},
    {"undoGroupNext", [](const Session& s) { return json(s.log.undoGroupNext); }},
    {"undoGroupTop", [](const Session& s) { return json(s.log.undoGroupTop); }},
    {"redoGroupTop", [](const Session& s) { return json(s.log.redoGroupTop); }},
    {"layerCount", [](const Session& s) { return json(s.layerTable.layerCount); }},
    {"moveTextX", [](const Session& s) { return json(s.moveText.x); }},
    {"moveTextY", [](const Session& s) { return json(s.moveText.y); }},
    {"windowX1", [](const Session& s) { return json(s.window1.x); }},
    {"windowY1", [](const Session& s) { return json(s.window1.y); }},
    {"windowX2", [](const Session& s) { return json(s.window2.x); }},
    {"windowY2", [](const Session& s) { return json(s.window2.y); }},
};

struct PointRow {
    std::string_view name;
    Point Session::*point;
};

constexpr PointRow pointRows[] = {
    {"pickFirst", &Session::pickFirst},
    {"pickLast", &Session::pickLast},
    {"mousePos", &Session::mousePos},
    {"trimPick", &Session::mousePos},
    {"ptA", &Session::ptA},
    {"ptB", &Session::ptB},
    {"ptC", &Session::ptC},
    {"ptD", &Session::ptD},
    {"ptE", &Session::ptE},
    {"ptF", &Session::ptF},
    {"ptG", &Session::ptG},
    {"ptH", &Session::ptH},
    {"bisectorA", &Session::bisectorA},
    {"bisectorB", &Session::bisectorB},
    {"blankStart", &Session::blankStart},
    {"blankEnd", &Session::blankEnd},
};

const PointRow* pointRow(std::string_view name)
{
    const auto* const found = std::ranges::find(pointRows, name, &PointRow::name);
    return found == std::end(pointRows) ? nullptr : found;
}

std::optional<std::string> pointValue(const Session& s, std::string_view name)
{
    if (const PointRow* row = pointRow(name)) return json(s.*row->point);
    if (name.empty() || (name.back() != 'X' && name.back() != 'Y')) return std::nullopt;
    const PointRow* row = pointRow(name.substr(0, name.size() - 1));
    if (row == nullptr) return std::nullopt;
    const Point p = s.*row->point;
    return json(name.back() == 'X' ? p.x : p.y);
}

} // namespace

std::optional<std::string> sessionValue(const Session& s, std::string_view name)
{
    const auto* const found = std::ranges::find(sessionValues, name, &SessionValue::name);
    if (found != std::end(sessionValues)) return found->give(s);
    return pointValue(s, name);
}

} // namespace mirtane::play
