// What a drawing is after it went out and came in again.

#include "written_dxf.h"

#include "exchange/full_reading.h"
#include "files/drawing_text.h"
#include "tables/pens.h"

#include <cmath>
#include <fstream>

namespace mirtane {
namespace {

using namespace exchanged;

Drawing readBack(const std::string& bytes)
{
    Drawing back;
    const FullReading reading = readInFull(bytes);
    EXPECT_TRUE(reading.drawing.leftOut.empty());
    takeReading(*back.session, reading, plainWidth);
    return back;
}

std::vector<EntityRecord> drawnObjects(const Drawing& drawing)
{
    std::vector<EntityRecord> objects;
    for (std::int32_t i = 1; i < drawing.session->store.end(); ++i)
        objects.push_back(drawing.session->store.record(i));
    return objects;
}

// Angles pass through degrees; what they turn goes with them.
void forgiveAngles(EntityRecord& back, const EntityRecord& was)
{
    constexpr double little = 1e-12;
    for (double EntityRecord::*angle : {&EntityRecord::a1, &EntityRecord::a2, &EntityRecord::a3}) {
        if (std::abs(back.*angle - was.*angle) <= little * std::abs(was.*angle)) back.*angle = was.*angle;
    }
}

void expectSame(const EntityRecord& was, EntityRecord back)
{
    forgiveAngles(back, was);
    EXPECT_EQ(objectText(back), objectText(was));
}

// One whose colour is no pen comes back in the nearest.
EntityRecord inWhite(const EntityRecord& r)
{
    return fake::ofLooks(r, 0xFFFFFF, r.layer, r.style);
}

// Each of a pen of ours: other colours go to the nearest one.
void expectSameObjects(const Drawing& drawing)
{
    for (std::int32_t& color : drawing.session->store.color) {
        if (color == 0) color = 0xFFFFFF;
    }
    const std::vector<EntityRecord> was = drawnObjects(drawing);
    const std::vector<EntityRecord> back = drawnObjects(readBack(drawing.written().bytes));
    ASSERT_EQ(back.size(), was.size());
    for (std::size_t i = 0; i < was.size(); ++i) expectSame(was[i], back[i]);
}

// As the drawing commands make them: of one arrow size.
EntityRecord made(Kind kind)
{
    EntityRecord r = fake::sample(kind);
    if (kind == Kind::linearDimension || kind == Kind::radialDimension || kind == Kind::leader) r.a2 = r.s2;
    if (kind == Kind::angularDimension) r.s1 = r.s2;
    return r;
}

// Far from the origin, and no coordinate a whole number.
EntityRecord movedFar(EntityRecord r)
{
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) {
        if (r.kind == Kind::text && p != &r.p1 && p != &r.p4) continue;
        if (r.kind == Kind::ellipse && p == &r.p3) continue;
        *p = {p->x * 1.37F + 9876.543F, p->y * 0.71F - 54321.987F};
    }
    if (r.kind != Kind::arc) return r;
    return fake::ofLooks(fake::arc(r.p1, r.rad * 3.3F, r.a1 + 0.777, r.a2 + 2.3), r.color, r.layer, r.style);
}

TEST(RoundTrip, EveryKindComesBackAsItWas)
{
    for (const Kind kind : everyKind) {
        expectSameObjects({made(kind)});
        expectSameObjects({movedFar(made(kind))});
    }
}

TEST(RoundTrip, EveryPenStyleAndLayerComesBack)
{
    Drawing drawing;
    std::int16_t n = 0;
    for (const Pen& pen : pens) {
        drawing.add(fake::ofLooks(fake::line({0, 0}, {12, 7}), pen.color, n, n % 5));
        drawing.add(fake::ofLooks(fake::circle({3, 4}, 5), pens[7 - n].color, n, 0));
        drawing.add(fake::ofLooks(made(Kind::linearDimension), pen.color, 2));
        ++n;
    }
    expectSameObjects(drawing);
}

TEST(RoundTrip, EveryShapeOfAnObjectComesBack)
{
    std::vector<EntityRecord> objects;
    for (const float ratio : {0.001F, 0.3F, 1.0F, 1.7F, 40.0F, -0.5F})
        objects.push_back(fake::ellipse({100, 37}, {61, 13}, ratio));
    for (const float arrow : {1.0F, 2.0F, 3.0F, 7.0F}) {
        for (const Kind kind : {Kind::linearDimension, Kind::radialDimension, Kind::leader}) {
            EntityRecord r = made(kind);
            r.s1 = arrow;
            r.a1 = kind == Kind::linearDimension ? 53.13 : 0;
            objects.push_back(r);
        }
        EntityRecord angle = made(Kind::angularDimension);
        angle.style = static_cast<std::int16_t>(arrow); // 1 to 7
        angle.a3 = -30;
        objects.push_back(angle);
    }
    for (const double turn : {0.0, 90.0, 17.5, 270.0, 359.0}) {
        EntityRecord r = fake::text({30, 40}, "Hall", 13.7F, "Some Face");
        r.a1 = turn;
        objects.push_back(r);
    }
    for (const EntityRecord& r : objects) expectSameObjects({inWhite(r)});
}

TEST(RoundTrip, WordsComeBackLetterForLetter)
{
    for (const std::string words : {"Küche 50°", "100%", "%%d 5%%%", "a^b ^I", "\\P{x}", "\\U+0041", "€–“x”",
                                    " blanks ", "\xF0\x9F\x98\x80", "a;b\\~c", "<>"}) {
        Drawing drawing{inWhite(fake::text({1, 2}, words))};
        for (const Kind kind : {Kind::linearDimension, Kind::leader, Kind::angularDimension}) {
            EntityRecord r = made(kind);
            r.t1 = words;
            r.t2 = words;
            drawing.add(r);
        }
        expectSameObjects(drawing);
    }
    for (const Kind kind : {Kind::radialDimension, Kind::leader}) {
        EntityRecord r = made(kind);
        r.t1.clear();
        expectSameObjects({r});
    }
}

TEST(RoundTrip, JustifiedTextComesBackByThePointThatWasEntered)
{
    for (const float side : {0.0F, 1.0F, 2.0F}) {
        EntityRecord r = fake::text({30, 40}, "Hall", 24);
        r.p2.y = side;
        r.p3.x = side == 2 ? 1.0F : 0.0F; // underlined
        r.a1 = 30;
        r.p4 = {r.p1.x - side, r.p1.y + side};
        expectSameObjects({inWhite(r)});
    }
}

TEST(RoundTrip, LayersComeBackWithTheirNamesAndWhatIsHidden)
{
    Drawing drawing;
    const char* const names[] = {"Ground", "1", "a/b:c", "Größe", "walls", "Walls", "0"};
    for (std::int32_t i = 0; i < std::ssize(names); ++i) {
        drawing.layer(i).layerName = names[i];
        drawing.add(fake::ofLooks(fake::point({1, 2}), 0xFFFFFF, static_cast<std::int16_t>(i)),
                    i == 3 ? Stat::off : Stat::on);
    }
    drawing.layer(3).layerShown = layer::hidden;
    drawing.session->workLayer = 4;
    const Drawing back = readBack(drawing.written().bytes);
    for (std::int32_t i = 0; i < std::ssize(names); ++i) {
        const Layer& layer = *back.session->layerTable.find(i);
        EXPECT_EQ(layer.layerName, names[i]);
        EXPECT_EQ(layer.layerShown == layer::hidden, i == 3) << i;
        EXPECT_EQ(back.session->store.layer[EntityStore::at(i + 1)], i);
    }
    EXPECT_EQ(back.session->workLayer, 4);
    EXPECT_EQ(back.session->store.stat[4], Stat::off);
}

// An object that another program has changed is what that program made of it.
TEST(RoundTrip, WhatWasChangedMeanwhileIsReadAsItStands)
{
    std::string bytes = Drawing{fake::text({120, 240}, "Hall", 48)}.written().bytes;
    const auto replace = [&bytes](const std::string& from, const std::string& to) {
        const std::size_t at = bytes.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        bytes.replace(at, from.size(), to);
    };
    replace("AcDbText\r\n 10\r\n10.0\r\n", "AcDbText\r\n 10\r\n17.0\r\n");
    EXPECT_EQ(drawnObjects(readBack(bytes)).front().p1.x, 204);
    bytes = Drawing{fake::text({120, 240}, "Hall", 48)}.written().bytes;
    replace("  1\r\nHall\r\n", "  1\r\nRoom\r\n");
    EXPECT_EQ(drawnObjects(readBack(bytes)).front().t1, "Room");
    EXPECT_EQ(drawnObjects(readBack(bytes)).front().p1.x, 120);
}

// What is not a number of its place can be changed as well.
TEST(RoundTrip, AnotherFaceSideOrPlaneIsReadAsItStands)
{
    const std::string bytes = Drawing{fake::text({120, 240}, "Hall", 48)}.written().bytes;
    const auto with = [&bytes](const std::string& more) {
        std::string changed = bytes;
        const std::string mark = "  1\r\nHall\r\n";
        changed.insert(changed.find(mark) + mark.size(), more);
        return drawnObjects(readBack(changed)).front();
    };
    const EntityRecord was = drawnObjects(readBack(bytes)).front();
    ASSERT_EQ(was.p2.x, 48);
    EXPECT_LT(with(" 71\r\n2\r\n").p1.x, was.p1.x);                            // backward
    EXPECT_EQ(with(" 72\r\n2\r\n 11\r\n30.0\r\n 21\r\n-20.0\r\n").p1.x, 360);  // by its end
    EXPECT_LT(with("210\r\n0.0\r\n220\r\n0.0\r\n230\r\n-1.0\r\n").p1.x, -100); // seen from below
    EXPECT_NE(with("  7\r\nSTANDARD\r\n").t2, "");
    std::string otherFace = bytes;
    const std::string style = " 50\r\n0.0\r\n  7\r\n";
    const std::size_t at = otherFace.find(style);
    ASSERT_NE(at, std::string::npos);
    otherFace.insert(at + style.size(), "Standard");
    EXPECT_EQ(drawnObjects(readBack(otherFace)).front().p2.x,
              32); // of its own size again: as high as capitals
}

} // namespace
} // namespace mirtane
