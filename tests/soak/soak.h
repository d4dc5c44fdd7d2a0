#pragma once

#include <cstdint>
#include <string>

namespace mirtane::soak {

struct Plan {
    std::uint64_t seed = 1;
    std::int64_t events = 10'000;
    int eventsOfASession = 1500; // then the program starts anew
};

// Plays sessions by chance until there have been that many events. "" when the program was sound after each
// hundred of them; else what was wrong, the seed, and where the script and the files of the session were
// left. A sanitizer, a signal and an event that takes minutes end the process with the same words.
std::string play(const Plan& plan);

// One session of a run. Adds its events to played.
std::string playSession(std::uint64_t seed, int events, std::int64_t& played);

} // namespace mirtane::soak
