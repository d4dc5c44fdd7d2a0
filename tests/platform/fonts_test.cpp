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

std::vector<std::uint32_t> painted(float x, float y, int degrees, float size, bool underlined,
                                   const std::string& text)
{
    Surface surface(320, 240, 1);
    surface.setScale({-37, 4011, 1280, 960});
    surface.clear();
    surface.setColor(0xFFFFFF);
    surface.setFontSize(size);
    surface.setUnderline(underlined);
    surface.text(x, y, degrees, text);
    const auto pixels = surface.picture().pixels();
    return {pixels.begin(), pixels.end()};
}

// A longer one is painted by the letters in view: a blank behind the longest that hands type makes one.
TEST(Fonts, OfALongTextTheLettersInViewArePaintedAsThoseOfAShortOne)
{
    struct Row {
        float x, y;
        int degrees;
        float size;
    };
    const Row rows[] = {
        {0, 4100, 0, 48},       {-2000, 4400, 0, 48},  {700, 4900, 37, 90},   {1200, 4020, -143, 60},
        {-9000, 4300, 0, 300},  {500, 30000, 90, 700}, {-300, 3900, -41, 12}, {-40000, 4200, 0, 1100},
        {-1500, 5600, 45, 150}, {600, 4500, 180, 80},
    };
    std::string shorter;
    for (int i = 0; i < 20; ++i) shorter += "Wa\u00e7fi";
    ASSERT_EQ(drawnText(shorter).size(), 100);
    for (const Row& row : rows) {
        const auto expected = painted(row.x, row.y, row.degrees, row.size, false, shorter);
        EXPECT_EQ(painted(row.x, row.y, row.degrees, row.size, false, shorter + " "), expected)
            << row.x << " " << row.degrees;
    }
    const auto bare = painted(0, 4100, 0, 90, false, shorter + " ");
    EXPECT_NE(painted(0, 4100, 0, 90, true, shorter + " "), bare) << "a line is drawn under it";
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

TEST(Fonts, OfAFaceThatIsNotThereItsTwinIsAskedForUnderEitherName)
{
    const QStringList withTwin{QStringLiteral("Garamond"), QStringLiteral("Junicode Two Beta"),
                               QStringLiteral("Junicode")};
    struct Row {
        const char* name;
        QSet<QString> installed;
        QStringList asked;
    };
    const Row rows[] = {
        {"Garamond", {}, withTwin},
        {"Garamond", {QStringLiteral("DejaVu Sans"), QStringLiteral("Junicode")}, withTwin},
        {"Garamond", {QStringLiteral("EB Garamond"), QStringLiteral("Junicode Two Beta")}, withTwin},
        {"Garamond", {QStringLiteral("Garamond"), QStringLiteral("Junicode")}, {QStringLiteral("Garamond")}},
        {"Times", {QStringLiteral("Junicode")}, {QStringLiteral("Times")}},
        {"Junicode", {}, {QStringLiteral("Junicode")}},
        {"", {}, {QString()}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(familiesFor(QLatin1String(row.name), row.installed), row.asked) << row.name;
}

TEST(Fonts, OfThisMachineDecideWhatGaramondLooksLike)
{
    const QStringList families = QFontDatabase::families();
    const QString garamond = QStringLiteral("Garamond");
    const QFont face = faceOf(garamond);
    EXPECT_EQ(face.families(), familiesFor(garamond, {families.begin(), families.end()}));
    EXPECT_EQ(face.weight(), families.contains(garamond) ? QFont::Normal : QFont::Medium);
    EXPECT_EQ(faceOf(QStringLiteral("Junicode")).weight(), QFont::Normal);
}

} // namespace
} // namespace mirtane
