#pragma once

// The one way from a floating-point number to the whole ones that the toolkit counts in, and to 32 bits. A
// number comes here from a drawing that anyone may have made: what is out of reach is brought within it, and
// what is no number is the least that there may be.

#include "geometry/fault.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace mirtane {

// The nearest whole number, halves away from nought.
inline int wholeWithin(double value, int low, int high)
{
    if (!(value > low)) return low;
    return value < high ? static_cast<int>(std::round(value)) : high; // between two of them
}

inline constexpr int largestWholeSide = 1 << 24; // pixels; no image is nearly as wide

inline QSize wholeSize(const QSizeF& size)
{
    return {wholeWithin(size.width(), 0, largestWholeSide), wholeWithin(size.height(), 0, largestWholeSide)};
}

inline QPoint wholePoint(const QPointF& at)
{
    return {wholeWithin(at.x(), -largestWholeSide, largestWholeSide),
            wholeWithin(at.y(), -largestWholeSide, largestWholeSide)};
}

// The smallest rectangle of whole pixels that covers all of it.
inline QRect wholeRectRound(const QRectF& rect)
{
    const QPointF past(std::ceil(rect.right()), std::ceil(rect.bottom()));
    return {wholePoint({std::floor(rect.left()), std::floor(rect.top())}), wholePoint(past) - QPoint(1, 1)};
}

// How many there are of something of which nobody has more than an int counts.
inline int countOf(qsizetype count)
{
    return static_cast<int>(std::min<qsizetype>(count, std::numeric_limits<int>::max()));
}

// In 32 bits; 0 for what they don't hold.
inline float singleOf(double value)
{
    float single = 0;
    keep(single, value);
    return single;
}

} // namespace mirtane
