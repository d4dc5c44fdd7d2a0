// The sample drawings are what their .play files make of the sample libraries.

#include "play_process.h"
#include "tables/functions.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

const std::string data = MIRTANE_SOURCE_DIR "/data/";

class Samples : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::Values("house", "libraries"),
                         [](const auto& sample) { return sample.param; });

TEST_P(Samples, AreMadeByTheirPlays)
{
    const std::string name = GetParam();
    const fake::PlayProcess process;
    const fake::Outcome outcome = process.run(fake::contentOf(data + "samples/" + name + ".play"),
                                              "cp '" + data + "libraries/'*.mt? home");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const std::string made = fake::contentOf(process.home(name + ".mtd"));
    EXPECT_FALSE(made.empty());
    EXPECT_TRUE(made == fake::contentOf(data + "samples/" + name + ".mtd"));
}

// The day in the drawing office says of each function that it has begun.
TEST(House, IsDrawnWithEveryFunction)
{
    const std::string play = fake::contentOf(data + "samples/house.play");
    for (const FunctionRow& row : vocabulary()) {
        const std::string begun = "session.curFunc == \"" + std::string(row.name) + "\"";
        EXPECT_NE(play.find(begun), std::string::npos) << row.name;
    }
}

} // namespace
} // namespace mirtane
