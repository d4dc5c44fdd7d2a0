#pragma once

// What can be seen on a picture of a widget, in numbers.

#include <QColor>
#include <QImage>
#include <QMap>

#include <algorithm>
#include <cmath>

namespace mirtane::fake {

// How much light a colour gives, from 0 to 1.
inline double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double c = part / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// From 1 for one colour to 21 for black and white.
inline double contrast(QRgb a, QRgb b)
{
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

inline QMap<QRgb, int> countsOf(const QImage& picture)
{
    QMap<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    }
    return counts;
}

inline QRgb commonest(const QMap<QRgb, int>& counts)
{
    QRgb found = 0;
    int most = 0;
    for (auto one = counts.begin(); one != counts.end(); ++one) {
        if (one.value() <= most) continue;
        most = one.value();
        found = one.key();
    }
    return found;
}

// The strongest contrast that a pixel has with the colour that most have.
inline double strongestContrast(const QImage& picture)
{
    const QMap<QRgb, int> counts = countsOf(picture);
    const QRgb ground = commonest(counts);
    double strongest = 1;
    for (const QRgb color : counts.keys()) strongest = std::max(strongest, contrast(color, ground));
    return strongest;
}

// How many pixels differ so much that the change is plain.
inline int plainlyDifferent(const QImage& a, const QImage& b)
{
    constexpr double plain = 3;
    int count = 0;
    for (int y = 0; y < std::min(a.height(), b.height()); ++y) {
        for (int x = 0; x < std::min(a.width(), b.width()); ++x)
            count +=
                a.pixel(x, y) != b.pixel(x, y) && contrast(a.pixel(x, y), b.pixel(x, y)) >= plain ? 1 : 0;
    }
    return count;
}

} // namespace mirtane::fake
