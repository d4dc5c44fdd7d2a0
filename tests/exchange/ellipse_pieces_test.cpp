#include "exchange/ellipse_pieces.h"

#include "stroke_checks.h"

namespace mirtane {
namespace {

std::vector<Stroke> strokesOf(const std::vector<Piece>& pieces)
{
    std::vector<Stroke> strokes;
    for (const Piece& piece : pieces) strokes.push_back(bulgeStroke(piece.from, piece.to, piece.bulge));
    return strokes;
}

TEST(EllipsePieces, AreFewTangentArcsNearTheCurve)
{
    constexpr double pi = std::numbers::pi;
    struct Row {
        const char* what;
        EllipseArc e;
    };
    const Row rows[] = {
        {"half", {{0, 0}, {9, 0}, {0, 4}, 0, pi}},
        {"slanted, past the start", {{70, -20}, {5, 5}, {-2, 2}, 5, 8.5}},
        {"mirrored", {{70, -20}, {5, 5}, {2, -2}, 0.1, 6}},
        {"axes at a slant", {{1, 1}, {9, 1}, {7, 6}, -2, 2}},
        {"thin", {{0, 0}, {100, 30}, {0, 1}, 0.3, 6}},
        {"far off", {{6e5, 2e5}, {20, 3}, {-1, 11}, 1, 3}},
        {"whole", {{3, 3}, {20, 3}, {-1, 11}, 0, 2 * pi}},
        {"nearly round", {{3, 3}, {20, 0}, {0, 20.0004}, 0, 2 * pi}},
        {"a little", {{0, 0}, {9, 0}, {0, 4}, 1, 1.01}},
    };
    for (const Row& row : rows) {
        const auto pieces = piecesOf(row.e, 0.01);
        const auto strokes = strokesOf(pieces);
        const Curve curve{[&](double t, Side) {
                              return CurvePoint{row.e.at(t), {}};
                          },
                          {row.e.from, row.e.to}};
        EXPECT_LE(farthest(curve, strokes), 0.0105) << row.what;
        EXPECT_LE(pieces.size(), 40U) << row.what;
        EXPECT_GE(pieces.size(), 1U) << row.what;
        expectToRunOn(strokes, 1e6, row.what);
        EXPECT_LT(length(pieces.front().from - row.e.at(row.e.from)), 1e-9) << row.what;
        EXPECT_LT(length(pieces.back().to - row.e.at(row.e.to)), 1e-9) << row.what;
    }
}

TEST(EllipsePieces, SeenFromItsEdgeItIsLinesToAndFro)
{
    const auto pieces = piecesOf({{1, 1}, {3, 4}, {}, -1, 4}, 0.01);
    const Vec turns[] = {{1 + 3 * std::cos(1), 1 + 4 * std::cos(1)}, {4, 5}, {1, 1}, {-2, -3}};
    ASSERT_EQ(pieces.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_LT(length(pieces[i].from - turns[i]), 1e-9) << i;
        EXPECT_EQ(pieces[i].bulge, 0) << i;
    }
}

TEST(EllipsePieces, WhatIsNoneMakesNone)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(piecesOf({{0, none}, {1, 0}, {0, 1}, 0, 1}, 0.01).empty());
    EXPECT_TRUE(piecesOf({{0, 0}, {1, 0}, {0, 2}, 1, 1}, 0.01).empty());
    EXPECT_TRUE(piecesOf({{0, 0}, {1, 0}, {0, 2}, 0, none}, 0.01).empty());
    EXPECT_TRUE(piecesOf({{0, 0}, {1, 0}, {0, 2}, 0, 1e30}, 0.01).empty());
    EXPECT_TRUE(piecesOf({{0, 0}, {1, 0}, {0, 2}, 3e16, 3e16 + 4}, 0.01).empty());
}

} // namespace
} // namespace mirtane
