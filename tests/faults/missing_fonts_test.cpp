// A font that this machine does not have: its texts are there in another face, and keep its name for the
// machine that has it.

#include "platform/qt/settings.h"
#include "play_process.h"
#include "theatre.h"

#include <gtest/gtest.h>

#include <fstream>

namespace mirtane {
namespace {

constexpr const char* asksForWords = "press Command15\nclick 1000 1000\ntype words\nenter\ncancel 0 0\n";

struct MissingFonts : testing::TestWithParam<const char*> {
    std::string font() const { return GetParam(); }
    std::string settings() const { return theatre.home() + "/settings.ini"; }

    // How many pixels are drawn in that part of the picture.
    int pixelsDrawn() const
    {
        const QImage shown = theatre.surface.shown();
        int drawn = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) drawn += shown.pixel(x, y) == shown.pixel(0, 0) ? 0 : 1;
        }
        return drawn;
    }

    fake::Theatre theatre;
};

TEST_P(MissingFonts, InADrawingAreDrawnInAnotherFaceAndKept)
{
    Session& s = *theatre.session;
    s.textFont = font();
    theatre.pic1.setFontName(font());
    ASSERT_EQ(theatre.playAll(asksForWords), "");
    ASSERT_EQ(theatre.playAll("press fil7\nput frmfile.Text1 house\nenter\n"), "");
    const auto saved = theatre.disk.read(theatre.home() + "/house.mtd");
    ASSERT_TRUE(saved.has_value());
    ASSERT_EQ(theatre.playAll("press fil5\n"), "");
    ASSERT_EQ(pixelsDrawn(), 0);

    s.textFont = "Garamond";
    ASSERT_EQ(theatre.playAll("press fil4\nput frmfile.Text1 house\nenter\n"
                              "expect get frmfile.visible == false\n"
                              "expect get session.entCount == 2\npress Command1\n"),
              "");
    EXPECT_EQ(s.textFont, font());
    EXPECT_EQ(s.store.record(1).t2, font());
    EXPECT_EQ(s.store.record(1).t1, "words");
    EXPECT_GT(pixelsDrawn(), 20);
    EXPECT_GT(theatre.surface.textWidth("words"), 0);

    ASSERT_EQ(theatre.playAll("press fil7\nput frmfile.Text1 again\nenter\n"), "");
    EXPECT_EQ(theatre.disk.read(theatre.home() + "/again.mtd"), saved);
}

TEST_P(MissingFonts, InTheSettingsAreKeptThere)
{
    QtSettings(settings()).write({{"tnam", font()}});
    const auto session = std::make_unique<Session>();
    RecordingCanvas pic1(&theatre.surface);
    Shell second(*session, pic1, {theatre.disk, theatre.folders, theatre.settings, theatre.home()});
    second.start();
    EXPECT_EQ(session->textFont, font());
    EXPECT_GT(theatre.surface.textWidth("words"), 0);
    ASSERT_EQ(theatre.playAll("close\n"), "") << "one that started with the default";
    EXPECT_EQ(theatre.settings.read()["tnam"], "Garamond");
    second.closeForm("frmMain"_c);
    EXPECT_EQ(theatre.settings.read()["tnam"], font());
}

INSTANTIATE_TEST_SUITE_P(Named, MissingFonts,
                         testing::Values("No Such Face", "Fa\u00E7ade, \"Bold\"; =[x]",
                                         "A name of a font of more letters than thirty-one", "%s%n", "@Face"),
                         [](const auto& font) { return "number" + std::to_string(font.index); });

TEST(NoFontsAtAll, TheProgramDrawsMeasuresSavesAndPrints)
{
    const fake::PlayProcess process;
    const fake::Outcome ran = process.run(
        std::string("press freecurs\n") + asksForWords +
            "press tk5\nexpect get Label3.caption == \"Select Font\"\nenter\n"
            "press Command17\npress picset\npress frmprintset.Command1\n"
            "press fil7\nput frmfile.Text1 house\nenter\nexpect get frmfile.visible == false\n"
            "expect slot 1 == {\"t1\":\"words\",\"t2\":\"Garamond\",\"stat\":\"on\"}\nclose\nalive\n",
        "true", "true", "timeout 60 env FONTCONFIG_FILE=/nowhere/fonts.conf FONTCONFIG_PATH=/nowhere");
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "false\n");
}

} // namespace
} // namespace mirtane
