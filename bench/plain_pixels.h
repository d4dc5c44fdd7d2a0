#pragma once

#include <cstdint>

namespace mirtane::bench {

inline std::uint32_t argb(std::int32_t color)
{
    const auto bgr = static_cast<std::uint32_t>(color); // bits, not a number
    return 0xFF000000U | (bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF);
}

} // namespace mirtane::bench
