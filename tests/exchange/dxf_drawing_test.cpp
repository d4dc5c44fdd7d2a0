#include "written_dxf.h"

#include "tables/pens.h"

#include <gmock/gmock.h>

#include <map>

namespace mirtane {
namespace {

using namespace exchanged;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t redPen = 0x0000FF;
constexpr std::int32_t bluePen = 0xFF0000;
constexpr std::int32_t whitePen = 0xFFFFFF;

Record onlyEntity(const EntityRecord& r)
{
    const auto entities = Drawing{r}.entities();
    EXPECT_EQ(entities.size(), 1U) << numberOf(r.kind);
    return entities.empty() ? Record{} : entities.front();
}

TEST(DxfDrawing, HoldsInchesGrowingUpward)
{
    const Record line = onlyEntity(fake::line({12, 24}, {-30, 600006}));
    EXPECT_EQ(line.type, "LINE");
    EXPECT_EQ(line.all(10), std::vector<std::string>{"1.0"});
    EXPECT_EQ(line.all(20), std::vector<std::string>{"-2.0"});
    EXPECT_EQ(line.all(11), std::vector<std::string>{"-2.5"});
    EXPECT_EQ(line.all(21), std::vector<std::string>{"-50000.5"});
}

TEST(DxfDrawing, LosesNoDigitOfACoordinate)
{
    for (const float x : {0.1F, 1.0F / 3, 123456.789F, 16777215.0F, 1e-20F, -7.0000005F, 3e38F}) {
        const double read = onlyEntity(fake::point({x, -x})).number(10) * 12;
        EXPECT_EQ(static_cast<float>(read), x);
    }
}

TEST(DxfDrawing, RoundThingsStayRound)
{
    const Record circle = onlyEntity(fake::circle({120, -36}, 18));
    EXPECT_EQ(circle.type, "CIRCLE");
    EXPECT_EQ(circle.first(40), "1.5");
    EXPECT_EQ(circle.first(20), "3.0");
    const Record arc = onlyEntity(fake::arc({120, -36}, 18, 5.5, 0.25)); // through 0
    EXPECT_EQ(arc.type, "ARC");
    EXPECT_NEAR(arc.number(50), 315.12678732, 1e-7);
    EXPECT_NEAR(arc.number(51), 14.32394488, 1e-7);
}

TEST(DxfDrawing, EllipseHasItsLongerAxisFirst)
{
    const Record level = onlyEntity(fake::ellipse({60, 24}, {36, 24}, 0.5F));
    EXPECT_EQ(level.number(11), 2);
    EXPECT_EQ(level.number(40), 0.5);
    const Record high = onlyEntity(fake::ellipse({60, 24}, {36, 24}, 4));
    EXPECT_EQ(high.number(11), 0);
    EXPECT_EQ(high.number(21), 8);
    EXPECT_EQ(high.number(40), 0.25);
}

TEST(DxfDrawing, TextStandsOnItsBaseLineAndIsAsHighAsItsCapitals)
{
    struct Row {
        const char* what;
        double degrees;
        float justification;
        double x, y; // of the baseline's begin
        std::string side;
    };
    const Row rows[] = {
        {"level", 0, 0, 10, -24, ""},    {"upward", 90, 0, 14, -20, ""}, {"over head", 180, 0, 10, -16, ""},
        {"centred", 0, 2, 10, -24, "1"}, {"right", 0, 1, 10, -24, "2"},
    };
    for (const Row& row : rows) {
        EntityRecord r = fake::text({120, 240}, "Hall", 48, "Some Face");
        r.p1 = {168, 240}; // as it was entered
        r.a1 = row.degrees;
        r.p2.y = row.justification;
        const Record text = onlyEntity(r);
        EXPECT_NEAR(text.number(10), row.x, 1e-6) << row.what;
        EXPECT_NEAR(text.number(20), row.y, 1e-6) << row.what;
        EXPECT_NEAR(text.number(40), 8.0 / 3, 1e-8) << row.what;
        EXPECT_EQ(text.first(72), row.side) << row.what;
        EXPECT_EQ(text.first(7), "Some Face") << row.what;
        if (row.side.empty()) continue;
        EXPECT_NEAR(text.number(11), 14, 1e-6) << row.what;
    }
}

TEST(DxfDrawing, WordsHaveNothingThatAReaderTakesForASign)
{
    struct Row {
        const char* words;
        const char* written;
    };
    const Row rows[] = {
        {"Küche 50°", "K\\U+00FCche 50\\U+00B0"},
        {"€ – “x”", "\\U+20AC \\U+2013 \\U+201Cx\\U+201D"},
        {"\xF0\x9F\x98\x80", "\\U+D83D\\U+DE00"},
        {"\xC3", "\\U+00C3"},
        {"100%", "100%"},
        {"%%d", "%%%%%%d"},
        {"a^b", "a^ b"},
        {"\\U+0041", "\\U+005CU+0041"},
        {"C:\\Plan", "C:\\Plan"},
        {"two\r\nrows\tand", "two rows and"},
        {"\x1A\x07.", "."},
    };
    for (const Row& row : rows) EXPECT_EQ(onlyEntity(fake::text({}, row.words)).first(1), row.written);
    EntityRecord underlined = fake::text({}, "Hall");
    underlined.p3.x = 1;
    EXPECT_EQ(onlyEntity(underlined).first(1), "%%uHall");
}

TEST(DxfDrawing, DimensionIsOneAndHasItsPicture)
{
    struct Row {
        Kind kind;
        int type;
        const char* marker;
    };
    const Row rows[] = {{Kind::linearDimension, 0, "AcDbRotatedDimension"},
                        {Kind::radialDimension, 4, "AcDbRadialDimension"},
                        {Kind::angularDimension, 5, "AcDb3PointAngularDimension"}};
    for (const Row& row : rows) {
        const auto records = Drawing{fake::sample(row.kind)}.records();
        const auto entities = of(records, "ENTITIES");
        ASSERT_EQ(entities.size(), 1U);
        EXPECT_EQ(entities[0].type, "DIMENSION");
        EXPECT_EQ(std::stoi(entities[0].first(70)) % 32, row.type);
        EXPECT_EQ(entities[0].all(100).back(), row.marker);
        EXPECT_EQ(entities[0].first(1), fake::sample(row.kind).t1);
        std::string block;
        int lines = 0;
        for (const Record& r : of(records, "BLOCKS")) {
            if (r.type == "BLOCK") block = r.first(2);
            if (block == entities[0].first(2)) lines += r.type == "LINE" || r.type == "TEXT" ? 1 : 0;
        }
        EXPECT_GE(lines, 6) << row.marker;
    }
}

TEST(DxfDrawing, LinearDimensionTellsWhatItMeasuresAndWhichWayItLies)
{
    EntityRecord r = fake::sample(Kind::linearDimension);
    r.p1 = {0, 0};
    r.p2 = {360, -480};
    r.p3 = {408, -444};
    r.p4 = {48, 36};
    const Record dimension = onlyEntity(r);
    EXPECT_EQ(dimension.number(13), 0);
    EXPECT_EQ(dimension.number(14), 30);
    EXPECT_EQ(dimension.number(24), 40);
    EXPECT_EQ(dimension.number(10), 34);
    EXPECT_EQ(dimension.number(20), 37);
    EXPECT_NEAR(dimension.number(50), 53.13010235, 1e-7);
}

TEST(DxfDrawing, LeaderPointsAndItsTextBelongsToIt)
{
    const auto entities = Drawing{fake::sample(Kind::leader)}.entities();
    ASSERT_EQ(entities.size(), 2U);
    EXPECT_EQ(entities[0].type, "LEADER");
    EXPECT_EQ(entities[0].all(10).size(), 3U);
    EXPECT_EQ(entities[1].type, "MTEXT");
    EXPECT_EQ(entities[1].first(1), "note");
    EXPECT_EQ(entities[0].first(340), entities[1].handle());
    EXPECT_EQ(entities[1].all(330).front(), entities[0].handle());
}

TEST(DxfDrawing, LayerHasThePenOfMostOfItsObjectsAndTheyFollowIt)
{
    Drawing drawing;
    drawing.layer(2).layerName = "Walls";
    drawing.layer(2).layerShown = layer::hidden;
    for (const std::int32_t color : {redPen, bluePen, redPen})
        drawing.add(fake::ofLooks(fake::line({0, 0}, {12, 12}), color, 2), Stat::off);
    const auto records = drawing.records();
    const auto layers = of(records, "TABLES", "LAYER");
    ASSERT_EQ(layers.size(), 3U);
    EXPECT_EQ(layers[2].first(2), "Walls");
    EXPECT_EQ(layers[2].first(62), "-1") << "redPen, and off";
    EXPECT_EQ(layers[2].first(370), "25");
    const auto lines = of(records, "ENTITIES", "LINE");
    ASSERT_EQ(lines.size(), 3U) << "what is hidden is written too";
    EXPECT_THAT(lines[0].all(62), IsEmpty());
    EXPECT_THAT(lines[1].all(62), ElementsAre("5"));
    EXPECT_THAT(lines[1].all(370), ElementsAre("5"));
    EXPECT_EQ(lines[1].first(8), "Walls");
}

TEST(DxfDrawing, LayerNameHasNoSignThatNamesMayNotHaveAndIsLikeNoOther)
{
    struct Row {
        std::string name;
        std::string written;
    };
    const std::string longest(240, 'n');
    const Row rows[] = {
        {"Walls", "Walls"},
        {"WALLS", "WALLS-2"},
        {"a/b:c|d", "a_b_c_d"},
        {"Größe", "Gr\xF6\xDF"
                  "e"},
        {" ", "_"},
        {"", "_-2"},
        {"Ω", "\\U+03A9"},
        {longest + "more", longest},
        {" inner blank ", "inner blank"},
    };
    Drawing drawing;
    for (std::int32_t i = 0; i < std::ssize(rows); ++i) drawing.layer(i + 1).layerName = rows[i].name;
    const auto layers = of(drawing.records(), "TABLES", "LAYER");
    ASSERT_EQ(layers.size(), 1 + std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) EXPECT_EQ(layers[i + 1].first(2), rows[i].written);
}

TEST(DxfDrawing, EveryPenHasAColourAndAWidth)
{
    std::set<std::string> numbers;
    int width = 0;
    for (const Pen& pen : pens) {
        Drawing drawing{fake::ofLooks(fake::line({}, {1, 1}), pen.color)};
        const auto layer = of(drawing.records(), "TABLES", "LAYER").front();
        EXPECT_TRUE(numbers.insert(layer.first(62)).second) << layer.first(62);
        EXPECT_GT(std::stoi(layer.first(370)), width) << "in the order of their widths";
        width = std::stoi(layer.first(370));
    }
}

TEST(DxfDrawing, StyleIsALineTypeThatTheFileHas)
{
    const char* const names[] = {"", "DASHED", "DOT", "DASHDOT", "DIVIDE"};
    for (std::int16_t style = 0; style < 5; ++style)
        EXPECT_EQ(onlyEntity(fake::ofLooks(fake::circle({}, 12), whitePen, 0, style)).first(6), names[style]);
    EXPECT_EQ(onlyEntity(fake::ofLooks(fake::text({}, "x"), whitePen, 0, 2)).first(6), "");
}

TEST(DxfDrawing, OneLayerIsAllThatIsWritten)
{
    Drawing drawing{fake::ofLooks(fake::line({}, {1, 1}), redPen, 4),
                    fake::ofLooks(fake::point({}), redPen, 5)};
    const auto entities = of(recordsOf(drawing.written(5).bytes), "ENTITIES");
    ASSERT_EQ(entities.size(), 1U);
    EXPECT_EQ(entities[0].type, "POINT");
}

TEST(DxfDrawing, WhatIsOutStaysOut)
{
    Drawing drawing;
    drawing.add(fake::line({}, {1, 1}), Stat::out);
    drawing.add(fake::record(layerNameKind));
    EXPECT_THAT(drawing.entities(), IsEmpty());
}

TEST(DxfDrawing, HeadTellsReleaseUnitsAndExtents)
{
    Drawing drawing{fake::line({-120, 24}, {240, 360})};
    const auto pairs = pairsOf(drawing.written().bytes);
    std::map<std::string, std::vector<std::string>> head;
    for (std::size_t i = 0; i + 2 < pairs.size(); ++i) {
        if (pairs[i].code == 9) head[pairs[i].value] = {pairs[i + 1].value, pairs[i + 2].value};
    }
    EXPECT_EQ(head["$ACADVER"][0], "AC1015");
    EXPECT_EQ(head["$INSUNITS"][0], "1");
    EXPECT_THAT(head["$EXTMIN"], ElementsAre("-10.0", "-30.0"));
    EXPECT_THAT(head["$EXTMAX"], ElementsAre("20.0", "-2.0"));
}

} // namespace
} // namespace mirtane
