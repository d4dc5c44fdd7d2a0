#include "words.h"

#include <cmath>

namespace mirtane::soak {
namespace {

using PointMaker = Point (*)(const Stage& stage, Random& random);

float within(Random& random, float from, float length)
{
    return from + length * static_cast<float>(random.part()); // a float is as exact as a pointer
}

Point onGrid(const Stage&, Random& random)
{
    constexpr int cells = 12;
    constexpr int cell = 100;
    return {static_cast<float>(random.within(0, cells) * cell), // small whole numbers
            static_cast<float>(random.within(0, cells) * cell)};
}

Point inView(const Stage& stage, Random& random)
{
    const Scale scale = stage.pic1.getScale();
    return {within(random, scale.left, scale.width), within(random, scale.top, scale.height)};
}

Point onObject(const Stage& stage, Random& random)
{
    const EntityStore& store = stage.s.store;
    if (store.end() < 2) return onGrid(stage, random);
    const auto last = static_cast<std::size_t>(store.end() - 1); // above 0
    const EntityRecord r = store.record(static_cast<std::int32_t>(1 + random.below(last)));
    const Point points[] = {r.p1, r.p2, r.p3, r.p4, r.p5};
    const Point p = random.among(points);
    // A damaged file may have brought numbers that no pointer has.
    return std::isfinite(p.x) && std::isfinite(p.y) ? p : onGrid(stage, random);
}

Point besideObject(const Stage& stage, Random& random)
{
    const Point p = onObject(stage, random);
    return {within(random, p.x - 8, 16), within(random, p.y - 8, 16)};
}

Point whereClickedBefore(const Stage& stage, Random& random)
{
    const Session& s = stage.s;
    const Point points[] = {s.pickFirst, s.pickLast, s.mousePos};
    const Point p = random.among(points);
    return std::isfinite(p.x) && std::isfinite(p.y) ? p : onGrid(stage, random);
}

Point farAway(const Stage&, Random& random)
{
    constexpr float far[] = {0, 1e-30F, -1e4F, 1e6F, -1e9F, 1e20F, 3e38F, -3e38F};
    const float x = random.among(far);
    return {x, random.among(far)};
}

struct PointRow {
    std::size_t weight;
    PointMaker make;
};

constexpr PointRow pointRows[] = {
    {40, onGrid}, {20, inView}, {12, onObject}, {20, besideObject}, {4, whereClickedBefore}, {1, farAway},
};

constexpr std::string_view numbers[] = {
    "1",   "2",   "3",         "6",     "12",   "10'",     "3'6",   "2'-4",
    "0.5", "25",  "90",        "45",    "180",  "-1",      "-45.5", "360",
    "0",   "100", "12'-3+1",   "1.5.2", "''",   "+",       "-",     ".",
    "007", "64",  "1,5",       "9999",  "0.01", "1000000", "1e5",   "99999999999999999999",
    "abc", "-0",  "5'-6+1.25",
};

constexpr std::string_view texts[] = {
    "door",     "wall", "a",        "Two words", "é",    "ö ü ß", "名前", "??????", "x.y.z", "../up", "/root",
    "untitled", "1",    "tile.mth", "%d%s",      "name", "m",     "M",    "-",      "'",     "…",     "A-1+2",
};

} // namespace

Point somePoint(const Stage& stage, Random& random)
{
    return random.weighted(pointRows).make(stage, random);
}

std::string someNumber(Random& random)
{
    if (random.oneIn(200)) return std::string(400, '9');
    return std::string(random.among(numbers));
}

std::string someText(Random& random)
{
    if (random.oneIn(100)) return std::string(random.below(300) + 1, 'w');
    if (random.oneIn(20)) return "";
    return std::string(random.among(texts));
}

} // namespace mirtane::soak
