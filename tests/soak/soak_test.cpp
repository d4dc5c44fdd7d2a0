// Sessions by chance, each run the same at every time. A longer run is the same program with arguments:
// test_soak --events 1000000 --seed 7.

#include "soak.h"

#include <gtest/gtest.h>

namespace mirtane::soak {
namespace {

class Soak : public testing::TestWithParam<std::uint64_t> {};

TEST_P(Soak, TheProgramIsSoundAfterWhateverIsDone)
{
    EXPECT_EQ(play({.seed = GetParam(), .events = 25'000}), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, Soak, testing::Values(1, 2, 3, 4));

} // namespace
} // namespace mirtane::soak
