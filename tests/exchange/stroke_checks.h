#pragma once

#include "exchange/tangent_arcs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace mirtane {

// A point of a figure that is turned and then moved.
inline Vec placed(Vec p, double angle, Vec at)
{
    return at + p.x * wayAt(angle) + p.y * turnedLeft(wayAt(angle));
}

inline double distanceToAny(const std::vector<Stroke>& strokes, Vec p)
{
    double least = std::numeric_limits<double>::infinity();
    for (const Stroke& stroke : strokes) least = std::min(least, distanceTo(stroke, p));
    return least;
}

// How far the curve, looked at closely, is from the strokes at most.
inline double farthest(const Curve& curve, const std::vector<Stroke>& strokes, int looks = 2000)
{
    double most = 0;
    const double from = curve.breaks.front();
    const double to = curve.breaks.back();
    for (int i = 0; i <= looks; ++i)
        most =
            std::max(most, distanceToAny(strokes, curve.at(from + (to - from) * i / looks, Side::after).at));
    return most;
}

inline Vec wayAlong(const Stroke& stroke, double part)
{
    if (!stroke.isArc()) return 1 / length(stroke.to - stroke.from) * (stroke.to - stroke.from);
    const Vec out = pointOn(stroke, part) - stroke.centre;
    return (stroke.sweep < 0 ? -1 : 1) / stroke.radius * turnedLeft(out);
}

// Each begins where the last one ended, and in its direction.
inline void expectToRunOn(const std::vector<Stroke>& strokes, double size, const char* what)
{
    for (std::size_t i = 1; i < strokes.size(); ++i) {
        EXPECT_LT(length(strokes[i].from - strokes[i - 1].to), 1e-9 * size) << what << ' ' << i;
        EXPECT_LT(length(wayAlong(strokes[i], 0) - wayAlong(strokes[i - 1], 1)), 1e-3) << what << ' ' << i;
    }
}

} // namespace mirtane
