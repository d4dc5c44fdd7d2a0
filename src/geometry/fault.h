#pragma once

// Arithmetic in this program never stops: a statement whose value can't be had (0/0, an overflow, the root of
// a negative number) is passed over and its target keeps what it held. A formula carries the fault as NaN or
// infinity to the one assignment, keep(), that drops it.

#include <cmath>
#include <cstdint>
#include <limits>

namespace mirtane {

// a / b, or NaN when it can't be had: b is 0, the result overflows, or one of the two is a fault already.
// Infinity would not do: atan and min turn it finite again, and so does a division by it.
inline double quotient(double a, double b)
{
    if (b == 0 || !std::isfinite(b)) return std::numeric_limits<double>::quiet_NaN();
    const double q = a / b;
    return std::isfinite(q) ? q : std::numeric_limits<double>::quiet_NaN();
}

// The quotient of two differences as 32-bit floats divide them.
inline float quotientSingle(float a, float b)
{
    if (b == 0 || !std::isfinite(b)) return std::numeric_limits<float>::quiet_NaN();
    const float q = a / b;
    return std::isfinite(q) ? q : std::numeric_limits<float>::quiet_NaN();
}

// Each keep() stores value if it is finite and fits the target, and says whether it did.
inline bool keep(double& target, double value)
{
    if (!std::isfinite(value)) return false;
    target = value;
    return true;
}

inline bool keep(float& target, double value)
{
    if (!std::isfinite(value)) return false;
    const auto narrowed = static_cast<float>(value); // the narrowing that this door is for
    if (!std::isfinite(narrowed)) return false;
    target = narrowed;
    return true;
}

// Conversion to a whole number is to the nearest, ties to even.
template <class Whole> bool keepRounded(Whole& target, double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max()))
        return false;
    target = static_cast<Whole>(whole); // within the limits of Whole, tested above
    return true;
}

inline bool keep(std::int16_t& target, double value)
{
    return keepRounded(target, value);
}

inline bool keep(std::int32_t& target, double value)
{
    return keepRounded(target, value);
}

} // namespace mirtane
