#include "app/typing/reading.h"

#include "app/typing/entry_way.h"
#include "app/typing/fields.h"
#include "commands/linear_dimension_text.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/distance_grammar.h"
#include "text/measure.h"
#include "text/numbers.h"
#include "text/utf8.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

struct Advice {
    char32_t key;
    std::string_view instead;
};

// What someone means who types these.
constexpr Advice advices[] = {
    {U'/', "type .5 for 1/2"},
    {U' ', "type 6.5 for 6 1/2"},
    {U'"', "inches need no mark"},
};

// In no style a length from an inch on is rounded to nothing: one that reads so has too many digits.
constexpr float longestThatReadsAsNothing = 12;

std::string sidesText(double typed)
{
    if (!isSides(typed)) return "not taken: 3 to 64 sides";
    std::int16_t sides = 0;
    keep(sides, typed);
    return "= " + plainNumber(sides) + " sides";
}

std::string hatchScaleText(double typed)
{
    if (!isHatchScale(typed)) return "not taken: above 0.1, below 64";
    float scale = 0;
    keep(scale, typed);
    return "= " + plainNumber(scale);
}

std::string equals(const Session& s, float length)
{
    const std::string text = signedLengthText(s, length);
    return text.empty() ? text : "= " + text;
}

std::string distanceText(const Session& s, TypedDistance becomes, const std::string& typed)
{
    switch (becomes) {
    case TypedDistance::discarded:
        return "no length is taken here";
    case TypedDistance::setsTextSize:
    case TypedDistance::setsArrowSize: {
        const float size = readSize(typed, numStyleOf(s.numStyle));
        return size > 0 ? equals(s, size) : "not taken: above 0";
    }
    case TypedDistance::laysPoint:
    case TypedDistance::laysBlankLeg:
    case TypedDistance::setsFilletRadius:
    case TypedDistance::offsetsCopy:
        break;
    }
    return equals(s, readDistance(typed, s.numStyle == "br"));
}

std::string withPointOf(const Attributes& s, std::string text)
{
    return s.numComma == 1 ? withComma(std::move(text)) : text;
}

std::string entryReading(const Session& s)
{
    const FunctionRow* const row = findFunction(s.curFunc);
    const std::string& typed = s.controls[ids::entry].text;
    if (row == nullptr || typed.empty()) return {};
    const EntryWay way = entryWay(s, *row);
    switch (way.reads) {
    case EntryReads::nothing:
    case EntryReads::name:
        return {};
    case EntryReads::sides:
        return sidesText(readNumber(typed));
    case EntryReads::hatchScale:
        return withPointOf(s, hatchScaleText(readNumber(typed)));
    case EntryReads::editNumber:
        return withPointOf(s, "= " + way.number->shown(way.number->held(readNumber(typed))));
    case EntryReads::distance:
        return distanceText(s, row->typedDistance, typed);
    }
    return {};
}

bool entryTakesNumber(const Session& s)
{
    const FunctionRow* const row = findFunction(s.curFunc);
    if (row == nullptr) return false;
    const EntryReads reads = entryWay(s, *row).reads;
    return reads != EntryReads::nothing && reads != EntryReads::name;
}

bool drawingTakesNumber(const Session& s)
{
    const FunctionRow* const row = findFunction(s.curFunc);
    if (row == nullptr) return false;
    switch (row->canvasKeys) {
    case CanvasKeys::numberOnceBegun:
        return s.stepNo > 0;
    case CanvasKeys::numberOnceBlankLeg:
        return s.blankStep > 0;
    case CanvasKeys::numberAlways:
    case CanvasKeys::sidesAtStart:
        return true;
    case CanvasKeys::name:
    case CanvasKeys::liveText:
        return false;
    }
    return false;
}

} // namespace

std::string readingOf(const Session& s)
{
    const ControlId focus = s.controls.focus;
    std::string said = focus == ids::entry ? entryReading(s) : fieldReading(s, focus);
    if (s.refusedKey == 0) return said;
    return said + (said.empty() ? "" : "   ") + refusalOf(s.refusedKey);
}

bool takesNumber(const Session& s)
{
    const ControlId focus = s.controls.focus;
    if (focus == ids::entry) return entryTakesNumber(s);
    return focus == ids::drawing ? drawingTakesNumber(s) : isNumericField(focus);
}

std::string refusalOf(char32_t key)
{
    const auto* const advice = std::ranges::find(advices, key, &Advice::key);
    const std::string said = "'" + encodeUtf8(key) + "' is not taken";
    return advice == std::end(advices) ? said : said + ": " + std::string(advice->instead);
}

std::string signedLengthText(const Attributes& s, float length)
{
    const std::string text = lengthText(s, std::abs(length));
    const bool isNothing = text.find_first_of("123456789") == std::string::npos;
    if (isNothing && std::abs(length) >= longestThatReadsAsNothing) return {};
    return length < 0 && !isNothing ? "-" + text : text;
}

std::string legText(const Attributes& s, const Leg& leg)
{
    float length = 0;
    keep(length, distance(leg.from, leg.to));
    if (!(length > 0)) return {};
    const std::string angle = formatAngle(directionAngle(leg.from, leg.to, 0), s.angFormat);
    const std::string text = signedLengthText(s, length);
    return text + (text.empty() ? "" : "  ") + withPointOf(s, angle);
}

} // namespace mirtane
