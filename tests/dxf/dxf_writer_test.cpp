// Whole files, put together by hand from the lines that each record has.

#include "dxf_samples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using namespace samples;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

EntityRecord roundObject(Kind kind, float x, float y, float radius)
{
    EntityRecord r = object(kind);
    r.p1 = world(x, y);
    r.rad = radius * 12;
    return r;
}

EntityRecord textObject(Point at, float size, double degrees)
{
    EntityRecord r = object(Kind::text);
    r.p1 = at;
    r.p2.x = size;
    r.a1 = degrees;
    r.t1 = "Wall";
    return r;
}

TEST(DxfWriter, NothingSelectedGivesTheFrameAlone)
{
    Drawing drawing;
    drawing.add(lineObject(0, 0, 1, 1), Stat::on);
    drawing.add(lineObject(0, 0, 1, 1), Stat::off);
    drawing.add(lineObject(0, 0, 1, 1), Stat::out);
    EXPECT_EQ(drawing.file(), head() + tail());
    EXPECT_TRUE(drawing.whole);
}

TEST(DxfWriter, LineWithItsWholeFile)
{
    Drawing drawing{lineObject(1, 2, -3.5F, -4.25F)};
    EXPECT_EQ(drawing.file(), head() + line("1", "2", "-3.5", "-4.25") + tail());
}

TEST(DxfWriter, CircleEndsWithATwoCharacterLine)
{
    Drawing drawing{roundObject(Kind::circle, 1, 2, 3), lineObject(0, 0, 1, 0)};
    EXPECT_EQ(drawing.file(), head() + circle("1", "2", "3") + line("0", "0", "1", "0") + tail());
}

TEST(DxfWriter, ArcHasItsAnglesInDegrees)
{
    EntityRecord r = roundObject(Kind::arc, 1, 2, 3);
    r.a1 = 1;
    r.a2 = 0.5;
    Drawing drawing{r};
    EXPECT_EQ(drawing.file(), head() + arc("1", "2", "3", "57.29578", "28.64789") + tail());
}

TEST(DxfWriter, EllipseIsThirtySixLinesFromNewToPrevious)
{
    Drawing drawing{levelEllipse()};
    const std::string expected = levelEllipseLines();
    EXPECT_EQ(drawing.file(), head() + expected + tail());
    const std::string first = line("0.9848077", "-0.08682407", "1", "0");
    EXPECT_EQ(expected.substr(0, first.size()), first);
}

TEST(DxfWriter, SlantedEllipseClosesAndLiesOnItsAxes)
{
    constexpr double radius = 60, ratio = 0.25; // world units
    constexpr double ux = 0.8, uy = 0.6;        // y upward
    EntityRecord r = object(Kind::ellipse);
    r.p1 = world(3 + 5 * ux, 2 + 5 * uy);
    r.p2 = world(3, 2);
    r.p3.x = ratio;
    Opened o(Drawing{r}.file());
    ASSERT_EQ(o.count(), 37);
    for (std::int32_t i = 1; i < 37; ++i) {
        const double x = o.at(i).p1.x - 36, y = -o.at(i).p1.y - 24;
        const double alongU = (x * ux + y * uy) / radius;
        const double alongV = (x * uy - y * ux) / (radius * ratio);
        EXPECT_NEAR(alongU * alongU + alongV * alongV, 1, 1e-5) << i;
        EXPECT_TRUE(i >= 18 || alongV > 0) << i; // clockwise with y upward
        EXPECT_EQ(o.at(i).p2, i == 1 ? r.p1 : o.at(i - 1).p1) << i;
    }
    EXPECT_NEAR(o.at(36).p1.x, r.p1.x, 1e-3);
    EXPECT_NEAR(o.at(36).p1.y, r.p1.y, 1e-3);
}

TEST(DxfWriter, PointIsALineOfNoLengthAndSolid)
{
    EntityRecord r = object(Kind::point);
    r.p1 = world(4, 5);
    r.style = 3;
    Drawing drawing{r};
    EXPECT_EQ(drawing.file(), head() + line("4", "5", "4", "5") + tail());
}

TEST(DxfWriter, TextMovesDownByItsSize)
{
    EntityRecord r = textObject({12, 24}, 36, 0);
    r.p4 = {120, 24};
    Drawing drawing{r};
    const Words words{"1", "-5", "10", "-5", "2", "0", "Wall"};
    EXPECT_EQ(drawing.file(), head() + text(words) + tail());
}

TEST(DxfWriter, TextJustificationChangesItsNumber)
{
    const struct {
        float inDrawing;
        std::string_view inFile;
    } rows[] = {{0, "     0"}, {1, "     2"}, {2, "     1"}, {3, "     0"}, {1.5F, "     0"}};
    for (const auto& row : rows) {
        EntityRecord r = textObject({0, 0}, 18, 0);
        r.p2.y = row.inDrawing;
        Drawing drawing{r};
        const Words words{"0", "-1.5", "0", "-1.5", "1", "0", "Wall", row.inFile};
        EXPECT_EQ(drawing.objects(), text(words)) << row.inDrawing;
    }
}

TEST(DxfWriter, TurnedTextMovesAcrossItsDirection)
{
    // A quarter turn misses the exact axis by the shortness of its literals, by less than seven digits show.
    Drawing drawing{textObject({120, 120}, 18, 90)};
    const std::string made = drawing.objects();
    EXPECT_NE(made.find(" 10\r\n11.5\r\n"), std::string::npos) << made;
    EXPECT_NE(made.find(" 50\r\n90\r\n"), std::string::npos) << made;
}

TEST(DxfWriter, TextIsWindows1252AndOneLine)
{
    EntityRecord r = textObject({0, 0}, 18, 0);
    r.t1 = "\xC3\xA9\nx\xE2\x82\xAC";
    Drawing drawing{r};
    EXPECT_NE(drawing.objects().find("  1\r\n\xE9 x\x80\r\n  7\r\n"), std::string::npos);
}

// Each would end the line, or the file, in one reader or another.
TEST(DxfWriter, TextHasNoLineEndsAndNoControlCharacters)
{
    struct Row {
        const char* what;
        std::string words;
        std::string written;
    };
    using namespace std::string_literals;
    const Row rows[] = {
        {"a line end between words", "west\nwall", "west wall"},
        {"both characters of one line end", "west\r\nwall", "west wall"},
        {"two line ends", "west\n\nwall", "west  wall"},
        {"a line end of old", "west\rwall", "west wall"},
        {"a tab", "12\t34", "12 34"},
        {"the end of a file of old", "beam\x1A, steel", "beam, steel"},
        {"nothing at all between", "be\0am"s, "beam"},
        {"a bell and a step back",
         "\x07"
         "beam\x08",
         "beam"},
        {"a page and a line further down",
         "\x0B"
         "be\x0C"
         "am",
         "beam"},
        {"the last of them",
         "be\x1F\x7F"
         "am",
         "beam"},
        {"one beyond the first half",
         "be\xC2\x81\xC2\x9D"
         "am",
         "beam"},
        {"a record of its own", "x\n  0\nLINE\n  8\nclay", "x   0 LINE   8 clay"},
        {"nothing else", "\n\x01", " "},
        {"letters and blanks as they are", "  \xC3\x84 \xE2\x82\xAC ~!  ", "  \xC4 \x80 ~!  "},
    };
    EntityRecord dimension = object(Kind::linearDimension);
    dimension.s1 = 1;
    for (const Row& row : rows) {
        for (EntityRecord r : {textObject({-7, 4e6F}, 18, 33), dimension}) {
            r.t1 = row.words;
            const std::string expected = "  1\r\n" + row.written + "\r\n  7\r\nROMANC\r\n";
            EXPECT_NE(Drawing{r}.objects().find(expected), std::string::npos) << row.what;
        }
    }
}

TEST(DxfWriter, ColorsHaveNumbersOfTheirOwn)
{
    const struct {
        std::int32_t color;
        std::string_view number;
    } rows[] = {
        {0xFF0000, "     1"}, {0x00FF00, "     2"}, {0xFFFF00, "     3"}, {0x0000FF, "     4"},
        {0xFF00FF, "     5"}, {0x0080FF, "     6"}, {0x00FFFF, "     7"}, {0xE0E0E0, "     8"},
        {0xFFFFFF, "     8"}, {0x123456, "     1"}, {0, "     1"},        {-1, "     1"},
    };
    for (const auto& row : rows) {
        EntityRecord r = lineObject(0, 0, 1, 0);
        r.color = row.color;
        Drawing drawing{r};
        EXPECT_EQ(drawing.objects(), line("0", "0", "1", "0", {"CONTINUOUS", row.number})) << row.color;
    }
}

TEST(DxfWriter, StylesAreLineTypes)
{
    const struct {
        std::int16_t style;
        std::string_view name;
    } rows[] = {{0, "CONTINUOUS"}, {1, "DASHED"},     {2, "DOT"},        {3, "DASHDOT"},
                {4, "PHANTOM"},    {5, "CONTINUOUS"}, {-1, "CONTINUOUS"}};
    for (const auto& row : rows) {
        EntityRecord r = roundObject(Kind::circle, 0, 0, 1);
        r.style = row.style;
        Drawing drawing{r};
        EXPECT_EQ(drawing.objects(), circle("0", "0", "1", {row.name})) << row.style;
    }
}

TEST(DxfWriter, EveryLayerIsClay)
{
    EntityRecord r = lineObject(0, 0, 1, 0);
    r.layer = 7;
    Drawing drawing{r};
    EXPECT_EQ(drawing.objects(), line("0", "0", "1", "0"));
}

TEST(DxfWriter, OtherKindsArePassedOver)
{
    Drawing drawing;
    for (const std::int16_t k : std::initializer_list<std::int16_t>{-1, 0, 11, 16, 20, 24, 25, 30, 35})
        drawing.add(object(Kind{k}));
    EXPECT_EQ(drawing.file(), head() + tail());
}

TEST(DxfWriter, NothingInTheDrawingChanges)
{
    Drawing drawing{lineObject(1, 2, 3, 4)};
    const EntityRecord before = drawing.store->record(1);
    drawing.file();
    EXPECT_EQ(drawing.store->record(1), before);
    EXPECT_EQ(drawing.store->stat[1], Stat::sel);
}

TEST(DxfWriter, CoordinateThatIsNoNumberIsThatOfTheLineBefore)
{
    EntityRecord r = lineObject(5, 6, 7, 8);
    r.p1.x = nan;
    r.p2.y = infinite;
    Drawing drawing{lineObject(1, 2, 3, 4), r};
    EXPECT_EQ(drawing.objects(), line("1", "2", "3", "4") + line("1", "6", "7", "4"));
}

TEST(DxfWriter, EveryFieldNaNStillGivesWholeRecords)
{
    const std::size_t records[] = {1, 1, 1, 36, 1, 1, 9, 11, 6, 10};
    for (const Kind kind : everyKind) {
        EntityRecord r = object(kind);
        r.p1 = r.p2 = r.p3 = r.p4 = r.p5 = {nan, infinite};
        r.rad = r.s2 = nan;
        r.a1 = r.a2 = r.a3 = nan;
        r.s1 = 1;
        r.style = 1;
        Drawing drawing{r};
        const std::string made = drawing.objects();
        std::size_t count = 0;
        for (std::size_t at = made.find("clay"); at != std::string::npos; at = made.find("clay", at + 1))
            ++count;
        EXPECT_EQ(count, records[placeOf(kind)] + (kind == Kind::linearDimension ? 1 : 0)) << numberOf(kind);
        EXPECT_TRUE(drawing.whole);
    }
}

TEST(DxfWriter, CommaOfASystemIsInComputedNumbersAlone)
{
    Drawing drawing{lineObject(0.5F, 0, 1, 0)};
    const std::string made = drawing.file(',');
    EXPECT_NE(made.find(" 10\r\n0,5\r\n"), std::string::npos);
    EXPECT_NE(made.find(" 30\r\n0.0\r\n"), std::string::npos);
    EXPECT_NE(made.find(" 40\r\n10.0\r\n"), std::string::npos);
}

TEST(DxfWriter, FullTableIsWritten)
{
    Drawing drawing;
    for (std::int32_t i = 0; i < EntityStore::slotCount + 10; ++i) drawing.add(lineObject(0, 0, 1, 1));
    const std::string expected = line("0", "0", "1", "1");
    EXPECT_EQ(drawing.objects().size(), expected.size() * 60000);
}

} // namespace
} // namespace mirtane
