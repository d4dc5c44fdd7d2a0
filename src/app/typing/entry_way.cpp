#include "app/typing/entry_way.h"

#include "commands/polygon.h"
#include "geometry/fault.h"
#include "text/numbers.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr double hatchScaleAbove = 0.1;
constexpr double hatchScaleBelow = 64;

double withinTurn(double degrees)
{
    return std::clamp(degrees, -360.0, 360.0);
}

double withinCopies(double copies)
{
    return std::clamp(copies, 2.0, 64.0);
}

double asTyped(double value)
{
    return value;
}

std::string degreesText(double degrees)
{
    return formatNumber(degrees, NumberFormat::thousandths) + "\xC2\xB0";
}

std::string copiesText(double value)
{
    std::int32_t copies = 0;
    keep(copies, value);
    return plainNumber(copies) + " copies";
}

std::string factorText(double value)
{
    float factor = 0;
    keep(factor, value);
    return plainNumber(factor);
}

void storeDegrees(Session& s, double value)
{
    s.editDegrees = value;
}

constexpr EditNumber editNumbers[] = {
    {EntryKeys::radialCopy, 1, withinTurn, storeDegrees, degreesText, 1, false},
    {EntryKeys::radialCopy, 2, withinCopies, [](Session& s, double v) { keep(s.radialCount, v); }, copiesText,
     1, true},
    {EntryKeys::rotate, 1, withinTurn, storeDegrees, degreesText, 2, true},
    {EntryKeys::scale, 1, asTyped, [](Session& s, double v) { keep(s.editDX, v); }, factorText, 1, false},
    {EntryKeys::scale, 2, asTyped, [](Session& s, double v) { keep(s.editDY, v); }, factorText, 1, true},
};

const EditNumber* editNumberAt(EntryKeys keys, std::int16_t stepNo)
{
    const auto* const found = std::ranges::find_if(
        editNumbers, [&](const EditNumber& row) { return row.keys == keys && row.step == stepNo; });
    return found == std::end(editNumbers) ? nullptr : found;
}

} // namespace

EntryWay entryWay(const Session& s, const FunctionRow& row)
{
    const bool begun = row.entryKeys == EntryKeys::distanceOnceBlankLeg ? s.blankStep > 0 : s.stepNo > 0;
    if (row.entryKeys == EntryKeys::sidesAtStart && !begun) return {EntryReads::sides};
    if (row.entryKeys == EntryKeys::hatchScale) return {EntryReads::hatchScale};
    if (row.entryKeys == EntryKeys::name) return {EntryReads::name};
    if (!begun && row.entryKeys != EntryKeys::distanceAlways) return {};
    const EditNumber* const number = editNumberAt(row.entryKeys, s.stepNo);
    return {number != nullptr ? EntryReads::editNumber : EntryReads::distance, number};
}

bool isSides(double sides)
{
    return sides > sidesAbove && sides < sidesBelow;
}

bool isHatchScale(double scale)
{
    return scale > hatchScaleAbove && scale < hatchScaleBelow;
}

} // namespace mirtane
