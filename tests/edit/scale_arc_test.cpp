// Arcs as splines are made of: flat, short, far from their centres and from the origin.

#include "edit/scale.h"

#include "cut_desk.h"
#include "geometry/rounding.h"
#include "slanted.h"

#include <array>

namespace mirtane {
namespace {

using fake::arcOf;
using fake::EditDesk;
using fake::Slanted;

struct Factors {
    Point base;
    float x, y;

    std::array<double, 2> of(double px, double py) const
    {
        return {base.x + (px - base.x) * x, base.y + (py - base.y) * y};
    }
    double largest() const { return std::max(std::abs(x), std::abs(y)); }
};

EntityRecord scaled(EditDesk& desk, const EntityRecord& r, const Factors& f)
{
    fake::emptyDrawing(desk);
    desk.add(r);
    desk.begin("Scale");
    desk.click(f.base);
    desk.s.editDX = f.x;
    desk.s.editDY = f.y;
    desk.run(3);
    EXPECT_EQ(desk.stat(1), Stat::out);
    return desk.slot(2);
}

// Of the circle at an angle, not rounded.
std::array<double, 2> onCircle(const EntityRecord& arc, double radians)
{
    return {arc.p1.x + double{arc.rad} * std::cos(radians), arc.p1.y - double{arc.rad} * std::sin(radians)};
}

double apart(std::array<double, 2> a, std::array<double, 2> b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1]);
}

std::array<double, 2> placeOf(Point p)
{
    return {p.x, p.y};
}

// How much of it is lost by rounding, of its centre or of its points.
double roomOf(const EntityRecord& arc)
{
    return 4 * halfStepOf(largestCoordinate(arc.p1) + std::abs(arc.rad));
}

struct FlatArc {
    explicit FlatArc(Slanted& dice)
    {
        const double place = dice.anySize(100, 2000000);
        const double radius = dice.anySize(5, 40000);
        const double sweep = dice.anySize(0.0005, 6);
        const double a1 = dice.between(0, 6.28);
        const Point centre = dice.pointWithin({0, 0}, place);
        arc = arcOf(centre, static_cast<float>(radius), a1, std::fmod(a1 + sweep, 6.2831853)); // as stored
    }
    EntityRecord arc;
};

TEST(ScaleArc, WithFactorsOfOneSizeItStaysTheSamePartOfItsCircle)
{
    constexpr float sizes[] = {1, 0.5F, 1.7F, 25.4F, 0.03937F};
    Slanted dice(91);
    EditDesk desk;
    for (int i = 0; i < 4000; ++i) {
        const EntityRecord old = FlatArc(dice).arc;
        const float size = sizes[i % std::size(sizes)];
        const Factors f{dice.pointWithin({0, 0}, 1000), dice.chance() ? size : -size,
                        dice.chance() ? size : -size};
        const EntityRecord made = scaled(desk, old, f);
        const bool mirrors = f.x * f.y < 0;
        const double room = roomOf(made) + roomOf(old) * f.largest();
        ASSERT_EQ(made.kind, Kind::arc) << i;
        ASSERT_NEAR(made.rad, old.rad * size, 2 * halfStepOf(made.rad)) << i;
        ASSERT_LT(apart(placeOf(made.p1), f.of(old.p1.x, old.p1.y)), room) << i;
        ASSERT_LT(apart(placeOf(made.p2), f.of((mirrors ? old.p3 : old.p2).x, (mirrors ? old.p3 : old.p2).y)),
                  room);
        ASSERT_LT(apart(placeOf(made.p3), f.of((mirrors ? old.p2 : old.p3).x, (mirrors ? old.p2 : old.p3).y)),
                  room);
        ASSERT_LT(apart(placeOf(made.p4), f.of(old.p4.x, old.p4.y)), room) << i;
        ASSERT_NEAR(sweep(made.a1, made.a2), sweep(old.a1, old.a2), 1e-9) << i;
        const auto start = onCircle(old, mirrors ? old.a2 : old.a1);
        ASSERT_LT(apart(onCircle(made, made.a1), f.of(start[0], start[1])), room + 1e-7 * made.rad) << i;
    }
}

TEST(ScaleArc, WithFactorsOfOneSizeTheAxesStayExact)
{
    EditDesk desk;
    const double turns[] = {0, quarterTurn, halfTurn, threeQuartersTurn};
    for (int from = 0; from < 4; ++from) {
        const EntityRecord old = arcOf({30, 40}, 20, turns[from], turns[(from + 1) % 4]);
        const EntityRecord aside = scaled(desk, old, {{0, 0}, -2, 2});
        EXPECT_EQ(aside.a1, turns[(2 - from - 1 + 8) % 4]);
        EXPECT_EQ(aside.a2, turns[(2 - from + 8) % 4]);
        const EntityRecord down = scaled(desk, old, {{0, 0}, 2, -2});
        EXPECT_EQ(down.a1, turns[(8 - from - 1) % 4]);
        EXPECT_EQ(down.a2, turns[(8 - from) % 4]);
        const EntityRecord round = scaled(desk, old, {{0, 0}, -2, -2});
        EXPECT_EQ(round.a1, turns[(from + 2) % 4]);
        EXPECT_EQ(round.a2, turns[(from + 3) % 4]);
    }
    const EntityRecord inward = scaled(desk, arcOf({30, 40}, -20, 1, 2), {{0, 0}, 3, 3});
    EXPECT_EQ(inward.rad, -60) << "on the other side of its centre";
}

// The ends where their images are, and the image of the middle on the circle.
TEST(ScaleArc, WithOtherFactorsItGoesThroughTheImagesHoweverFlatItIs)
{
    constexpr float pairs[][2] = {{1, 1.1F}, {2, 1}, {-1.5F, 1}, {0.9F, -1.2F}, {-25.4F, -20}};
    Slanted dice(92);
    EditDesk desk;
    int bent = 0;
    for (int i = 0; i < 4000; ++i) {
        const EntityRecord old = FlatArc(dice).arc;
        const auto& pair = pairs[i % std::size(pairs)];
        const Factors f{dice.pointWithin({0, 0}, 1000), pair[0], pair[1]};
        const EntityRecord made = scaled(desk, old, f);
        const bool mirrors = f.x * f.y < 0;
        const auto middle = onCircle(old, old.a1 + sweep(old.a1, old.a2) / 2);
        const auto start = f.of(old.p2.x, old.p2.y);
        const auto end = f.of(old.p3.x, old.p3.y);
        const double room = roomOf(made) + roomOf(old) * f.largest();
        if (made.kind == Kind::line) { // as good an arc as its centre can be stored
            ASSERT_LT(apart(placeOf(made.p1), start), room) << i;
            ASSERT_LT(apart(placeOf(made.p2), end), room) << i;
            if (made.p1 == made.p2) continue; // of no length, as rounded
            ASSERT_LT(fake::offFigure(made, {static_cast<float>(f.of(middle[0], middle[1])[0]),
                                             static_cast<float>(f.of(middle[0], middle[1])[1])}),
                      8 * room + halfStepOf(old.rad * 200))
                << i;
            continue;
        }
        ++bent;
        const auto image = f.of(middle[0], middle[1]);
        const bool obtuse =
            (image[0] - start[0]) * (end[0] - start[0]) + (image[1] - start[1]) * (end[1] - start[1]) < 0;
        if (obtuse) continue; // the end is missed
        ASSERT_LT(apart(placeOf(mirrors ? made.p3 : made.p2), start), room) << i;
        ASSERT_LT(apart(placeOf(mirrors ? made.p2 : made.p3), end), room) << i;
        ASSERT_LT(apart(onCircle(made, mirrors ? made.a2 : made.a1), start), 2 * room) << i;
        ASSERT_LT(apart(onCircle(made, mirrors ? made.a1 : made.a2), end), 2 * room) << i;
        ASSERT_NEAR(apart(placeOf(made.p1), image), made.rad, 2 * room) << i;
        const double towards = std::atan2(made.p1.y - image[1], image[0] - made.p1.x);
        const double ahead = std::remainder(towards - made.a1 - sweep(made.a1, made.a2) / 2, fullTurn);
        ASSERT_LT(std::abs(ahead), sweep(made.a1, made.a2) / 2 + 1e-6)
            << i << ": counter-clockwise through it";
    }
    EXPECT_GT(bent, 3000);
}

TEST(ScaleArc, FlattenedButForRoundingItIsALine)
{
    struct Row {
        const char* what;
        double a1, a2; // degrees
        Factors factors;
        Point from, to;
    };
    constexpr float flat = 1e-12F; // by 0 itself it stays as it is
    const Row rows[] = {
        {"its upper half", 0, 180, {{0, 0}, 2, flat}, {300, 0}, {100, 0}},
        {"to the base's height", 0, 180, {{0, 70}, 1, flat}, {150, 70}, {50, 70}},
        {"to the side", 90, 270, {{10, 0}, flat, 1}, {10, 30}, {10, 130}},
        {"mirrored too", 0, 180, {{0, 0}, -1, flat}, {-150, 0}, {-50, 0}},
    };
    EditDesk desk;
    for (const Row& row : rows) {
        const EntityRecord old = arcOf({100, 80}, 50, row.a1 * fake::degree, row.a2 * fake::degree);
        const EntityRecord made = scaled(desk, old, row.factors);
        fake::expectLine(made, row.from, row.to, row.what);
        fake::expectLooks(made, row.what);
        undo(desk.s.store, desk.s.log);
        EXPECT_EQ(desk.stat(1), Stat::on) << row.what;
        EXPECT_EQ(desk.stat(2), Stat::out) << row.what;
    }
}

} // namespace
} // namespace mirtane
