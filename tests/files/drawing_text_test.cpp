#include "files/drawing_text.h"

#include "records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace mirtane {
namespace {

std::string textOf(const std::vector<EntityRecord>& records, std::optional<std::int16_t> layer = {})
{
    const auto session = std::make_unique<Session>();
    resetLayers(session->layerTable);
    session->layerTable.find(3)->layerName = "Wall \"north\"";
    for (const EntityRecord& r : records) {
        session->store.setRecord(session->store.entCount, r);
        session->store.setStat(session->store.entCount++, Stat::on);
    }
    return drawingText(*session, layer);
}

TEST(DrawingText, EachKindHasALineWithAllThatShows)
{
    struct Row {
        EntityRecord r;
        const char* text;
    };
    EntityRecord turned = fake::sampleText();
    turned.p2.y = 2;
    turned.a1 = -12.5;
    turned.t1 = "a\\\"b\"\n\xFFü";
    const Row rows[] = {
        {fake::line({0.1F, -0.0F}, {1e9F, 1 / 3.0F}),
         "line layer=0 colour=#000000 style=solid from=0.1,0 to=1e+09,0.33333334"},
        {fake::sample(Kind::circle), "circle layer=3 colour=#00FF00 style=dash centre=100,100 radius=30"},
        {fake::ofLooks(fake::arc({2, 3}, 4, 0.25, 6), 0x0080FF, -7, 4),
         "arc layer=-7 colour=#FF8000 style=dash-dot-dot centre=2,3 radius=4 from=0.25 to=6"},
        {fake::sample(Kind::ellipse),
         "ellipse layer=3 colour=#00FF00 style=dash centre=100,100 axis-end=140,100 ratio=0.5"},
        {fake::sample(Kind::point), "point layer=3 colour=#00FF00 at=7,9"},
        {turned, "text layer=3 colour=#00FF00 at=50,50 side=centre underlined=yes size=10 turned=-12.5 "
                 "font=\"Garamond\" text=\"a\\\\\\\"b\\\"\\x0A\\xFFü\""},
        {fake::sample(Kind::linearDimension),
         "linear-dimension layer=3 colour=#00FF00 p1=0,0 p2=100,0 p3=100,40 p4=0,40 words-at=30,30 arrow=2 "
         "arrow-size=8 size=10 turned=0 font=\"Garamond\" text=\"9\""},
        {fake::sample(Kind::leader),
         "leader layer=3 colour=#00FF00 p1=0,0 p2=10,10 p3=20,10 words-at=25,10 arrow=2 arrow-size=8 size=10 "
         "turned=0 font=\"Garamond\" text=\"note\""},
    };
    for (const Row& row : rows) EXPECT_EQ(objectText(row.r), row.text);
    EXPECT_EQ(objectText(fake::record(headerKind)), "");
}

TEST(DrawingText, EveryFieldThatShowsChangesTheLine)
{
    for (const Kind kind : everyKind) {
        const EntityRecord sample = fake::sample(kind);
        EntityRecord other = sample;
        ++other.layer;
        EXPECT_NE(objectText(other), objectText(sample));
        other = sample;
        other.p1.x += 0.001F;
        EXPECT_NE(objectText(other), objectText(sample));
        other = sample;
        other.t1 += " ";
        EXPECT_EQ(objectText(other) != objectText(sample), kind >= Kind::text);
    }
}

TEST(DrawingText, OrderOfTheObjectsIsNoneOfTheDrawing)
{
    std::vector<EntityRecord> records;
    for (const Kind kind : everyKind) records.push_back(fake::sample(kind));
    records.push_back(fake::ofLooks(fake::line({3, 4}, {5, 6}), 0, 12));
    records.push_back(fake::ofLooks(fake::line({3, 4}, {5, 6}), 0, 2));
    const std::string text = textOf(records);
    EXPECT_EQ(std::ranges::count(text, '\n'), 14);
    std::ranges::reverse(records);
    EXPECT_EQ(textOf(records), text);
    EXPECT_TRUE(text.starts_with("drawing text-size=48 "));
    EXPECT_NE(text.find("\nlayer number=3 name=\"Wall \\\"north\\\"\"\nline layer=2 "), std::string::npos);
    EXPECT_LT(text.find(" layer=3 "), text.find(" layer=12 "));
}

TEST(DrawingText, OneLayerIsAllThatIsAskedFor)
{
    const std::string text =
        textOf({fake::sample(Kind::circle), fake::ofLooks(fake::point({1, 2}), 0, 5)}, std::int16_t{5});
    EXPECT_NE(text.find("point"), std::string::npos);
    EXPECT_EQ(text.find("circle"), std::string::npos);
}

} // namespace
} // namespace mirtane
