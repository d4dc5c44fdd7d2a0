// Files that no one meant to write.

#include "dxf_samples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace mirtane {
namespace {

using namespace samples;

bool isFinite(Point p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

bool isWellFormed(Session& s)
{
    constexpr Kind deadInsert{35};
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const EntityRecord r = s.store.record(i);
        const bool finite = isFinite(r.p1) && isFinite(r.p2) && isFinite(r.p3) && isFinite(r.p4) &&
                            std::isfinite(r.rad) && std::isfinite(r.a1) && std::isfinite(r.a2);
        const bool known =
            (r.kind >= Kind::line && r.kind <= Kind::arc) || r.kind == Kind::text || r.kind == deadInsert;
        if (!finite || !known) return false;
        if (r.kind == deadInsert && s.store.stat[EntityStore::at(i)] != Stat::out) return false;
    }
    return s.store.entCount >= 1;
}

std::string sample()
{
    return lines({"  0", "SECTION", "  2", "TABLES", "  0", "TABLE", "  2", "LAYER", " 70", "     2"}) +
           lines({"  0", "LAYER", "  2", "0", " 70", "     0", "  0", "LAYER", "  2", "walls", "  0",
                  "ENDTAB"}) +
           lines({"  0", "SECTION", "  2", "BLOCKS", "  0", "BLOCK", "  2", "HC1", "  0"}) +
           line("1", "2", "3", "4") +
           lines({"ENDBLK", "  0", "ENDSEC", "  0", "SECTION", "  2", "ENTITIES"}) +
           lines({"  0", "INSERT", "  2", "HC1", " 10", "5", " 20", "6", " 50", "30", "  0"}) +
           lines({"POLYLINE", " 70", "1", "  0", "VERTEX", " 10", "0", " 20", "0", " 42", "1"}) +
           lines({"  0", "VERTEX", " 10", "4", " 20", "0", "  0", "SEQEND", "  0"}) +
           text({"1", "2", "3", "4", "5", "6", "seven", "     1"}) + arc("1", "2", "3", "4", "5") +
           circle("1", "2", "3") + tail();
}

TEST(DamagedDxf, FileCutAtEveryLengthIsTaken)
{
    const std::string whole = sample();
    Opened o(whole);
    ASSERT_TRUE(isWellFormed(o.s()));
    const std::int32_t most = o.count();
    for (std::size_t n = 0; n < whole.size(); ++n) {
        const std::vector<char> cut(whole.begin(),
                                    whole.begin() + static_cast<std::ptrdiff_t>(n)); // in whole
        o.read({cut.data(), cut.size()});
        ASSERT_TRUE(isWellFormed(o.s())) << n;
        ASSERT_LE(o.count(), most + 1) << n;
    }
}

TEST(DamagedDxf, FilesWithLinesAtRandomAreTaken)
{
    const std::string_view words[] = {
        "  0",    "  2",    "  8",      "  6",    " 62",     " 10",    " 20",  " 11",    " 21",
        " 40",    " 41",    " 42",      " 50",    " 51",     " 70",    " 72",  "  1",    "1",
        "-1",     "1e30",   "3e38",     "nan",    "-inf",    "1e-300", "LINE", "ARC",    "TEXT",
        "CIRCLE", "INSERT", "POLYLINE", "VERTEX", "SEQEND",  "LAYER",  "HC1",  "ENDBLK", "ENTITIES",
        "0.5",    "360",    "  0",      "  0",    "SECTION", "",       "5",    "1",      "999999999999"};
    std::mt19937 random(7);
    Opened o("");
    for (int round = 0; round < 300; ++round) {
        std::string file;
        for (int i = 0; i < 400; ++i) file += lines({words[random() % std::size(words)]});
        o.read(file);
        ASSERT_TRUE(isWellFormed(o.s())) << file;
        finishDxf(o.s());
    }
}

TEST(DamagedDxf, LineOfTenMegabytesIsTaken)
{
    const std::string line(10'000'000, '1');
    const std::string all[] = {line,
                               lines({"TEXT", "  1", line, "  0"}),
                               lines({"LINE", " 10", line, "  0"}),
                               lines({"LINE", "  8", line, "  0"}),
                               lines({"LAYER", "LAYER", "  2", line}),
                               lines({"HC" + line, "LINE", "  0"})};
    Opened o("");
    for (const std::string& file : all) {
        o.read(file);
        EXPECT_TRUE(isWellFormed(o.s()));
    }
}

TEST(DamagedDxf, TextIsNotLongerThanADrawingFileCanHold)
{
    Opened o(lines({"TEXT", "  1", std::string(70000, 'a'), "  0", "LINE", "  0"}));
    EXPECT_EQ(o.at(1).t1.size(), 65535U);
    EXPECT_EQ(o.count(), 3);
}

TEST(DamagedDxf, LongBlockNameIsNotKeptWholeByEachOfItsLines)
{
    const std::string name = "HC" + std::string(100'000, 'x');
    std::string file = lines({name});
    for (int i = 0; i < 1000; ++i) file += lines({"LINE", " 11", "1", "  0"});
    Opened o(file + lines({"ENDBLK", "INSERT", "  2", name, "  0"}));
    EXPECT_EQ(o.count(), 2002);
    EXPECT_EQ(o.store().dxfTag[1].size(), 255U);
}

TEST(DamagedDxf, ThreeHundredThousandObjectsAreCountedAndTheTableIsFull)
{
    const std::string one = lines({"LINE", " 10", "1", " 20", "2", " 11", "3", " 21", "4", "  0"});
    std::string file;
    for (int i = 0; i < 300'000; ++i) file += one;
    Opened o(file);
    EXPECT_EQ(o.count(), 300'001);
    EXPECT_EQ(o.at(60000).p2, (Point{36, -48}));
    finishDxf(o.s());
    EXPECT_EQ(o.s().savedCount, 300'001);
}

TEST(DamagedDxf, PolylineBeyondTheTableIsCounted)
{
    std::string file = lines({"POLYLINE", " 70", "1"});
    for (int i = 0; i < 60'010; ++i) file += lines({"VERTEX", " 10", "1", " 20", "2", " 42", "1"});
    Opened o(file + lines({"SEQEND"}));
    EXPECT_EQ(o.count(), 60'011);
}

TEST(DamagedDxf, HundredThousandLayersAreTaken)
{
    std::string file = lines({"LAYER"});
    for (int i = 0; i < 100'000; ++i) file += lines({"LAYER", "  2", "same"});
    Opened o(file + lines({"ENTITIES", "LINE", "  8", "other", "  0"}));
    EXPECT_EQ(o.s().layerTable.layerCount, 100'000);
    EXPECT_EQ(o.at(1).layer, 0); // no layer number is that large
    finishDxf(o.s());
    EXPECT_EQ(o.count(), 100'002);
}

} // namespace
} // namespace mirtane
