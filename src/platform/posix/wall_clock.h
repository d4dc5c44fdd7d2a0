#pragma once

#include "app/ports.h"

#include <ctime>

namespace mirtane {

// Hours and minutes of the clock on the wall: "14:32".
std::string clockAt(std::time_t time);

class WallClock : public Clock {
  public:
    std::string now() override;
};

} // namespace mirtane
