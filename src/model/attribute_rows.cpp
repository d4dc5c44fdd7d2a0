#include "model/attribute_rows.h"

#include "geometry/fault.h"
#include "tables/pens.h"
#include "text/code_page.h"
#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace mirtane {
namespace {

// The whole text is one number.
bool isNumber(const std::string& text)
{
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, fault] = std::from_chars(text.data(), end, value);
    return fault == std::errc{} && stopped == end && std::isfinite(value);
}

template <auto member>
constexpr bool isWord = std::is_same_v<std::remove_cvref_t<decltype(Attributes{}.*member)>, std::string>;

template <auto member> void chooseValue(Attributes& attributes, const Choice& choice)
{
    if constexpr (isWord<member>) {
        attributes.*member = choice.word;
    } else {
        keep(attributes.*member, choice.number);
    }
}

template <auto member> bool hasValue(const Attributes& attributes, const Choice& choice)
{
    if constexpr (isWord<member>) {
        return attributes.*member == choice.word;
    } else {
        return attributes.*member == choice.number;
    }
}

template <auto member> std::string textOf(const Attributes& attributes)
{
    if constexpr (isWord<member>) {
        return attributes.*member;
    } else {
        return plainNumber(attributes.*member);
    }
}

// Words go into the drawings too, and so only those that a drawing can keep are taken.
template <auto member> void takeTextOf(Attributes& attributes, const std::string& text)
{
    if constexpr (isWord<member>) {
        if (!text.empty() && firstBeyondCodePage(text).empty()) attributes.*member = text;
    } else {
        if (isNumber(text)) keep(attributes.*member, readNumber(text));
    }
}

// A field of the header, by the way to it: a pair and its coordinate, or a field of the record itself.
template <auto first, auto... further, class Record> auto& fieldAt(Record& record)
{
    if constexpr (sizeof...(further) == 0) {
        return record.*first;
    } else {
        return fieldAt<further...>(record.*first);
    }
}

template <auto member, auto... way> void fillHeaderWith(EntityRecord& header, const Attributes& attributes)
{
    auto& field = fieldAt<way...>(header);
    // 16 bits fit a float; every other attribute has a field of its own type.
    field = static_cast<std::remove_reference_t<decltype(field)>>(attributes.*member);
}

template <auto member, auto... way> void takeHeaderTo(Attributes& attributes, const EntityRecord& header)
{
    if constexpr (isWord<member>) {
        attributes.*member = fieldAt<way...>(header);
    } else {
        keep(attributes.*member, fieldAt<way...>(header));
    }
}

template <auto member, auto... way>
constexpr AttributeRow attribute(std::string_view key, std::span<const Choice> choices = {})
{
    AttributeRow row{
        key,     choices, chooseValue<member>, hasValue<member>, textOf<member>, takeTextOf<member>,
        nullptr, nullptr};
    if constexpr (sizeof...(way) > 0) {
        row.fillHeader = fillHeaderWith<member, way...>;
        row.takeHeader = takeHeaderTo<member, way...>;
    }
    return row;
}

constexpr Choice penChoice(const Pen& pen)
{
    return {pen.entry, static_cast<double>(pen.color), "", false}; // exact: 24 bits
}

constexpr Choice styleChoice(const LineStyle& style)
{
    return {style.entry, static_cast<double>(style.style)}; // exact: 16 bits
}

constexpr Choice colors[] = {
    penChoice(pens[0]), penChoice(pens[1]), penChoice(pens[2]), penChoice(pens[3]),
    penChoice(pens[4]), penChoice(pens[5]), penChoice(pens[6]), penChoice(pens[7]),
};
constexpr Choice styles[] = {
    styleChoice(lineStyles[0]), styleChoice(lineStyles[1]), styleChoice(lineStyles[2]),
    styleChoice(lineStyles[3]), styleChoice(lineStyles[4]),
};
// The numbers of arrows and justifications run against the order of their menus.
constexpr Choice arrowStyles[] = {{ids::slashStyle, 3}, {ids::openArrow, 2}, {ids::closedArrow, 1}};
constexpr Choice justifications[] = {{ids::leftText, 0}, {ids::centerText, 2}, {ids::rightText, 1}};
constexpr Choice tolerances[] = {
    {ids::quarterInch, 1.0 / 4},       {ids::eighthInch, 1.0 / 8},       {ids::sixteenthInch, 1.0 / 16},
    {ids::thirtySecondInch, 1.0 / 32}, {ids::sixtyFourthInch, 1.0 / 64},
};
constexpr Choice angleFormats[] = {{ids::decimalDegrees, 0}, {ids::degreesMinutesSeconds, 1}};
constexpr Choice numberStyles[] = {
    {ids::feetAndInches, 0, "us"}, {ids::decimalFeet, 0, "2f"}, {ids::decimalInches, 0, "3i"},
    {ids::metric, 0, "br"},        {ids::commaMetric, 0, "br"},
};
// The comma has a say in the mark of the metric styles alone.
constexpr Choice commas[] = {
    {ids::feetAndInches, 0, "", false},
    {ids::decimalFeet, 0, "", false},
    {ids::decimalInches, 0, "", false},
    {ids::metric, 0},
    {ids::commaMetric, 1},
};

using A = Attributes;
using R = EntityRecord;
constexpr auto x = &Point::x;
constexpr auto y = &Point::y;

constexpr AttributeRow rows[] = {
    attribute<&A::textFont, &R::t2>("tnam"),
    attribute<&A::textSize, &R::p1, x>("tsize"),
    attribute<&A::arrowSize, &R::p1, y>("asize"),
    attribute<&A::dimStyle, &R::p2, x>("dstyle", arrowStyles),
    attribute<&A::textJust, &R::p2, y>("tjust", justifications),
    attribute<&A::dimTol, &R::p3, x>("ntol", tolerances),
    attribute<&A::numComma, &R::p3, y>("ncom", commas),
    attribute<&A::angFormat, &R::p4, x>("acom", angleFormats),
    attribute<&A::numStyle, &R::t1>("nstyle", numberStyles),
    attribute<&A::workLayer, &R::layer>(""),
    attribute<&A::curColor, &R::color>("", colors),
    attribute<&A::curStyle, &R::style>("", styles),
};

} // namespace

std::span<const AttributeRow> attributeRows()
{
    return rows;
}

bool isChoice(ControlId entry)
{
    return std::ranges::any_of(rows, [entry](const AttributeRow& row) {
        return std::ranges::find(row.choices, entry, &Choice::entry) != row.choices.end();
    });
}

void choose(Attributes& attributes, ControlId entry)
{
    for (const AttributeRow& row : rows) {
        for (const Choice& choice : row.choices) {
            if (choice.entry == entry) row.choose(attributes, choice);
        }
    }
}

void markChoices(Controls& controls, const Attributes& attributes)
{
    const auto forEachMark = [](auto use) {
        for (const AttributeRow& row : rows) {
            for (const Choice& choice : row.choices) {
                if (choice.marks) use(row, choice);
            }
        }
    };
    forEachMark([&](const AttributeRow&, const Choice& choice) { controls[choice.entry].checked = true; });
    forEachMark([&](const AttributeRow& row, const Choice& choice) {
        if (!row.has(attributes, choice)) controls[choice.entry].checked = false;
    });
}

} // namespace mirtane
