// Letters that are kept and laid down, beside the same text as the toolkit writes it from one end to the
// other.

#include "platform/qt/fonts.h"
#include "platform/qt/surface.h"

#include "hostile_numbers.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace mirtane {
namespace {

constexpr int wide = 420;
constexpr int high = 380;

struct TextRow {
    const char* words;
    int points; // pixels times 3/4
    int degrees;
    QPoint at;
    const char* face = "Garamond";
    bool underlined = false;
};

std::vector<int> levelsOf(const QImage& image)
{
    std::vector<int> levels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) levels.push_back(qGreen(image.pixel(x, y)));
    }
    return levels;
}

Surface written(const TextRow& row)
{
    Surface surface(wide, high);
    surface.setScale({-7000, 250000, wide, high}); // a unit to the pixel, far from the origin
    surface.setColor(0xFFFFFF);
    surface.setFontName(row.face);
    surface.setFontSize(static_cast<float>(row.points)); // small numbers
    surface.setUnderline(row.underlined);
    const Point at = surface.worldAt(row.at.x(), row.at.y());
    surface.text(at.x, at.y, row.degrees, row.words);
    return surface;
}

QImage writtenByTheToolkit(const TextRow& row)
{
    QFont font = faceOf(QString::fromUtf8(row.face));
    font.setPixelSize(256);
    const QFontMetricsF sample(font);
    const int height = row.points * 96 / 72;
    font.setPixelSize(qRound(height * 256 / (sample.ascent() + sample.descent())));
    font.setUnderline(row.underlined);
    QTextLayout layout(QString::fromUtf8(row.words), font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QImage image(wide, high, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    painter.translate(row.at);
    painter.rotate(-row.degrees);
    painter.setPen(Qt::white);
    layout.draw(&painter, QPointF(0, QFontMetricsF(font).ascent() - line.ascent()));
    return image;
}

// What of the ink of either is elsewhere in the other, as a part of it.
double differenceOf(const std::vector<int>& a, const std::vector<int>& b)
{
    double ink = 0, apart = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        ink += a[i] + b[i];
        apart += std::abs(a[i] - b[i]);
    }
    return ink > 0 ? apart / ink : 1;
}

double inkOf(const std::vector<int>& levels)
{
    double ink = 0;
    for (const int level : levels) ink += level;
    return ink;
}

constexpr TextRow rows[] = {
    {"Hallway, oak floor", 9, 0, {20, 30}},
    {"Hallway, oak floor", 12, 90, {30, 300}},
    {"fillet radius 12'-6\"", 12, 180, {300, 200}},
    {"fjord quay AVATAR", 10, 270, {200, 40}},
    {"fjord quay AVATAR", 12, 4, {40, 200}},
    {"BEDROOM 2", 14, 37, {60, 300}},
    {"BEDROOM 2", 8, -143, {300, 200}},
    {"Section B-B", 30, 301, {60, 40}},
    {"Section B-B", 60, 0, {-30, 250}},
    {"\u00D8 3/4\" caf\u00E9 \u03A9", 12, 22, {50, 200}},
    {"north elevation", 11, 0, {-40, 370}},
    {"north elevation", 11, 66, {-10, 180}},
    {"see detail 7-A", 12, 0, {30, 90}, "DejaVu Sans"},
    {"see detail 7-A", 12, 51, {30, 290}, "DejaVu Sans"},
    {"Hallway, oak floor", 3, 0, {20, 30}},
    {"a face that is not there", 13, 159, {390, 300}, "No Such Face"},
};

TEST(Lettering, LooksAsTheToolkitWritesIt)
{
    for (const TextRow& row : rows) {
        const auto ours = levelsOf(written(row).shown());
        const auto theirs = levelsOf(writtenByTheToolkit(row));
        EXPECT_LT(differenceOf(ours, theirs), 0.15) << row.words << " at " << row.degrees;
        EXPECT_NEAR(inkOf(ours) / inkOf(theirs), 1, 0.05) << row.words << " at " << row.degrees;
    }
}

TEST(Lettering, IsTheSameTheSecondTime)
{
    for (const TextRow& row : rows) {
        Surface surface = written(row);
        const auto first = levelsOf(surface.shown());
        surface.clear();
        const Point at = surface.worldAt(row.at.x(), row.at.y());
        surface.text(at.x, at.y, row.degrees, row.words);
        EXPECT_EQ(levelsOf(surface.shown()), first) << row.words;
        EXPECT_EQ(levelsOf(written(row).shown()), first) << row.words;
    }
}

// Letters that grow into one another in many faces, marks, and what stands on drawings.
constexpr const char* pieces[] = {"fi", "ffl", "ff",     "Th",     "Qu",     "ct",      "st",      "tt",
                                  "AV", "To",  "W.",     "12'",    "-6",     "\"",      "1/2",     "(7)",
                                  " ",  " x ", "\u00E9", "\u00D8", "\u00BD", "\u00B0",  "...",     "--",
                                  "->", "gj",  "Bed",    "room ",  "Ij",     "\u0141",  "f\u00EF", "fj",
                                  "l'", "=",   "<=",     "1:50",   "No.",    "e\u0301", "\u03A9",  "\u00AD"};

// A text of pieces that follow one another by chance.
std::string piecedText(fake::HostileNumbers& numbers)
{
    std::string text;
    for (std::uint32_t left = 1 + numbers.below(7); left > 0; --left)
        text += pieces[numbers.below(static_cast<std::uint32_t>(std::size(pieces)))]; // some dozens
    return text;
}

void writeOne(Surface& surface, const char* face, const std::string& words, int degrees)
{
    surface.setScale({0, 0, wide, high});
    surface.setColor(0xFFFFFF);
    surface.setFontName(face);
    surface.setFontSize(15);
    surface.clear();
    surface.text(wide / 2.0F, high / 2.0F, degrees, words);
}

TEST(Lettering, IsTheSameAfterManyTextsOfAFaceAsInTheFirst)
{
    fake::HostileNumbers numbers(77);
    for (const char* const face : {"Garamond", "DejaVu Sans", "DejaVu Serif", "No Such Face"}) {
        Surface used(wide, high);
        for (int i = 0; i < 60; ++i) writeOne(used, face, "Hall " + std::to_string(i), 0);
        for (int round = 0; round < 250; ++round) {
            const std::string words = piecedText(numbers);
            Surface fresh(wide, high);
            writeOne(fresh, face, words, 17);
            writeOne(used, face, words, 17);
            ASSERT_TRUE(std::ranges::equal(used.picture().pixels(), fresh.picture().pixels()))
                << face << ": " << words;
        }
    }
}

TEST(Lettering, UnderlinedLooksAsTheToolkitWritesIt)
{
    for (const int degrees : {0, 90, 180, 270, 17, 45, 213}) {
        for (const int points : {9, 12, 24, 48}) {
            const TextRow row{"Hall 12", points, degrees, {200, 180}, "Garamond", true};
            TextRow bare = row;
            bare.underlined = false;
            const auto ours = levelsOf(written(row).shown());
            const auto theirs = levelsOf(writtenByTheToolkit(row));
            EXPECT_LT(differenceOf(ours, theirs), 0.3) << degrees << " " << points;
            EXPECT_NEAR(inkOf(ours) / inkOf(theirs), 1, 0.2) << degrees << " " << points;
            EXPECT_GT(inkOf(ours), inkOf(levelsOf(written(bare).shown()))) << degrees << " " << points;
        }
    }
}

// Of twenty letters about half as wide as they are high.
TEST(Lettering, UnderAPixelHighIsAStrokeOfItsLength)
{
    for (const float size : {45.0F, 20.0F, 7.0F}) {
        for (const int degrees : {0, 90, 180, 270, 33, 200}) {
            Surface surface(wide, high);
            surface.setScale({-7000, 250000, wide * 100, high * 100});
            surface.setColor(0x00FF00);
            surface.setFontSize(size);
            const std::string words = "twenty letters or so";
            const double length = surface.textWidth(words) / 100;
            const Point at = surface.worldAt(200, 180);
            surface.text(at.x, at.y, degrees, words);
            const double angle = degrees * M_PI / 180;
            const QImage image = surface.shown();
            int inked = 0;
            for (int y = 0; y < high; ++y) {
                for (int x = 0; x < wide; ++x) {
                    if (qGreen(image.pixel(x, y)) == 0) continue;
                    ++inked;
                    EXPECT_EQ(image.pixel(x, y), 0xFF00FF00);
                    const double along = (x - 200) * std::cos(angle) - (y - 180) * std::sin(angle);
                    const double aside = (x - 200) * std::sin(angle) + (y - 180) * std::cos(angle);
                    EXPECT_NEAR(aside, 0, 1.2) << size << " at " << degrees;
                    EXPECT_GE(along, -1) << size << " at " << degrees;
                    EXPECT_LE(along, length + 1) << size << " at " << degrees;
                }
            }
            const double steps = length * std::max(std::abs(std::cos(angle)), std::abs(std::sin(angle)));
            EXPECT_NEAR(inked, steps + 1, 1.5) << size << " at " << degrees;
        }
    }
}

} // namespace
} // namespace mirtane
