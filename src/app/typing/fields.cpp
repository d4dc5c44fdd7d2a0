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
};

// hatrot and assrot hold radians like angle; textrot holds degrees.
constexpr FieldRow fieldRows[] = {
    {ids::orthoAngle, isAngle, storeOrthoAngle,
     [](const Session& s) { return s.orthoAngleSaved * degreesPerRadian; }},
    {ids::textRotation, isAngle, [](Session& s, double v) { s.textRotation = v; },
     [](const Session& s) { return s.textRotation; }},
    {ids::hatchRotation, isAngle, [](Session& s, double v) { s.hatchRotation = v / degreesPerRadian; },
     [](const Session& s) { return s.hatchRotation * degreesPerRadian; }},
    {ids::associateRotation, isAngle,
     [](Session& s, double v) { s.associateRotation = v / degreesPerRadian; },
     [](const Session& s) { return s.associateRotation * degreesPerRadian; }},
    {ids::snapPercentage, isPercentage, [](Session& s, double v) { keep(s.snapPercentage, v / 100); },
     [](const Session& s) {
         return static_cast<double>(s.snapPercentage) * 100;
     }}, // widened before the product
};

const FieldRow* fieldRow(ControlId id)
{
    const auto* const found = std::ranges::find(fieldRows, id, &FieldRow::field);
    return found == std::end(fieldRows) ? nullptr : found;
}

void showValue(Session& s, const FieldRow& row)
{
    setText(s.controls[row.field], formatNumber(row.shown(s), NumberFormat::paddedThousandths));
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
