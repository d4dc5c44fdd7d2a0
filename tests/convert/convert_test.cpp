#include "convert_process.h"
#include "records.h"

#include <QFile>
#include <QImage>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <sstream>

namespace mirtane {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr std::int32_t white = 0xFFFFFF;
constexpr std::int32_t red = 0x0000FF;

EntityRecord header()
{
    EntityRecord r;
    r.kind = headerKind;
    r.t1 = "us";
    r.t2 = "Garamond";
    return r;
}

EntityRecord line(Point from, Point to, std::int16_t layer)
{
    return fake::ofLooks(fake::line(from, to), white, layer);
}

EntityRecord circle(Point centre, float radius, std::int16_t layer)
{
    return fake::ofLooks(fake::circle(centre, radius), red, layer);
}

EntityRecord words(std::string text, std::int16_t layer)
{
    return fake::ofLooks(fake::text({12, 120}, std::move(text)), white, layer);
}

// The circle comes last: what stands behind one is not read back from a DXF file.
const std::vector<EntityRecord> house = {header(), line({0, 0}, {120, 24}, 1), words("KITCHEN", 3),
                                         circle({60, 60}, 24, 2)};

struct Convert : testing::Test {
    Convert() { p.writeDrawing("house.mtd", house); }

    void expectDone(const std::string& command) const
    {
        const fake::Converted got = p.run(command);
        EXPECT_EQ(got.status, 0);
        EXPECT_EQ(got.err, "");
        EXPECT_EQ(got.out, "");
    }
    // One line, which begins with the program's name and holds both parts.
    void expectRefused(const std::string& command, int status, const std::string& part,
                       const std::string& other = "") const
    {
        const fake::Converted got = p.run(command);
        EXPECT_EQ(got.status, status) << command;
        EXPECT_THAT(got.err, StartsWith("mirtane-convert: "));
        EXPECT_THAT(got.err, HasSubstr(part));
        EXPECT_THAT(got.err, HasSubstr(other));
        EXPECT_EQ(std::count(got.err.begin(), got.err.end(), '\n'), 1) << got.err;
        EXPECT_EQ(got.out, "");
    }

    fake::ConvertProcess p;
};

// What is whole of it is converted, and a script over a thousand drawings learns of it.
TEST_F(Convert, DrawingThatIsCutOffCameInPart)
{
    const std::string whole = p.content("house.mtd");
    for (const std::size_t missing : {1U, 47U, 91U}) {
        p.write("cut.mtd", whole.substr(0, whole.size() - missing));
        for (const char* out : {"cut.png", "cut.pdf", "cut.dxf", "cut.svg", "cut.txt"})
            expectRefused(std::string("cut.mtd -o ") + out, 3,
                          "cut.mtd: the file is cut off: the end of it is missing");
        EXPECT_TRUE(p.exists("cut.png"));
        EXPECT_THAT(p.content("cut.svg"), HasSubstr("</svg>"));
    }
    for (const std::string& none : {std::string(50, '\x7f'), whole.substr(0, 40), std::string(5000, 'x')}) {
        p.write("none.mtd", none);
        expectRefused("none.mtd -o none.png", 1, "none.mtd: no objects in it: it is cut off, or no drawing");
        EXPECT_FALSE(p.exists("none.png"));
    }
    p.write("house.mtd", whole);
    expectDone("house.mtd -o house.png");
}

TEST_F(Convert, DrawingStaysTheSameDrawing)
{
    expectDone("house.mtd -o copy.mtd");
    const auto copy = p.objectsOf("copy.mtd");
    ASSERT_EQ(copy.size(), 3U);
    EXPECT_EQ(copy[0].p2, (Point{120, 24}));
    EXPECT_EQ(copy[1].t1, "KITCHEN");
    EXPECT_EQ(copy[1].layer, 3);
    EXPECT_EQ(copy[2].rad, 24);
    EXPECT_EQ(copy[2].color, red);
}

TEST_F(Convert, DxfHoldsDrawingUnitsGrowingUpward)
{
    expectDone("--as-window house.mtd -o house.dxf");
    const std::string dxf = p.content("house.dxf");
    EXPECT_THAT(dxf, StartsWith("  0\r\nSECTION\r\n  2\r\nHEADER\r\n"));
    EXPECT_THAT(dxf, testing::EndsWith("ENDSEC\r\n  0\r\nEOF\r\n"));
    EXPECT_THAT(dxf, HasSubstr(" 10\r\n0\r\n 20\r\n0\r\n 30\r\n0.0\r\n 11\r\n10\r\n 21\r\n-2\r\n"));
    EXPECT_THAT(dxf, HasSubstr("\r\nKITCHEN\r\n"));
    EXPECT_THAT(dxf, HasSubstr(" 40\r\n2\r\n"));
}

TEST_F(Convert, DrawingComesBackFromDxf)
{
    expectDone("house.mtd -o there.dxf");
    expectDone("there.dxf -o back.mtd");
    const auto back = p.objectsOf("back.mtd");
    ASSERT_EQ(back.size(), 3U);
    EXPECT_EQ(back[0].kind, Kind::line);
    EXPECT_EQ(back[0].p1, (Point{0, 0}));
    EXPECT_EQ(back[0].p2, (Point{120, 24}));
    EXPECT_EQ(back[1].t1, "KITCHEN");
    EXPECT_EQ(back[2].kind, Kind::circle);
    EXPECT_EQ(back[2].p1, (Point{60, 60}));
    EXPECT_EQ(back[2].rad, 24);
}

int pixelsOfColour(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

TEST_F(Convert, PictureHasTheSizeAndTheColours)
{
    expectDone("house.mtd -o house.png --size 300x200");
    const QImage image(QString::fromStdString(p.path("house.png")), "PNG");
    ASSERT_EQ(image.width(), 300);
    ASSERT_EQ(image.height(), 200);
    EXPECT_GT(pixelsOfColour(image, qRgb(255, 255, 255)), 100);
    EXPECT_GT(pixelsOfColour(image, qRgb(255, 0, 0)), 50);
    EXPECT_GT(pixelsOfColour(image, qRgb(0, 0, 0)), 30000);
}

TEST_F(Convert, PictureOfOneLayerShowsItAlone)
{
    expectDone("house.mtd -o house.png --layer 2");
    const QImage image(QString::fromStdString(p.path("house.png")), "PNG");
    ASSERT_EQ(image.width(), 1200);
    ASSERT_EQ(image.height(), 800);
    EXPECT_EQ(pixelsOfColour(image, qRgb(255, 255, 255)), 0);
    EXPECT_GT(pixelsOfColour(image, qRgb(255, 0, 0)), 1000) << "the circle fills the picture";
}

TEST_F(Convert, VectorPictureIsAPageOfThePaper)
{
    expectDone("house.mtd -o house.svg --paper a5");
    const std::string svg = p.content("house.svg");
    EXPECT_THAT(svg, HasSubstr("<svg width=\"148"));
    EXPECT_THAT(svg, HasSubstr("height=\"209"));
    EXPECT_THAT(svg, HasSubstr("KITCHEN"));
    EXPECT_THAT(svg, HasSubstr("<circle"));
    EXPECT_THAT(svg, HasSubstr("</svg>"));
}

TEST_F(Convert, VectorPictureOfOddWordsAndNumbersCanStillBeRead)
{
    EntityRecord odd = words("A\x01<&\"B", 1);
    odd.t2 = "No\"such<&font";
    const float nan = std::numeric_limits<float>::quiet_NaN();
    p.writeDrawing("odd.mtd", {header(), odd, line({nan, 0}, {120, nan}, 1), circle({60, 60}, nan, 1),
                               line({0, 0}, {120, 24}, 1)});
    expectDone("odd.mtd -o odd.svg");
    QFile file(QString::fromStdString(p.path("odd.svg")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    std::string seen;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters()) seen += reader.text().toString().toStdString();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_THAT(seen, HasSubstr("A<&\"B"));
    EXPECT_THAT(p.content("odd.svg"), Not(HasSubstr("nan")));
    EXPECT_THAT(p.content("odd.svg"), HasSubstr("<polyline"));
}

TEST_F(Convert, PdfIsAPageOfThePaper)
{
    expectDone("house.mtd -o a4.pdf");
    expectDone("house.mtd -o letter.pdf --paper Letter");
    EXPECT_THAT(p.content("a4.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(p.content("a4.pdf"), HasSubstr("/MediaBox [0 0 595"));
    EXPECT_THAT(p.content("letter.pdf"), HasSubstr("/MediaBox [0 0 612"));
}

TEST_F(Convert, PageLiesAcrossWhereThatIsWished)
{
    expectDone("house.mtd -o across.pdf --landscape");
    expectDone("house.mtd -o across.svg --landscape --paper a0");
    EXPECT_THAT(p.content("across.pdf"), HasSubstr("/MediaBox [0 0 842"));
    EXPECT_THAT(p.content("across.svg"), HasSubstr("<svg width=\"1188"));
    EXPECT_THAT(p.content("across.svg"), HasSubstr("height=\"841"));
}

// The points of the last line of a picture, in dots of which 600 are an inch.
std::vector<double> lineOf(const std::string& svg)
{
    const std::size_t from = svg.rfind("points=\"") + 8;
    std::vector<double> numbers;
    std::string text = svg.substr(from, svg.find('"', from) - from);
    std::replace(text.begin(), text.end(), ',', ' ');
    std::istringstream words(text);
    for (double number = 0; words >> number;) numbers.push_back(number);
    return numbers;
}

// A line of 600 units along and 250 down, which is 50 inches and 20 5/6.
TEST_F(Convert, PageHasTheScaleThatIsWished)
{
    p.writeDrawing("beam.mtd", {header(), line({40000, -7000}, {40600, -6750}, 1)});
    const std::pair<const char*, double> rows[] = {
        {"--scale 1:50", 50},
        {"--scale 1:8 --paper a4", 8},
        {"--scale 2:25 --landscape", 12.5},
        {"--scale 1:100 --paper a0", 100},
        {"--scale 1:2 --paper a0 --landscape", 2},
    };
    for (const auto& [options, scale] : rows) {
        expectDone("beam.mtd -o beam.svg " + std::string(options));
        const std::vector<double> points = lineOf(p.content("beam.svg"));
        ASSERT_EQ(points.size(), 4U) << options;
        EXPECT_NEAR(points[2] - points[0], 50.0 / scale * 600, 0.6) << options;
        EXPECT_NEAR(points[3] - points[1], 250.0 / 12 / scale * 600, 0.6) << options;
    }
}

TEST_F(Convert, WhatIsTooLargeForThePaperAtItsScaleIsToldOf)
{
    p.writeDrawing("beam.mtd", {header(), line({0, 0}, {250, 600}, 1)});
    expectRefused("beam.mtd -o beam.pdf --scale 1:4", 1, "does not fit", "1:5 does");
    expectRefused("beam.mtd -o beam.svg --scale 1:1 --paper a6", 1, "does not fit", "1:10 does");
    EXPECT_FALSE(p.exists("beam.pdf"));
    EXPECT_FALSE(p.exists("beam.svg"));
    expectDone("beam.mtd -o beam.pdf --scale 1:5");
}

TEST_F(Convert, OneLayerIsAllThatIsWritten)
{
    expectDone("house.mtd -o layer.mtd --layer 2");
    const auto objects = p.objectsOf("layer.mtd");
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_EQ(objects[0].kind, Kind::circle);
    expectDone("house.mtd -o layer.dxf --layer 1");
    EXPECT_THAT(p.content("layer.dxf"), HasSubstr("LINE\r\n"));
    EXPECT_THAT(p.content("layer.dxf"), Not(HasSubstr("CIRCLE")));
    EXPECT_THAT(p.content("layer.dxf"), Not(HasSubstr("KITCHEN")));
}

const std::string inInches = "  0\nSECTION\n  2\nHEADER\n  9\n$INSUNITS\n 70\n1\n  0\nENDSEC\n";
const char* const foreignDxf = "0\nSECTION\n2\nENTITIES\n"
                               "0\nLINE\n8\nwalls\n10\n1.5\n20\n-2\n11\n3\n21\n4\n"
                               "0\nENDSEC\n0\nEOF\n";

TEST_F(Convert, DxfOfAnotherProgramComesIn)
{
    p.write("foreign.dxf", inInches + foreignDxf);
    expectDone("foreign.dxf -o in.mtd");
    const auto objects = p.objectsOf("in.mtd");
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_EQ(objects[0].p1, (Point{18, 24}));
    EXPECT_EQ(objects[0].p2, (Point{36, -48}));
}

TEST_F(Convert, DxfWithoutUnitsIsTakenAsInchesAloud)
{
    p.write("bare.dxf", foreignDxf);
    expectRefused("bare.dxf -o in.mtd", 0, "bare.dxf: no units: taken as inches");
    EXPECT_EQ(p.objectsOf("in.mtd").at(0).p2, (Point{36, -48}));
    p.writeDrawing("own.mtd", house);
    expectDone("own.mtd -o own.dxf");
    expectDone("own.dxf -o back.mtd");
    expectDone("--as-window own.mtd -o window.dxf");
    expectDone("window.dxf -o back.mtd");
}

TEST_F(Convert, WhatIsTooFarOffToBeExactIsSaidAloud)
{
    p.write("far.dxf", inInches +
                           "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n7531000.3\n20\n2\n11\n7531002.7\n21\n4.7\n"
                           "0\nPOINT\n10\n0.3\n20\n0\n0\nENDSEC\n0\nEOF\n");
    expectRefused("far.dxf -o in.mtd", 0, "far.dxf: moved by -7531000, -2; 1 object too far off to be exact");
}

TEST_F(Convert, DxfOfAnotherProgramByTheLetterHasNothingToConvert)
{
    p.write("foreign.dxf", foreignDxf);
    expectRefused("--as-window foreign.dxf -o in.mtd", 1, "foreign.dxf: ", "--as-window");
    EXPECT_FALSE(p.exists("in.mtd"));
}

TEST_F(Convert, OneFileThatFailsDoesNotKeepTheOthers)
{
    p.makeFolder("plots");
    p.writeDrawing("empty.mtd", {header()});
    p.write("notes.txt", "no drawing");
    for (const std::string bad : {"missing.mtd", "plots", "empty.mtd", "notes.txt"}) {
        expectRefused(bad + " house.mtd -o plots/%-out.pdf", 1, bad + ": ");
        EXPECT_THAT(p.content("plots/house-out.pdf"), StartsWith("%PDF-"));
        std::filesystem::remove(p.path("plots/house-out.pdf"));
    }
}

TEST_F(Convert, SeveralFilesGoIntoAFolder)
{
    p.makeFolder("out 100%");
    p.writeDrawing("Shed.MTD", {header(), line({0, 0}, {12, 0}, 1)});
    expectDone("house.mtd Shed.MTD --to dxf -o 'out 100%'");
    EXPECT_THAT(p.content("out 100%/house.dxf"), HasSubstr("KITCHEN"));
    EXPECT_THAT(p.content("out 100%/Shed.dxf"), HasSubstr("LINE"));
    expectDone("house.mtd -o 'out 100%/100%%.dxf'");
    EXPECT_TRUE(p.exists("out 100%/100%.dxf"));
}

TEST_F(Convert, OutputThatCannotBeWrittenIsToldOf)
{
    for (const char* name : {"house.mtd", "house.dxf", "house.png", "house.svg", "house.pdf"})
        expectRefused("house.mtd -o nowhere/" + std::string(name), 1, "house.mtd: can't be written: ", name);
}

TEST_F(Convert, OutputBeyondTheLimitOfFileSizesIsToldOf)
{
    p.makeFolder("pages");
    for (const char* words : {"-o house.dxf", "-o house.png", "-o house.svg", "-o house.pdf",
                              "-o pages --to dxf -j 2", "-o pages --to pdf -j 1"}) {
        const fake::Converted got = p.runWithin(2, "house.mtd " + std::string(words));
        EXPECT_EQ(got.status, 1) << words;
        EXPECT_THAT(got.err, HasSubstr("house.mtd: can't be written: ")) << words;
        EXPECT_EQ(std::count(got.err.begin(), got.err.end(), '\n'), 1) << got.err;
    }
    EXPECT_EQ(p.runWithin(0, "house.mtd -o - --to txt").status, 1);
}

TEST_F(Convert, DimensionThatDxfCannotHoldEndsTheFileAndIsToldOf)
{
    EntityRecord odd;
    odd.kind = Kind::radialDimension;
    odd.p1 = {0, 0};
    odd.p2 = {48, 0};
    odd.p3 = {96, 0};
    odd.s1 = 12;
    odd.style = 9;
    odd.t1 = "R4";
    p.writeDrawing("odd.mtd", {header(), line({0, 0}, {120, 24}, 1), odd});
    expectRefused("--as-window odd.mtd -o odd.dxf", 1, "odd.mtd: ", "arrow style");
    EXPECT_THAT(p.content("odd.dxf"), HasSubstr("\r\n 11\r\n10\r\n"));
    EXPECT_THAT(p.content("odd.dxf"), Not(HasSubstr("EOF")));
}

TEST_F(Convert, ObjectsPastTheTableAreToldOf)
{
    std::string dxf = inInches + "  0\nSECTION\n  2\nENTITIES\n";
    for (int i = 0; i <= 60000; ++i) dxf += "  0\nLINE\n  8\n0\n 10\n1\n 20\n1\n 11\n2\n 21\n5\n";
    p.write("big.dxf", dxf + "  0\nENDSEC\n  0\nEOF\n");
    expectRefused("big.dxf -o big.mtd", 3,
                  "big.dxf: ", "no room for 2 objects"); // a layer's name has its own
    EXPECT_EQ(p.objectsOf("big.mtd").size(), 59999U);
    expectRefused("--as-window big.dxf -o big.mtd", 1, "big.dxf: ", "60,000 objects");
    EXPECT_EQ(p.objectsOf("big.mtd").size(), 60000U);
}

TEST_F(Convert, WrongUsageIsToldOfBeforeAnythingIsWritten)
{
    p.writeDrawing("other.mtd", house);
    p.makeFolder("plots");
    struct Row {
        const char* command;
        const char* reason;
    };
    const Row rows[] = {
        {"", "no file to convert"},
        {"house.mtd", "no -o OUT"},
        {"house.mtd -o", "-o without its value"},
        {"house.mtd -o a.pdf -o b.pdf", "-o is given twice"},
        {"house.mtd -o out.gif", "out.gif"},
        {"house.mtd -o plots", "--to must name the format"},
        {"house.mtd -o out.pdf --colour", "no such option: --colour"},
        {"house.mtd -o out.png --size 0x5", "0x5"},
        {"house.mtd -o out.png --size 300", "300"},
        {"house.mtd -o out.png --size 30000x10", "30000x10"},
        {"house.mtd -o out.pdf --paper napkin", "no such paper: napkin"},
        {"house.mtd -o out.pdf --layer two", "not a layer number: two"},
        {"house.mtd -o out.pdf --scale 50", "not a scale such as 1:50: 50"},
        {"house.mtd -o out.pdf --scale 1:0", "1:0"},
        {"house.mtd -o out.pdf --scale 1:fifty", "1:fifty"},
        {"house.mtd -o out.pdf --scale", "--scale without its value"},
        {"house.mtd -o out --to gif", "no such format: gif"},
        {"house.mtd other.mtd -o out.pdf", "would be written over"},
        {"house.mtd -o plots/../house.mtd", "would be written over"},
    };
    for (const Row& row : rows) expectRefused(row.command, 2, row.reason);
    for (const char* name : {"out.gif", "out.pdf", "out.png", "out", "a.pdf", "b.pdf"})
        EXPECT_FALSE(p.exists(name)) << name;
    EXPECT_EQ(p.objectsOf("house.mtd").size(), 3U);
}

TEST_F(Convert, HelpNamesEveryOption)
{
    const fake::Converted got = p.run("--help");
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(got.err, "");
    for (const char* option : {"-o ", "--to ", "--size ", "--paper ", "--landscape ", "--scale ", "--layer ",
                               "--as-window ", "--compare ", "-j ", "--help ", "--version "})
        EXPECT_THAT(got.out, HasSubstr(option));
}

TEST_F(Convert, VersionIsPrintedAndNothingElseDone)
{
    const fake::Converted got = p.run("--version house.mtd -o out.pdf");
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(got.out, "mirtane-convert 4.00\n");
    EXPECT_FALSE(p.exists("out.pdf"));
}

TEST_F(Convert, ManualPageNamesEveryOption)
{
    std::ifstream file(std::string(MIRTANE_SOURCE_DIR) + "/docs/mirtane-convert.1");
    const std::string page{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    for (const char* option :
         {"\\-o", "\\-\\-to", "\\-\\-size", "\\-\\-paper", "\\-\\-landscape", "\\-\\-scale", "\\-\\-layer",
          "\\-\\-as\\-window", "\\-\\-compare", "\\-j", "\\-\\-help", "\\-\\-version", "EXIT STATUS"})
        EXPECT_THAT(page, HasSubstr(option));
}

TEST_F(Convert, ProgressShowsOnATerminalAlone)
{
    p.writeDrawing("shed.mtd", house);
    const fake::Converted seen = p.runOnTerminal("house.mtd shed.mtd -o %.pdf");
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.out, HasSubstr("1/2 house.mtd"));
    EXPECT_THAT(seen.out, HasSubstr("2/2 shed.mtd"));
    expectDone("house.mtd shed.mtd -o %.pdf");
}

} // namespace
} // namespace mirtane
