#include "exchange/not_read.h"

#include "exchange/pens_out.h"
#include "geometry/rounding.h"
#include "tables/kinds.h"
#include "text/numbers.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace mirtane {
namespace {

struct SortName {
    std::string_view one, many;
};

constexpr SortName sortNames[] = {
    {"circle", "circles"}, {"arc", "arcs"},     {"ellipse", "ellipses"},     {"line", "lines"},
    {"text", "texts"},     {"point", "points"}, {"dimension", "dimensions"}, {"leader", "leaders"},
};

std::size_t sortOf(Kind kind)
{
    switch (kind) {
    case Kind::circle:
        return 0;
    case Kind::arc:
        return 1;
    case Kind::ellipse:
        return 2;
    case Kind::line:
        return 3;
    case Kind::text:
        return 4;
    case Kind::point:
        return 5;
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        return 6;
    case Kind::leader:
        return 7;
    }
    return std::size(sortNames);
}

bool isNear(float a, float b)
{
    constexpr float little = 0.02F;
    return std::abs(a - b) <= little + 1e-5F * std::abs(a);
}

bool isNear(Point a, Point b)
{
    return isNear(a.x, b.x) && isNear(a.y, b.y);
}

bool isSamePlace(const EntityRecord& a, const EntityRecord& b)
{
    if (a.kind == Kind::circle) return isNear(a.p1, b.p1) && isNear(a.rad, b.rad);
    const bool asItStands = isNear(a.p1, b.p1) && isNear(a.p2, b.p2);
    const bool turnedRound = a.kind == Kind::line && isNear(a.p1, b.p2) && isNear(a.p2, b.p1);
    return asItStands || turnedRound;
}

// Of a text, its words besides; how it is turned and justified is left to the eye.
bool isSamePlaceAndSize(const EntityRecord& a, const EntityRecord& b)
{
    if (a.kind != Kind::text) return isSamePlace(a, b);
    return a.t1 == b.t1 && isNear(a.p1, b.p1) && isNear(a.p2.x, b.p2.x);
}

// What objects have to share, besides their place. The grey that the letter has for white is white.
struct Likeness {
    Kind kind{};
    std::int32_t pen = 0;
    std::int16_t style = 0;

    friend auto operator<=>(const Likeness&, const Likeness&) = default;
};

Likeness kindOf(const EntityRecord& r)
{
    return {r.kind};
}

Likeness lookOf(const EntityRecord& r)
{
    return {r.kind, penOut(r.color).color, hasLineStyle(r.kind) ? r.style : std::int16_t{0}};
}

// Objects of each likeness in an order of their places, so that those at a place are found quickly. The order
// goes askew: by one coordinate all lines that begin at one edge of a sheet would stand in one place.
class Places {
  public:
    Places(std::vector<EntityRecord> records, Likeness (*likenessOf)(const EntityRecord&))
        : records_(std::move(records)), likenessOf_(likenessOf)
    {
        for (std::size_t i = 0; i < records_.size(); ++i)
            places_[likenessOf_(records_[i])].emplace(along(middleOf(records_[i])), i);
    }

    bool hold(const EntityRecord& r) const
    {
        const auto alike = places_.find(likenessOf_(r));
        if (alike == places_.end()) return false;
        const double at = along(middleOf(r));
        const double room = roomOf(r);
        const auto end = alike->second.upper_bound(at + room);
        return std::any_of(alike->second.lower_bound(at - room), end,
                           [&](const auto& place) { return isSamePlaceAndSize(r, records_[place.second]); });
    }

  private:
    struct Place {
        double x, y;
    };

    // That of a line is the same whichever end comes first.
    static Place middleOf(const EntityRecord& r)
    {
        const Point end = r.kind == Kind::line ? r.p2 : r.p1;
        return {(double{r.p1.x} + end.x) / 2, (double{r.p1.y} + end.y) / 2};
    }

    static double along(Place p) { return 0.54 * p.x + 0.84 * p.y; }

    // More than two things that are near each other differ by in that order.
    static double roomOf(const EntityRecord& r)
    {
        const double size = std::max(largestCoordinate(r.p1), largestCoordinate(r.p2));
        return 0.05 + 2e-5 * size;
    }

    std::vector<EntityRecord> records_;
    Likeness (*likenessOf_)(const EntityRecord&);
    std::map<Likeness, std::multimap<double, std::size_t>> places_;
};

std::set<std::string> wordsOf(const std::vector<EntityRecord>& records)
{
    std::set<std::string> words;
    for (const EntityRecord& r : records) {
        if (r.kind == Kind::text) words.insert(r.t1);
    }
    return words;
}

// What the reader by the letter makes of a file's units.
constexpr Placing asByTheLetter;

bool isAsByTheLetter(const Placing& placing)
{
    return placing.worldPerFile == asByTheLetter.worldPerFile && placing.move == asByTheLetter.move;
}

std::vector<EntityRecord> shownIn(const EntityStore& store)
{
    std::vector<EntityRecord> records;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.isShown(i) && isDrawnKind(store.kind[EntityStore::at(i)]))
            records.push_back(store.record(i));
    }
    return records;
}

std::string sentenceOfOthers(std::int64_t count)
{
    return withThousands(count) + (count == 1 ? " object that was read is" : " objects that were read are") +
           " not what this file shows.";
}

} // namespace

bool NotRead::isNothing() const
{
    return others == 0 && std::ranges::all_of(counts, [](std::int64_t count) { return count == 0; });
}

NotRead notRead(const FullReading& reading, const EntityStore& store)
{
    const std::vector<EntityRecord> now = shownIn(store);
    const Places placesNow(now, kindOf);
    const std::set<std::string> wordsNow = wordsOf(now);
    std::vector<EntityRecord> shown;
    NotRead missing;
    for (const Made& one : reading.drawing.objects) {
        const EntityRecord r = recordOf(one, asByTheLetter);
        const bool isThere = r.kind == Kind::text ? wordsNow.contains(r.t1) : placesNow.hold(r);
        if (!isThere) ++missing.counts[sortOf(r.kind)];
        if (!one.look.hidden) shown.push_back(r);
    }
    const Places placesInFull(std::move(shown), lookOf);
    const bool isPlacedElsewhere = !isAsByTheLetter(reading.placing);
    missing.others = std::ranges::count_if(
        now, [&](const EntityRecord& r) { return isPlacedElsewhere || !placesInFull.hold(r); });
    return missing;
}

std::string sentenceOf(const NotRead& missing)
{
    std::string list;
    std::int64_t all = 0;
    for (std::size_t i = 0; i < missing.counts.size(); ++i) {
        const std::int64_t count = missing.counts[i];
        if (count == 0) continue;
        all += count;
        list += (list.empty() ? "" : ", ") + withThousands(count) + " " +
                std::string(count == 1 ? sortNames[i].one : sortNames[i].many);
    }
    if (all == 0) return sentenceOfOthers(missing.others);
    return "This file holds " + list + (all == 1 ? " that was not read." : " that were not read.");
}

} // namespace mirtane
