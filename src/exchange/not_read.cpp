#include "exchange/not_read.h"

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

// Objects in the order of their leftmost coordinate, so that those at a place are found quickly.
class Places {
  public:
    explicit Places(std::vector<EntityRecord> records) : records_(std::move(records))
    {
        for (std::size_t i = 0; i < records_.size(); ++i) {
            const EntityRecord& r = records_[i];
            if (r.kind == Kind::text)
                words_.insert(r.t1);
            else
                places_.emplace(leftOf(r), i);
        }
    }

    bool holds(const EntityRecord& r) const
    {
        if (r.kind == Kind::text) return words_.contains(r.t1);
        const float left = leftOf(r);
        const float room = 0.05F + 2e-5F * std::abs(left);
        const auto end = places_.upper_bound(left + room);
        return std::any_of(places_.lower_bound(left - room), end, [&](const auto& place) {
            const EntityRecord& other = records_[place.second];
            return other.kind == r.kind && isSamePlace(r, other);
        });
    }

  private:
    static float leftOf(const EntityRecord& r)
    {
        return r.kind == Kind::line ? std::min(r.p1.x, r.p2.x) : r.p1.x;
    }

    std::vector<EntityRecord> records_;
    std::multimap<float, std::size_t> places_;
    std::set<std::string> words_;
};

// What the reader by the letter makes of a file's units.
constexpr Placing asByTheLetter;

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
    std::vector<EntityRecord> full;
    for (const Made& one : reading.drawing.objects) full.push_back(recordOf(one, asByTheLetter));
    const Places placesNow(now);
    NotRead missing;
    for (const EntityRecord& one : full) {
        if (!placesNow.holds(one)) ++missing.counts[sortOf(one.kind)];
    }
    const Places placesInFull(std::move(full));
    missing.others =
        std::ranges::count_if(now, [&](const EntityRecord& r) { return !placesInFull.holds(r); });
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
