// Lines that are set by the distances of the letters side by side in them.

#include "render/pair_spacing.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace mirtane {
namespace {

// Letters are half an em wide. "AV" stands closer, "fi" grows into one letter, "a" changes before "q", a dot
// is put upon "j" by "i", and a space at the end takes no width.
class FakeSetter {
  public:
    SetLine operator()(std::u16string_view text)
    {
        ++asked[std::u16string(text)];
        SetLine line;
        double x = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const std::u16string pair(text.substr(i, 2));
            if (text.substr(0, i).ends_with(u'f') && text[i] == u'i') continue;
            const std::uint32_t letter = pair == u"aq" ? 9000U : text[i];
            const float raised = text.substr(0, i).ends_with(u'j') && text[i] == u'i' ? -0.25F : 0.0F;
            line.letters.push_back({letter, static_cast<float>(x), raised}); // quarters of an em
            x += pair == u"AV" ? 0.25 : 0.5;
            if (i + 1 < text.size() || text[i] != u' ') line.width = x;
        }
        line.outlined = text.find(u'%') == std::u16string_view::npos;
        return line;
    }

    std::map<std::u16string, int>& asked;
};

struct PairSpacingTest : testing::Test {
    std::map<std::u16string, int> asked;
    PairSpacing spacing{FakeSetter{asked}};
};

TEST_F(PairSpacingTest, SetsATextAsTheWholeOfItWouldBe)
{
    for (const std::u16string text :
         {u"A", u"Hall", u"AVAV", u"A V", u"VA AV", u"if", u"qa", u"\u00C9tage 2"}) {
        const auto line = spacing.line(text);
        ASSERT_TRUE(line.has_value()) << text.size();
        const SetLine whole = FakeSetter{asked}(text);
        EXPECT_EQ(line->width, whole.width);
        ASSERT_EQ(line->letters.size(), whole.letters.size());
        for (std::size_t i = 0; i < whole.letters.size(); ++i) {
            EXPECT_EQ(line->letters[i].letter, whole.letters[i].letter) << i;
            EXPECT_EQ(line->letters[i].x, whole.letters[i].x) << i;
            EXPECT_EQ(line->letters[i].y, whole.letters[i].y) << i;
        }
    }
}

TEST_F(PairSpacingTest, LeavesToTheSetterWhatIsMoreThanADistance)
{
    for (const std::u16string text : {u"", u" A", u"A ", u" ", u"first", u"aqua", u"jig", u"50%", u"e\u0301",
                                      u"\u05D0", u"a\tb", u"a\u00ADb", u"\xD83D\xDE00"})
        EXPECT_FALSE(spacing.line(text).has_value()) << std::string(text.begin(), text.end());
}

TEST_F(PairSpacingTest, AsksOnceForEachLetterAndEachPair)
{
    for (int round = 0; round < 3; ++round) {
        spacing.line(u"ABBA");
        spacing.line(u"aqua");
    }
    for (const auto& [text, times] : asked) {
        EXPECT_EQ(times, 1);
        EXPECT_LE(text.size(), 2U);
    }
}

} // namespace
} // namespace mirtane
