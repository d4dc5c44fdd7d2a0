#include "exchange/not_read.h"

#include "dxf_text.h"
#include "records.h"

#include <memory>

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
            store.setRecord(store.entCount++, one);
        }
        const NotRead missing = notRead(r, store);
        EXPECT_EQ(missing.isNothing() ? "" : sentenceOf(missing), row.sentence);
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
