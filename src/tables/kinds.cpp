#include "tables/kinds.h"

#include <iterator>

namespace mirtane {
namespace {

using namespace field;

constexpr std::uint16_t allPairs = p1 | p2 | p3 | p4 | p5;
constexpr std::uint16_t dimensionValues = s1 | s2 | rad | a1 | a2 | a3 | words;
constexpr auto rotation1 = &EntityRecord::a1;
constexpr auto rotation3 = &EntityRecord::a3;

// A leader has no fourth pair. A move shifts what stands there all the same; the rest leaves it alone.
constexpr std::uint16_t leaderPairs = p1 | p2 | p3 | p5;

// clang-format off
constexpr KindRow kindRows[] = {
//   moved              mapped             values                        line style  sweeps  rotation   text start
    {p1 | p2,           p1 | p2,           0,                            true,       false,  nullptr,   nullptr},           // line
    {p1,                p1,                rad,                          true,       false,  nullptr,   nullptr},           // circle
    {p1 | p2 | p3 | p4, p1 | p2 | p3 | p4, rad | a1 | a2,                true,       true,   nullptr,   nullptr},           // arc
    {p1 | p2,           p1 | p2,           p3x,                          true,       false,  nullptr,   nullptr},           // ellipse
    {p1,                p1,                0,                            false,      false,  nullptr,   nullptr},           // point
    {p1 | p4,           p1 | p4,           p2 | p3x | rad | a1 | words,  false,      false,  rotation1, &EntityRecord::p4}, // text
    {allPairs,          allPairs,          dimensionValues,              false,      false,  rotation1, &EntityRecord::p5}, // linear dimension
    {allPairs,          allPairs,          dimensionValues,              false,      false,  rotation1, &EntityRecord::p5}, // radial dimension
    {allPairs,          leaderPairs,       dimensionValues | p4,         false,      false,  rotation1, &EntityRecord::p5}, // leader
    {allPairs,          allPairs,          dimensionValues,              false,      true,   rotation3, &EntityRecord::p5}, // angular dimension
};
// clang-format on

static_assert(std::size(kindRows) == drawnKinds);

} // namespace

const KindRow* kindRow(Kind kind)
{
    return isDrawnKind(kind) ? &kindRows[placeOf(kind)] : nullptr;
}

bool hasWords(Kind kind)
{
    const KindRow* const row = kindRow(kind);
    return row != nullptr && row->textStart != nullptr;
}

bool hasLineStyle(Kind kind)
{
    const KindRow* const row = kindRow(kind);
    return row != nullptr && row->hasLineStyle;
}

float textSizeOf(const EntityRecord& r)
{
    return r.kind == Kind::text ? r.p2.x : r.s2;
}

} // namespace mirtane
