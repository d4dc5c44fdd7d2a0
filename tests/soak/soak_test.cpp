// Sessions by chance, each run the same at every time; five times as long where MIRTANE_LONG is set. A longer
// run is the same program with arguments: test_soak --events 1000000 --seed 7.

#include "soak.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mirtane::soak {
namespace {

std::int64_t events()
{
    return std::getenv("MIRTANE_LONG") != nullptr ? 25'000 : 5'000;
}

class Soak : public testing::TestWithParam<std::uint64_t> {};

TEST_P(Soak, TheProgramIsSoundAfterWhateverIsDone)
{
    EXPECT_EQ(play({.seed = GetParam(), .events = events()}), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, Soak, testing::Values(1, 2, 3, 4));

} // namespace
} // namespace mirtane::soak
