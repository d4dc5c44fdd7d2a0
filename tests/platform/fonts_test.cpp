// What a file may ask of fonts without the machine coming to a stand.

#include "platform/qt/fonts.h"
#include "platform/qt/surface.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(Fonts, OfATextThatNoHandTypedTheFirstLettersAreDrawn)
{
    Surface surface(300, 200, 1);
    surface.setScale({0, 0, 1200, 800});
    surface.setFontSize(48);
    for (const std::string letter : {"x", "\u00e9", "\u6f22"}) {
        std::string longest, longer;
        for (int i = 0; i < 2000; ++i) longest += letter;
        for (int i = 0; i < 32; ++i) longer += longest;
        EXPECT_EQ(surface.textWidth(longer), surface.textWidth(longest)) << letter;
        EXPECT_GT(surface.textWidth(longest), surface.textWidth(longest.substr(0, longest.size() / 2)))
            << letter;
        EXPECT_EQ(drawnText(longer).size(), 2000) << letter;
    }
}

TEST(Fonts, ThatAreNotThereAreLookedForSoOftenAndNoMore)
{
    ASSERT_FALSE(QFontDatabase::families().isEmpty());
    const auto named = [](int number) { return QStringLiteral("no such face %1").arg(number); };
    for (int i = 0; i < 200; ++i) faceOf(named(i));
    EXPECT_EQ(faceOf(named(7)).families(), QStringList{named(7)}) << "one that was looked for";
    EXPECT_NE(faceOf(named(20'000)).families(), QStringList{named(20'000)});
    const QString installed = QFontDatabase::families().constFirst();
    EXPECT_EQ(faceOf(installed.left(31)).families(), QStringList{installed.left(31)});
}

} // namespace
} // namespace mirtane
