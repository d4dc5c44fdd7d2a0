// What of a line cut into pieces is drawn, and how many pieces are looked at for it.

#include "render/chords.h"

#include "geometry/angle.h"
#include "hostile_numbers.h"
#include "ops_text.h"
#include "render/entity_painter.h"
#include "render/painters.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using fake::Ops;

constexpr std::int32_t mostChords = 2147483647;
constexpr std::int64_t mostWalked = 12000; // of one object, whatever its numbers and the view are

struct Pieces : testing::Test {
    void look(const Scale& scale)
    {
        pic1.setScale(scale);
        readViewLimits(view, pic1);
        pic1.takeOps();
    }

    // All pieces tried one by one.
    Ops everyChord(const Chords& c)
    {
        Point previous = c.start;
        for (std::int32_t k = 1; k <= c.count; ++k) {
            const double angle = c.firstAngle + k * (c.sweep / c.count);
            const double along = c.r * std::cos(angle);
            const double across = c.r * std::sin(angle) * c.ratio;
            const Point next{static_cast<float>(c.centre.x + (along * c.ux - across * c.uy)),
                             static_cast<float>(c.centre.y + (-along * c.uy - across * c.ux))};
            if (pieceInView(view, previous, next)) pic1.line(previous.x, previous.y, next.x, next.y);
            previous = next;
        }
        return fake::opsOn(pic1);
    }

    RecordingCanvas pic1{Size{1200, 800}};
    View view;
};

struct FarRow {
    const char* what;
    Scale window;
    Chords chords;
};

TEST_F(Pieces, OfACurveThatIsHugelyFarAwayAreNotWalked)
{
    constexpr Scale plain{0, 0, 1200, 800};
    constexpr Scale slanted{-52000, 417000, 630, 420};
    const FarRow rows[] = {
        {"the corners of the window are one point as seen from there",
         plain,
         {{3e38F, -2e38F}, {}, 3.3e38, 0, 6.2, mostChords}},
        {"beyond the window to the left", slanted, {{-2.9e38F, 1e38F}, {}, 3.1e38, 1.5, 4, mostChords}},
        {"right above", plain, {{600, -3.1e38F}, {}, 3.1e38, 0.1, fullTurn, mostChords - 1}},
        {"somewhat nearer", slanted, {{7e22F, 7e22F}, {}, 9.9e22, 2, 5.5, mostChords}},
        {"a turn of many thousands", plain, {{600, 400}, {}, 900, 0, 4e7, 2000000000}},
        {"an angle that says nothing", plain, {{1e9F, 400}, {}, 1e9, 1e17, 6, 1000000000}},
        {"an angle next to none", slanted, {{3e38F, 417100}, {}, 3e38, 0, 1e-29, mostChords}},
        {"an angle next to none, aslant",
         plain,
         {{-2.1213203e38F, 2.1213203e38F}, {}, 3e38, 0.785398163397448, 1e-29, mostChords}},
        {"flat", plain, {{-8e8F, 400}, {}, 8e8, 0, fullTurn, 32767, 1, 0, 1e-30}},
        {"upright", slanted, {{-52000, 9e9F}, {}, 1e4, 0, fullTurn, 32767, 0.6, 0.8, 1e34}},
        {"a window between two numbers of 32 bits",
         {1.5e9F, -1.5e9F, 0.3F, 0.2F},
         {{1.4e9F, -1.5e9F}, {}, 1e8, 0, fullTurn, mostChords}},
    };
    for (const FarRow& row : rows) {
        look(row.window);
        EXPECT_LE(drawChords(pic1, view, row.chords), 2000) << row.what;
    }
}

// Round curves of any size and place, and windows near and far.
TEST_F(Pieces, AreDrawnAsIfEachHadBeenTried)
{
    fake::HostileNumbers numbers(31);
    int drawn = 0;
    for (int round = 0; round < 700; ++round) {
        const auto size = static_cast<float>(numbers.between(1, 20000));
        const auto x = static_cast<float>(numbers.between(-1e5, 1e5));
        const auto y = static_cast<float>(numbers.between(-1e5, 1e5));
        look({x, y, size * 1.5F, size});
        const double direction = numbers.between(0, fullTurn);
        const double turned = numbers.between(0, fullTurn);
        Chords c{};
        c.r = size * std::exp(numbers.between(-1, 7));
        c.centre = polarPoint({x + size / 2, y + size / 2}, c.r * numbers.between(0.9, 1.1), direction);
        c.firstAngle = numbers.between(0, fullTurn);
        c.sweep = numbers.between(0.1, fullTurn);
        c.count = static_cast<std::int32_t>(numbers.between(3, 3000));
        c.ux = std::cos(turned);
        c.uy = std::sin(turned);
        c.ratio = round % 2 == 0 ? 1 : std::exp(numbers.between(-6, 3));
        c.start = c.centre;
        const Ops expected = everyChord(c);
        drawChords(pic1, view, c);
        const Ops found = fake::opsOn(pic1);
        EXPECT_TRUE(found == expected) << round << ": " << found.size() << " of " << expected.size();
        drawn += static_cast<int>(expected.size());
    }
    EXPECT_GT(drawn, 5000);
}

TEST_F(Pieces, AreFewWhateverTheNumbersAre)
{
    fake::HostileNumbers numbers(7);
    for (int round = 0; round < 20000; ++round) {
        const float side = std::abs(numbers.anyFloat());
        look({numbers.anyFloat(), numbers.anyFloat(), side, side * 0.6F});
        const Point centre{numbers.anyFloat(), numbers.anyFloat()};
        const Point other{numbers.anyFloat(), numbers.anyFloat()};
        const double turned = numbers.between(0, fullTurn);
        const auto count = static_cast<std::int32_t>(numbers.between(1, mostChords));
        Chords c{centre, other, std::abs(numbers.anyFloat()), numbers.anyDouble(), numbers.anyDouble(),
                 count};
        EXPECT_LE(drawChords(pic1, view, c), mostWalked) << round;
        c.ux = std::cos(turned);
        c.uy = std::sin(turned);
        c.ratio = numbers.anyFloat();
        c.count = std::min(c.count, 32767); // an ellipse
        c.sweep = fullTurn;
        EXPECT_LE(drawChords(pic1, view, c), mostWalked) << round;
        pic1.takeOps();
    }
}

// As files hold them, painted by the painters of their kinds.
TEST_F(Pieces, OfAnyRecordAreFewWhateverTheNumbersAre)
{
    fake::HostileNumbers numbers(1234);
    for (int round = 0; round < 20000; ++round) {
        const float side = std::abs(numbers.anyFloat());
        look({numbers.anyFloat(), numbers.anyFloat(), side, side * 0.6F});
        const EntityRecord r = fake::anyRecord(numbers);
        paintEntity(pic1, view, r);
        EXPECT_LE(pic1.takeOps().size(), 12000U) << round;
        paintLineSegment(pic1, view, r.p1, r.p2);
        paintCircleImmediate(pic1, view, r.p1, r.rad);
        paintArcImmediate(pic1, view, r.p1, r.p2, r.rad, r.a1, r.a2);
        EXPECT_LE(pic1.takeOps().size(), 12000U) << round;
    }
}

} // namespace
} // namespace mirtane
