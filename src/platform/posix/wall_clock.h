#pragma once

#include "app/ports.h"

#include <ctime>

namespace mirtane {

// By the clock on the wall: "14:32" of today, "2026-11-20 14:32" of another day.
std::string clockAt(std::time_t time);

class WallClock : public Clock {
  public:
    std::string now() override;
};

} // namespace mirtane
