#pragma once

// The drawing that is measured, and the ground it is drawn on.

#include "model/session.h"

#include <random>

namespace mirtane::bench {

inline constexpr int width = 1600;
inline constexpr int height = 1000;
inline constexpr std::int32_t lineCount = 60000;

// Even between two bounds. The distributions of the library differ from one library to the next.
class Dice {
  public:
    double between(double low, double high)
    {
        const auto thrown = static_cast<double>(engine_()); // of 32 bits: exact
        return low + (high - low) * thrown / 4294967296.0;
    }
    std::size_t below(std::size_t count) { return engine_() % count; }

  private:
    std::mt19937 engine_{1993};
};

// 60,000 lines, the same at each run, one world unit to the pixel: each begins within 1600 by 1000 units and
// goes off in any direction; of five, four are 5 to 75 units long and one 200 to 1,500. The colours change
// from line to line.
void fillWithLines(Session& s);

} // namespace mirtane::bench
