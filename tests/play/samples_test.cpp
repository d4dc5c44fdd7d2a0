// The sample drawings are what their .play files make of the sample libraries.

#include "files/drawing_file.h"
#include "files/library_files.h"
#include "play_process.h"
#include "tables/functions.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

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

// What ends where it should is never taken for cut off, and what lacks its last byte always.
TEST(SampleFiles, AndLibrariesAreWhole)
{
    const auto isCut = [](const std::filesystem::path& path, const Bytes& file) {
        const auto s = std::make_unique<Session>();
        const std::string extension = path.extension();
        if (extension == ".mtd") return replaceDrawing(*s, file).isCut || mergeLayer(*s, file, 3).isCut;
        if (extension == ".mta") return addAssociate(*s, file, "name").isCut;
        if (extension == ".mth") return addHatch(s->hatchLibrary, file).isCut;
        return addMultipleLines(s->multipleLinesLibrary, file).isCut;
    };
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(data)) {
        if (!entry.path().extension().string().starts_with(".mt")) continue;
        ++files;
        const std::string content = fake::contentOf(entry.path());
        Bytes bytes(content.begin(), content.end());
        EXPECT_FALSE(isCut(entry.path(), bytes)) << entry.path();
        bytes.pop_back();
        EXPECT_TRUE(isCut(entry.path(), bytes)) << entry.path();
    }
    EXPECT_GT(files, 20);
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
