#include "app/typing/fields.h"

#include "app/drawing/starters.h"
#include "app/typing/keys.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "tables/functions.h"
#include "text/numbers.h"

#include <algorithm>

namespace mirtane {
namespace {

bool isAngle(double& degrees)
{
    if (degrees < 0) degrees += 360;
    return degrees >= -360 && degrees < 360;
}

bool isPercentage(double& percent)
{
    return percent > 0 && percent <= 100;
}

void storeOrthoAngle(Session& s, double degrees)
{
    s.orthoAngle = degrees / degreesPerRadian;
    s.orthoAngleSaved = s.orthoAngle;
}

struct FieldRow {
    ControlId field;
    bool (*takes)(double& value); // may bring the value into range
    void (*store)(Session& s, double value);
    double (*shown)(const Session& s);
    std::string_view unit;
    std::string_view bounds; // of what it takes
};

constexpr std::string_view degree = "\xC2\xB0";
constexpr std::string_view belowTurn = "below 360";
constexpr std::string_view percentBounds = "above 0, up to 100";

// The rotation of text is held in degrees, the other angles in radians.
constexpr FieldRow fieldRows[] = {
    {ids::orthoAngle, isAngle, storeOrthoAngle,
     [](const Session& s) { return s.orthoAngleSaved * degreesPerRadian; }, degree, belowTurn},
    {ids::textRotation, isAngle, [](Session& s, double v) { s.textRotation = v; },
     [](const Session& s) { return s.textRotation; }, degree, belowTurn},
    {ids::hatchRotation, isAngle, [](Session& s, double v) { s.hatchRotation = v / degreesPerRadian; },
     [](const Session& s) { return s.hatchRotation * degreesPerRadian; }, degree, belowTurn},
    {ids::associateRotation, isAngle,
     [](Session& s, double v) { s.associateRotation = v / degreesPerRadian; },
     [](const Session& s) { return s.associateRotation * degreesPerRadian; }, degree, belowTurn},
    {ids::snapPercentage, isPercentage, [](Session& s, double v) { keep(s.snapPercentage, v / 100); },
     [](const Session& s) {
         return static_cast<double>(s.snapPercentage) * 100;
     }, // widened before the product
     "%", percentBounds},
};

const FieldRow* fieldRow(ControlId id)
{
    const auto* const found = std::ranges::find(fieldRows, id, &FieldRow::field);
    return found == std::end(fieldRows) ? nullptr : found;
}

std::string storedText(const Session& s, const FieldRow& row)
{
    return formatNumber(row.shown(s), NumberFormat::paddedThousandths);
}

void showValue(Session& s, const FieldRow& row)
{
    setText(s.controls[row.field], storedText(s, row));
}

void acceptField(Session& s, const FieldRow& row)
{
    double value = readNumber(s.controls[row.field].text);
    if (row.takes(value)) row.store(s, value);
    showValue(s, row);
    s.controls.focus = ids::drawing;
}

bool startsMatch(ControlId id, char32_t code)
{
    return (code == U'm' || code == U'M') && functionStartedBy(id) != nullptr;
}

} // namespace

bool isNumericField(ControlId id)
{
    return fieldRow(id) != nullptr;
}

void fieldKeyPress(App& app, ControlId id, char32_t code)
{
    const FieldRow* row = fieldRow(id);
    if (row == nullptr) return;
    Control& field = app.s.controls[id];
    if (startsMatch(id, code)) return startFromControl(app, id);
    if (code == U',') code = U'.';
    const bool passes =
        (code >= U'0' && code <= U'9') || code == U'.' || code == U'-' || code == backspaceKey;
    if (passes) return passKey(field, code);
    if (code == enterKey && !field.text.empty()) acceptField(app.s, *row);
}

std::string fieldReading(const Session& s, ControlId id)
{
    const FieldRow* row = fieldRow(id);
    if (row == nullptr) return {};
    const std::string& typed = s.controls[id].text;
    const std::string stored = storedText(s, *row);
    if (typed.empty() || typed == stored || typed == withComma(stored)) return {};
    double value = readNumber(typed);
    if (!row->takes(value)) return "not taken: " + std::string(row->bounds);
    const std::string number = formatNumber(value, NumberFormat::thousandths);
    return "= " + (s.numComma == 1 ? withComma(number) : number) + std::string(row->unit);
}

void fieldLeft(Session& s, ControlId id)
{
    const FieldRow* row = fieldRow(id);
    if (row == nullptr) return;
    showValue(s, *row);
    Control& field = s.controls[id];
    if (s.numComma == 1) setText(field, withComma(field.text));
}

void fieldClicked(App& app, ControlId id)
{
    setText(app.s.controls[id], "");
}

} // namespace mirtane
