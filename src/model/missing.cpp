#include "model/missing.h"

#include "text/numbers.h"

#include <string_view>

namespace mirtane {
namespace {

constexpr std::string_view tableIsFull = "The table is full: ";

} // namespace

std::string missingText(const Missing& missing)
{
    const bool isOne = missing.pieces == 1;
    return std::string(tableIsFull) + (missing.orMore ? "more than " : "") + withThousands(missing.pieces) +
           (isOne ? " piece is missing" : " pieces are missing");
}

void tellMissing(Controls& controls, const Missing& missing)
{
    if (missing.pieces > 0) setText(controls[ids::entry], missingText(missing));
}

bool tellsMissing(const Controls& controls)
{
    return controls[ids::entry].text.starts_with(tableIsFull);
}

} // namespace mirtane
