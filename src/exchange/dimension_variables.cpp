#include "exchange/dimension_variables.h"

#include "render/dimension_strokes.h"

#include <algorithm>

namespace mirtane {
namespace {

// A variable by its number in the records of styles.
namespace variable {
constexpr int scale = 40, arrow = 41, text = 140, measures = 144, gap = 147, leaderColor = 176,
              decimals = 271, leaderArrow = 341, strokes = 142, arrowBlock = 342;
}

// What a record says otherwise than its style stands in its data for other programs, as pairs of number and
// value.
const DxfGroup* overridden(const DxfRecord& record, int number)
{
    const auto& groups = record.groups;
    const auto start = std::ranges::find_if(
        groups, [](const DxfGroup& g) { return g.code == 1000 && isSameName(trimmed(g.value), "DSTYLE"); });
    for (auto at = start; at != groups.end() && at + 1 != groups.end(); ++at) {
        if (at->code == 1001) break;
        if (at->code == 1070 && dxfWhole(at->value) == number) return &*(at + 1);
        if (at->code == 1070) ++at;
    }
    return nullptr;
}

class Values {
  public:
    Values(const DxfRecord& record, const DxfList& list) : record_(record), list_(list)
    {
        const auto row = list.dimensionStyles.find(record.name(3));
        if (row != list.dimensionStyles.end()) style_ = &row->second;
    }

    double number(int code, std::string_view header, double fallback) const
    {
        if (const DxfGroup* const own = overridden(record_, code)) return dxfNumber(own->value, fallback);
        if (style_ != nullptr) return style_->number(code, fallback);
        return list_.variable(header, code < 70 || code >= 140 ? 40 : 70, fallback);
    }
    std::string_view name(int code) const
    {
        if (const DxfGroup* const own = overridden(record_, code)) return trimmed(own->value);
        return style_ != nullptr ? style_->name(code) : std::string_view();
    }

  private:
    const DxfRecord& record_;
    const DxfList& list_;
    const DxfRecord* style_ = nullptr;
};

struct ArrowName {
    std::string_view block;
    std::int16_t style;
};

constexpr ArrowName arrowNames[] = {
    {"", arrow::closed},        {"_CLOSED", arrow::closed}, {"_CLOSEDFILLED", arrow::closed},
    {"_OPEN", arrow::open},     {"_OPEN30", arrow::open},   {"_ARCHTICK", arrow::slash},
    {"_OBLIQUE", arrow::slash},
};

std::int16_t arrowStyleOf(const Values& values, const DxfList& list)
{
    if (values.number(variable::strokes, "$DIMTSZ", 0) > 0) return arrow::slash;
    const std::string_view handle = values.name(variable::arrowBlock);
    const bool isCommon = handle.empty() || handle == "0";
    const std::string_view block = isCommon ? std::string_view() : list.nameByHandle(handle);
    const auto* const row = std::ranges::find_if(
        arrowNames, [block](const ArrowName& one) { return isSameName(one.block, block); });
    const bool isKnown = row != std::end(arrowNames) && (isCommon || !block.empty());
    return isKnown ? row->style : std::int16_t{0};
}

} // namespace

DimensionVariables dimensionVariables(const DxfRecord& record, const DxfList& list)
{
    const Values values(record, list);
    const DimensionVariables plain;
    const double said = values.number(variable::scale, "$DIMSCALE", 1);
    const double scale = said > 0 ? said : 1; // 0: as the sheet has it, which there is none of
    DimensionVariables d;
    d.arrow = values.number(variable::arrow, "$DIMASZ", plain.arrow) * scale;
    d.text = values.number(variable::text, "$DIMTXT", plain.text) * scale;
    d.gap = values.number(variable::gap, "$DIMGAP", plain.gap) * scale;
    const double measures = values.number(variable::measures, "$DIMLFAC", 1);
    d.measures = measures > 0 ? measures : 1; // one below 0 is for sheets alone
    d.decimals =
        static_cast<int>(std::clamp(values.number(variable::decimals, "", 4), 0.0, 8.0)); // within an int
    d.leaderColor =
        static_cast<int>(std::clamp(values.number(variable::leaderColor, "", 0), 0.0, 256.0)); // likewise
    d.arrowStyle = arrowStyleOf(values, list);
    d.leaderArrow = values.name(variable::leaderArrow);
    return d;
}

} // namespace mirtane
