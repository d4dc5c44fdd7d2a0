// Without arguments of its own this is a test program like the others.

#include "soak.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

using namespace mirtane::soak;

struct Options {
    Plan plan;
    std::uint64_t session = 0; // one session alone, 0 for a run
    bool longRun = false;
};

Options optionsOf(int argc, char* argv[])
{
    Options options;
    for (int i = 1; i + 1 < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--events") options.plan.events = std::atoll(argv[i + 1]);
        if (word == "--seed") options.plan.seed = std::strtoull(argv[i + 1], nullptr, 10);
        if (word == "--session") options.session = std::strtoull(argv[i + 1], nullptr, 10);
        options.longRun |= word == "--events" || word == "--session";
    }
    return options;
}

int longRun(const Options& options)
{
    const auto start = std::chrono::steady_clock::now();
    std::int64_t played = 0;
    const std::string fault = options.session != 0
                                  ? playSession(options.session, options.plan.eventsOfASession, played)
                                  : play(options.plan);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::cout << seconds.count() << " s\n" << (fault.empty() ? "sound" : fault) << std::endl;
    return fault.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const Options options = optionsOf(argc, argv);
    if (options.longRun) return longRun(options);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
