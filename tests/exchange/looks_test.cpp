#include "dxf_text.h"

#include <numbers>

namespace mirtane {
namespace {

using namespace fake;

constexpr std::int32_t blue = 0xFF0000, green = 0x00FF00, aqua = 0xFFFF00, red = 0x0000FF, purple = 0xFF00FF,
                       brown = 0x0080FF, yellow = 0x00FFFF, white = 0xFFFFFF;

TEST(Pens, NumbersOfColoursGoToTheNearest)
{
    struct Row {
        int number;
        std::int32_t pen;
    };
    const Row rows[] = {
        {1, red},     {2, yellow},  {3, green},   {4, aqua},   {5, blue},   {6, purple},   {7, white},
        {8, white},   {9, white},   {10, red},    {11, red},   {18, red},   {30, brown},   {32, brown},
        {50, yellow}, {90, green},  {130, aqua},  {170, blue}, {178, blue}, {210, purple}, {249, red},
        {250, white}, {253, white}, {255, white}, {-1, red},   {-5, blue},  {999, white},  {-999, white},
    };
    for (const Row& row : rows) EXPECT_EQ(penOfColorNumber(row.number), row.pen) << row.number;
}

TEST(Pens, TrueColoursGoToTheNearestHue)
{
    struct Row {
        std::int32_t rgb;
        std::int32_t pen;
    };
    const Row rows[] = {
        {0xFF0000, red},   {0x7F0000, red},   {0x2A0404, red},   {0xFFB0B0, red},    {0x00FF00, green},
        {0x004400, green}, {0x1E90FF, aqua},  {0x0000C0, blue},  {0xC000C0, purple}, {0xFFFF33, yellow},
        {0xA0522D, brown}, {0xFF8000, brown}, {0x000000, white}, {0x808080, white},  {0xF5F0EE, white},
    };
    for (const Row& row : rows) EXPECT_EQ(penOfTrueColor(row.rgb), row.pen) << std::hex << row.rgb;
}

std::string layer(const std::string& name, int color, int flags = 0,
                  const std::string& lineType = "Continuous")
{
    return dxf(
        {{0, "LAYER"}, {2, name}, {70, std::to_string(flags)}, {62, std::to_string(color)}, {6, lineType}});
}

std::string lineOn(const std::string& layer, const std::string& more = "")
{
    return dxf({{0, "LINE"}, {8, layer}}) + more + dxf({{10, "1"}, {20, "2"}, {11, "3"}, {21, "5"}});
}

TEST(Layers, LettersBeyondAsciiAreSmallOrCapitalToo)
{
    struct Row {
        const char* codePage;
        const char* release;
        const char* layer;
        const char* spelled;
    };
    const Row rows[] = {
        {"ANSI_1252", "AC1015",
         "M\xF6"
         "bel",
         "M\xD6"
         "BEL"},
        {"ANSI_1252", "AC1027",
         "M\xC3\xB6"
         "bel",
         "M\xC3\x96"
         "BEL"},
        {"ANSI_1251", "AC1015", "\xD1\xF2\xE5\xED\xFB", "\xF1\xF2\xE5\xED\xFB"},
        {"ANSI_1253", "AC1015", "\xD4\xEF\xDF\xF7\xEF\xF2", "\xD4\xEF\xDF\xF7\xEF\xF3"},
        {"ANSI_1250", "AC1018", "\x8Eili\x9A", "\x9Eili\x8A"},
        {"ANSI_1252", "AC1015", "\\U+0139", "\\U+013A"},
    };
    for (const Row& row : rows) {
        const FullReading r = readOf(section("HEADER", dxf({{9, "$DWGCODEPAGE"}, {3, row.codePage}}) +
                                                           dxf({{9, "$ACADVER"}, {1, row.release}})) +
                                     section("TABLES", layer(row.layer, 1)) + entities(lineOn(row.spelled)));
        ASSERT_EQ(r.drawing.objects.size(), 1U);
        EXPECT_EQ(r.drawing.layers.size(), 1U) << row.codePage;
        EXPECT_EQ(r.drawing.objects[0].look.color, red) << row.codePage;
    }
}

TEST(Layers, NamesColoursAndLineTypesAreResolvedWithoutRegardToCase)
{
    const std::string tables = section("TABLES", layer("Walls", 5) + layer("DOORS", 30, 0, "Dashed2"));
    const auto objects = objectsOf(
        tables + entities(lineOn("WALLS") + lineOn("doors") + lineOn("Doors", dxf({{62, "3"}, {6, "DOT"}})) +
                          lineOn("new") + lineOn("walls", dxf({{420, "16776960"}, {62, "1"}})) +
                          lineOn("walls", dxf({{62, "256"}, {6, "ByLayer"}})) +
                          lineOn("walls", dxf({{62, "0"}, {6, "BYBLOCK"}}))));
    const std::int32_t pens[] = {blue, brown, green, white, yellow, blue, white};
    const std::int16_t styles[] = {0, 1, 2, 0, 0, 0, 0};
    const std::int16_t layers[] = {0, 1, 1, 2, 0, 0, 0};
    ASSERT_EQ(objects.size(), std::size(pens));
    for (std::size_t i = 0; i < objects.size(); ++i) {
        EXPECT_EQ(objects[i].color, pens[i]) << i;
        EXPECT_EQ(objects[i].style, styles[i]) << i;
        EXPECT_EQ(objects[i].layer, layers[i]) << i;
    }
}

TEST(Layers, OffAndFrozenOnesAreHidden)
{
    const FullReading r =
        readOf(section("TABLES", layer("off", -3) + layer("frozen", 3, 1) + layer("seen", 3, 4)) +
               entities(lineOn("off") + lineOn("frozen") + lineOn("seen")));
    ASSERT_EQ(r.drawing.layers.size(), 3U);
    const bool hidden[] = {true, true, false};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(r.drawing.layers[i].hidden, hidden[i]) << i;
        EXPECT_EQ(r.drawing.objects[i].look.hidden, hidden[i]) << i;
    }
    EXPECT_EQ(r.drawing.workLayer, 2);
}

TEST(Layers, ThoseThatEveryFileHasComeOnlyIfUsed)
{
    const std::string tables =
        section("TABLES", layer("0", 7) + layer("Defpoints", 7) + layer("A", 1) + layer("B", 2));
    const FullReading without = readOf(tables + entities(lineOn("b")));
    ASSERT_EQ(without.drawing.layers.size(), 2U);
    EXPECT_EQ(without.drawing.objects[0].look.layer, 1);
    const FullReading with = readOf(tables + entities(lineOn("b") + lineOn("0")));
    ASSERT_EQ(with.drawing.layers.size(), 3U);
    EXPECT_EQ(with.drawing.objects[0].look.layer, 2);
    EXPECT_EQ(with.drawing.objects[1].look.layer, 0);
}

TEST(Layers, TheFilesCurrentOneIsTheWorkingLayerIfItIsSeen)
{
    const auto file = [](const std::string& current) {
        return section("HEADER", dxf({{9, "$CLAYER"}, {8, current}})) +
               section("TABLES", layer("a", -1) + layer("b", 2) + layer("c", 3)) + entities(lineOn("a"));
    };
    EXPECT_EQ(readOf(file("C")).drawing.workLayer, 2);
    EXPECT_EQ(readOf(file("A")).drawing.workLayer, 1);
    EXPECT_EQ(readOf(file("none")).drawing.workLayer, 1);
    const FullReading dark = readOf(section("TABLES", layer("a", -1)) + entities(lineOn("a")));
    ASSERT_EQ(dark.drawing.layers.size(), 2U); // one more, to draw on
    EXPECT_EQ(dark.drawing.workLayer, 1);
}

TEST(Layers, ThousandsOfThemGoWithTheLast)
{
    std::string lines;
    for (int i = 0; i < 1500; ++i) lines += lineOn("L" + std::to_string(i));
    const FullReading r = readOf(entities(lines));
    EXPECT_EQ(r.drawing.layers.size(), 1000U);
    EXPECT_EQ(r.drawing.objects[998].look.layer, 998);
    EXPECT_EQ(r.drawing.objects[1499].look.layer, 999);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1500, 0})),
              "500 layers (what is on them is on the last one) left out");
}

TEST(LineTypes, LookLikeTheirDashes)
{
    struct Row {
        const char* what;
        std::vector<double> dashes;
        std::int16_t style;
    };
    const Row rows[] = {
        {"none", {}, 0},
        {"dashes", {0.5, -0.25}, 1},
        {"no gap", {0.5}, 0},
        {"dots", {0, -0.25}, 2},
        {"dash and dot", {0.5, -0.25, 0, -0.25}, 3},
        {"long and short", {1.25, -0.25, 0.25, -0.25}, 3},
        {"two dashes and a dot", {0.5, -0.25, 0.5, -0.25, 0, -0.25}, 3},
        {"dash and two dots", {0.5, -0.25, 0, -0.25, 0, -0.25}, 4},
        {"long and two short", {1.25, -0.25, 0.25, -0.25, 0.25, -0.25}, 4},
    };
    for (const Row& row : rows) {
        std::string type = dxf({{0, "LTYPE"}, {2, "Odd name"}, {73, std::to_string(row.dashes.size())}});
        for (const double dash : row.dashes) type += dxf({{49, std::to_string(dash)}, {74, "0"}});
        const auto objects =
            objectsOf(section("TABLES", type) + entities(lineOn("a", dxf({{6, "ODD NAME"}}))));
        EXPECT_EQ(objects.at(0).style, row.style) << row.what;
    }
}

TEST(LineTypes, WithoutDashesTheNameTells)
{
    struct Row {
        const char* name;
        std::int16_t style;
    };
    const Row rows[] = {{"CONTINUOUS", 0}, {"dashed", 1},   {"HIDDEN2", 1}, {"Dot", 2},   {"DASHDOTX2", 3},
                        {"CENTER", 3},     {"PHANTOM2", 4}, {"DIVIDE", 4},  {"FENCE", 0}, {"DASHDOTDOT", 4}};
    for (const Row& row : rows) EXPECT_EQ(styleOfName(row.name), row.style) << row.name;
}

// Blocks of objects on layer 0, on their own, and in colours by block.
struct InsertedLooks : testing::Test {
    static FullReading read(const std::string& layers, const std::string& insertLayer)
    {
        const std::string content =
            lineOn("0") + lineOn("own") + lineOn("0", dxf({{62, "0"}, {6, "BYBLOCK"}}));
        return readOf(section("TABLES", layers) + section("BLOCKS", block("B", content)) +
                      entities(dxf({{0, "INSERT"}, {8, insertLayer}, {2, "b"}, {62, "4"}, {6, "DOT"}})));
    }
};

TEST_F(InsertedLooks, LayerZeroAndByBlockAreTheInserts)
{
    const FullReading r = read(layer("own", 2) + layer("ins", 1), "ins");
    const auto objects = objectsOf(r);
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_EQ(objects[0].color, red); // of the insert's layer
    EXPECT_EQ(objects[0].layer, 1);
    EXPECT_EQ(objects[1].color, yellow);
    EXPECT_EQ(objects[1].layer, 0);
    EXPECT_EQ(objects[2].color, aqua); // the insert's own
    EXPECT_EQ(objects[2].style, 2);
}

TEST_F(InsertedLooks, FrozenInsertHidesAllAndOneThatIsOffWhatIsOnItsLayer)
{
    const FullReading frozen = read(layer("own", 2) + layer("ins", 1, 1), "ins");
    for (const Made& one : frozen.drawing.objects) {
        EXPECT_TRUE(one.look.hidden);
        EXPECT_EQ(one.look.layer, 1); // the layer that hides it
    }
    const FullReading off = read(layer("own", 2) + layer("ins", -1), "ins");
    const bool hidden[] = {true, false, true};
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(off.drawing.objects[i].look.hidden, hidden[i]) << i;
}

TEST(Looks, InvisibleObjectsAreLeftOutAndCounted)
{
    const FullReading r = readOf(entities(lineOn("a", dxf({{60, "1"}})) + lineOn("a")));
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "1 line (invisible) left out");
}

} // namespace
} // namespace mirtane
