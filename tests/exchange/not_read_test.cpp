#include "exchange/not_read.h"

#include "dxf_text.h"
#include "records.h"

#include <iterator>
#include <memory>
#include <utility>

namespace mirtane {
namespace {

using namespace fake;

TEST(NotRead, CountsWhatDoesNotStandInItsPlace)
{
    const FullReading r =
        readOf(entities(dxf({{0, "CIRCLE"},
                             {10, "4"},
                             {20, "5"},
                             {40, "1"},
                             {0, "CIRCLE"},
                             {10, "4"},
                             {20, "5"},
                             {40, "2"}}) +
                        dxf({{0, "LINE"},
                             {10, "1"},
                             {20, "-1"},
                             {11, "3"},
                             {21, "7"},
                             {0, "LINE"},
                             {10, "1"},
                             {20, "-1"},
                             {11, "3"}}) +
                        dxf({{0, "TEXT"}, {40, "1"}, {1, "here"}, {0, "TEXT"}, {40, "1"}, {1, "not here"}}) +
                        dxf({{0, "ARC"}, {10, "9"}, {20, "9"}, {40, "2"}, {50, "0"}, {51, "10"}}) +
                        dxf({{0, "POINT"}, {10, "1"}})));
    const auto session = std::make_unique<Session>();
    EntityStore& store = session->store;
    const auto put = [&store](const EntityRecord& one, Stat stat = Stat::on) {
        store.setStat(store.entCount, stat);
        store.setRecord(store.entCount++, one);
    };
    put(fake::circle({48, -60}, 24));
    put(fake::circle({48, -60}, 12), Stat::out);
    put(fake::line({36, -84}, {12, 12})); // the other way round
    put(fake::text({500, 500}, "here"));
    const NotRead missing = notRead(r, store);
    EXPECT_EQ(sentenceOf(missing),
              "This file holds 1 circle, 1 arc, 1 line, 1 text, 1 point that were not read.");
    EXPECT_FALSE(missing.isNothing());
}

TEST(NotRead, CountsWhatTheFileDoesNotShow)
{
    const FullReading r = readOf(entities(dxf({{0, "CIRCLE"}, {10, "4"}, {20, "5"}, {40, "1"}})));
    struct Row {
        std::vector<EntityRecord> store;
        const char* sentence;
    };
    const Row rows[] = {
        {{fake::circle({48, -60}, 12)}, ""},
        {{fake::circle({48, -60}, 12), fake::line({0, 0}, {1, 1})},
         "1 object that was read is not what this file shows."},
        {{fake::text({1, 2}, "of a block"), fake::circle({48, -60}, 12), fake::circle({7, -60}, 12)},
         "2 objects that were read are not what this file shows."},
        {{fake::line({0, 0}, {1, 1})}, "This file holds 1 circle that was not read."},
    };
    for (const Row& row : rows) {
        const auto session = std::make_unique<Session>();
        EntityStore& store = session->store;
        for (const EntityRecord& one : row.store) {
            store.setStat(store.entCount, Stat::on);
            store.setRecord(store.entCount++, ofLooks(one, 0xFFFFFF));
        }
        const NotRead missing = notRead(r, store);
        EXPECT_EQ(missing.isNothing() ? "" : sentenceOf(missing), row.sentence);
    }
}

// Two lines and a text as the letter has them, of which a file says something else besides where they are.
const std::string lineOfFile = dxf({{0, "LINE"}, {8, "A"}, {10, "100"}, {20, "-1"}, {11, "3"}, {21, "7"}});
const std::string textOfFile = dxf({{0, "TEXT"}, {8, "A"}, {10, "50"}, {20, "60"}, {40, "2"}, {1, "here"}});

std::string header(const std::string& units)
{
    return section("HEADER", dxf({{9, "$INSUNITS"}, {70, units}}));
}

std::string layerA(const std::string& flags, const std::string& color)
{
    return section("TABLES", dxf({{0, "TABLE"}, {2, "LAYER"}, {0, "LAYER"}, {2, "A"}, {70, flags}}) +
                                 dxf({{62, color}, {0, "ENDTAB"}}));
}

TEST(NotRead, CountsWhatLooksOtherwiseOrStandsElsewhere)
{
    const std::string one = "1 object that was read is not what this file shows.";
    const std::string two = "2 objects that were read are not what this file shows.";
    struct Row {
        const char* what;
        std::string file;
        std::string sentence;
    };
    const auto line = [](std::initializer_list<Pair> more) {
        return entities(lineOfFile + dxf(more) + textOfFile);
    };
    const auto text = [](std::initializer_list<Pair> more) {
        return entities(lineOfFile + textOfFile + dxf(more));
    };
    const Row rows[] = {
        {"the same", header("1") + entities(lineOfFile + textOfFile), ""},
        {"no units, which are inches", entities(lineOfFile + textOfFile), ""},
        {"millimetres", header("4") + entities(lineOfFile + textOfFile), two},
        {"metres", header("6") + entities(lineOfFile + textOfFile), two},
        {"feet", header("2") + entities(lineOfFile + textOfFile), two},
        {"a layer that is off", layerA("0", "-7") + entities(lineOfFile + textOfFile), two},
        {"a layer that is frozen", layerA("1", "7") + entities(lineOfFile + textOfFile), two},
        {"a pen", line({{62, "5"}}), one},
        {"the pen of a layer", layerA("0", "3") + entities(lineOfFile + textOfFile), two},
        {"a line style", line({{6, "CENTER"}}), one},
        {"a text by its end", text({{72, "2"}, {11, "500"}, {21, "100"}}), one},
        {"a text elsewhere",
         entities(lineOfFile + dxf({{0, "TEXT"}, {10, "50"}, {20, "90"}, {40, "2"}, {1, "here"}})), one},
        {"a text of another size",
         entities(lineOfFile + dxf({{0, "TEXT"}, {10, "50"}, {20, "59"}, {40, "3"}, {1, "here"}})), one},
    };
    const auto session = std::make_unique<Session>();
    EntityStore& store = session->store;
    for (const EntityRecord& r : {fake::line({1200, 12}, {36, -84}), fake::text({600, -744}, "here", 24)}) {
        store.setStat(store.entCount, Stat::on);
        store.setRecord(store.entCount++, fake::ofLooks(r, 0xFFFFFF));
    }
    for (const Row& row : rows) {
        const NotRead missing = notRead(readOf(row.file), store);
        EXPECT_EQ(missing.isNothing() ? "" : sentenceOf(missing), row.sentence) << row.what;
    }
}

// All of it lies elsewhere then.
TEST(NotRead, CountsADrawingThatIsMoved)
{
    const auto session = std::make_unique<Session>();
    session->store.setStat(1, Stat::on);
    session->store.setRecord(session->store.entCount++,
                             fake::ofLooks(fake::line({6372000, 2184000}, {6372240, 2183880}), 0xFFFFFF));
    const FullReading far = readOf(
        entities(dxf({{0, "LINE"}, {10, "531000"}, {20, "-182000"}, {11, "531020"}, {21, "-181990"}})));
    EXPECT_EQ(sentenceOf(notRead(far, session->store)),
              "1 object that was read is not what this file shows.");
}

// Sheets of ruled lines, whose ends or middles have a coordinate in common, are compared in no time.
TEST(NotRead, ComparesAFullTableOfLinesFromOneEdge)
{
    constexpr int count = 30'000;
    const Point steps[] = {{0, 0.5F}, {0.5F, 0}, {0.3F, 0.4F}};
    const Point ways[] = {{90, 0}, {0, -70}, {80, -60}};
    for (std::size_t sort = 0; sort < std::size(steps); ++sort) {
        FullReading r;
        r.placing = Placing{};
        const auto session = std::make_unique<Session>();
        EntityStore& store = session->store;
        for (int i = 0; i < count; ++i) {
            const auto n = static_cast<float>(i); // of thousands
            const Point from{7 + n * steps[sort].x, 5 + n * steps[sort].y};
            const Point to{from.x + ways[sort].x, from.y + ways[sort].y};
            r.drawing.objects.push_back({.kind = Kind::line, .p = {Vec{from.x, from.y}, Vec{to.x, to.y}}});
            EntityRecord made = recordOf(r.drawing.objects.back(), Placing{});
            if (i % 3 == 1) std::swap(made.p1, made.p2);
            if (i % 1000 == 2) made.p1.y += 40;
            store.setStat(store.entCount, Stat::on);
            store.setRecord(store.entCount++, made);
        }
        const NotRead missing = notRead(r, store);
        EXPECT_EQ(missing.counts[3], count / 1000) << sort;
        EXPECT_EQ(missing.others, count / 1000) << sort;
    }
}

TEST(NotRead, SentenceOfOneOfManyAndOfThousands)
{
    EXPECT_EQ(sentenceOf({{14, 35, 0, 0, 9}}),
              "This file holds 14 circles, 35 arcs, 9 texts that were not read.");
    EXPECT_EQ(sentenceOf({{1}}), "This file holds 1 circle that was not read.");
    EXPECT_EQ(
        sentenceOf({{0, 0, 2, 1234, 0, 3, 1, 2}}),
        "This file holds 2 ellipses, 1,234 lines, 3 points, 1 dimension, 2 leaders that were not read.");
}

TEST(NotRead, NothingIsMissingFromTheSameDrawing)
{
    const FullReading r =
        readOf(entities(dxf({{0, "LINE"}, {10, "1"}, {20, "-1"}, {11, "3"}, {21, "7"}}) +
                        dxf({{0, "ARC"}, {10, "9000"}, {20, "9"}, {40, "2"}, {50, "300"}, {51, "10"}})));
    const auto session = std::make_unique<Session>();
    takeReading(*session, r, [](const EntityRecord&) { return 0.0F; });
    EXPECT_TRUE(notRead(r, session->store).isNothing());
}

} // namespace
} // namespace mirtane
