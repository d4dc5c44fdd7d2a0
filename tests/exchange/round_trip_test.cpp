// What a drawing is after it went out and came in again.

#include "written_dxf.h"

#include "exchange/full_reading.h"
#include "files/drawing_text.h"
#include "tables/kinds.h"
#include "tables/pens.h"

#include <cmath>
#include <fstream>
#include <functional>

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

// Beyond the place from which drawings of others are moved.
TEST(RoundTrip, ADrawingFarFromTheOriginIsNotMoved)
{
    for (const Point far : {Point{1000000, -200000}, {-7654321, 45000.25F}, {140000, 0}, {3.3e7F, -2.1e8F}}) {
        Drawing drawing;
        for (const Kind kind : everyKind) {
            EntityRecord r = movedFar(made(kind));
            for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) {
                if (r.kind == Kind::text && p != &r.p1 && p != &r.p4) continue;
                if (r.kind == Kind::ellipse && p == &r.p3) continue;
                *p = {p->x + far.x, p->y + far.y};
            }
            if (r.kind == Kind::arc)
                r = fake::ofLooks(fake::arc(r.p1, r.rad, r.a1, r.a2), r.color, r.layer, r.style);
            drawing.add(r);
        }
        expectSameObjects(drawing);
    }
}

// What others put into it, or move, lies where they see it.
TEST(RoundTrip, ADrawingFarFromTheOriginThatOthersEditedIsNotMoved)
{
    Drawing drawing;
    for (int i = 0; i < 4; ++i) {
        const auto x = 1000000.0F + 1200.0F * static_cast<float>(i); // few
        drawing.add(fake::line({x, -200000}, {x + 600, -201000}));
    }
    std::string bytes = drawing.written().bytes;
    const std::string end = " 11\r\n83383.33333\r\n";
    ASSERT_NE(bytes.find(end), std::string::npos);
    bytes.replace(bytes.find(end), end.size(), " 11\r\n83390.123456789\r\n");
    const auto back = drawnObjects(readBack(bytes));
    ASSERT_EQ(back.size(), 4U);
    EXPECT_EQ(back[0].p1, (Point{1000000, -200000}));
    EXPECT_NEAR(back[0].p2.x, 83390.123456789 * 12, 0.05);
    EXPECT_EQ(back[3].p1, (Point{1003600, -200000}));
}

// A symbol of ours in their drawing does not make it ours.
TEST(RoundTrip, ADrawingOfOthersWithOurNameInItIsMoved)
{
    std::string bytes = Drawing{fake::line({1, 2}, {3, 4})}.written().bytes;
    const std::size_t line = bytes.rfind("AcDbLine\r\n");
    for (const auto& [from, to] :
         {std::pair<std::string, std::string>("\r\n0.08333333333\r\n", "\r\n531000.117\r\n"),
          {"\r\n0.25\r\n", "\r\n531020.734\r\n"}}) {
        const std::size_t at = bytes.find(from, line);
        ASSERT_NE(at, std::string::npos) << from;
        bytes.replace(at, from.size(), to);
    }
    EXPECT_NE(readInFull(bytes).placing.move, Vec{});
}

TEST(RoundTrip, ArcsComeBackBitForBit)
{
    const double ends[] = {0,        eighthTurn, quarterTurn,  halfTurn,        threeQuartersTurn,
                           fullTurn, 0.1,        4.5531069183, 2.6179938779914, 3.14159265358979};
    Drawing drawing;
    for (int i = 0; i < 600; ++i) {
        const double a = std::fmod(i * 0.739 + 0.1003, 6.28), b = std::fmod(i * 1.618 + 3.3, 6.28);
        const Point centre{858.0F + static_cast<float>(i), -487.25F}; // few
        for (const double end : ends) {
            drawing.add(fake::arc(centre, 725, a, i % 3 == 0 ? end : b));
            drawing.add(fake::arc(centre, 31.4F, i % 3 == 0 ? end : b, a));
        }
    }
    for (std::int32_t i = 1; i < drawing.session->store.end(); ++i)
        drawing.session->store.color[EntityStore::at(i)] = 0xFFFFFF;
    const auto was = drawnObjects(drawing), back = drawnObjects(readBack(drawing.written().bytes));
    ASSERT_EQ(back.size(), was.size());
    for (std::size_t i = 0; i < was.size(); ++i) ASSERT_EQ(objectText(back[i]), objectText(was[i]));
}

TEST(RoundTrip, ArcsOfLittleSweepStayArcs)
{
    Drawing drawing;
    for (const float radius : {12.0F, 3000.0F, 100000.0F, 2.5e6F}) {
        for (const double sweep : {0.00099, 0.0005, 0.0000173, 1e-7}) {
            for (const double start : {0.0, 0.77, 3.9, 6.2831853 - sweep / 2}) {
                const double end = std::fmod(start + sweep, fullTurn);
                const EntityRecord r = fake::arc({-4321.5F, 99000}, radius, start, end);
                drawing.add(fake::ofLooks(r, 0xFFFFFF));
            }
        }
    }
    expectSameObjects(drawing);
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

std::string repeated(const std::string& letters, int times)
{
    std::string all;
    for (; times > 0; --times) all += letters;
    return all;
}

// Some of them alike for longer than a piece of text in the file.
TEST(RoundTrip, FacesComeBackHoweverLongTheirNamesAre)
{
    Drawing drawing;
    for (const std::string& face :
         {std::string("Arial"), std::string("Franklin Gothic Medium Cond"),
          std::string("Franklin Gothic Medium Italic"), std::string("twenty letters long,"),
          std::string("twenty letters long, and one"), repeated("\u0416", 31), repeated("\u6F22\u5B57", 18),
          repeated("\U0001F58B", 25), std::string("Nimbus\\U+0041 Sans L Condensed"),
          "Ledger " + repeated("wide ", 60) + "face"}) {
        for (const Kind kind : {Kind::text, Kind::leader, Kind::linearDimension, Kind::radialDimension,
                                Kind::angularDimension}) {
            EntityRecord r = made(kind);
            r.t1 = "Words";
            r.t2 = face;
            drawing.add(r);
        }
    }
    expectSameObjects(drawing);
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

std::vector<std::string> layerNamesOf(const Drawing& drawing)
{
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < drawing.session->layerTable.layerCount; ++i)
        names.push_back(drawing.session->layerTable.find(i)->layerName);
    return names;
}

// Names that others have a meaning for, that differ in case alone, and that become the same as they are
// written: whatever is on them or not.
TEST(RoundTrip, LayersKeepTheirNumbersWhateverTheyAreCalled)
{
    const std::vector<std::string> rows[] = {
        {"1", "2", "Defpoints", "Walls"},
        {"DEFPOINTS", "0", "defpoints", "x"},
        {"\u00C4", "a", "\u00E4", "Walls"},
        {"M\u00DCLL", "m\u00FCll", "M\u00FCll", "m\u00DCLL"},
        {"\u0416\u0416", "\u0436\u0416", "\u0416_", "\u0436/"},
        {"a/\u00D6", "a:\u00F6", "A?\u00D6-2", "x"},
    };
    for (const auto& names : rows) {
        for (const bool used : {false, true}) {
            Drawing drawing;
            for (std::int32_t i = 0; i < std::ssize(names); ++i) {
                drawing.layer(i).layerName = names[static_cast<std::size_t>(i)]; // of the row
                if (used || i == 3)
                    drawing.add(fake::ofLooks(fake::point({1, 2}), 0xFFFFFF, static_cast<std::int16_t>(i)));
            }
            const Drawing back = readBack(drawing.written().bytes);
            EXPECT_EQ(layerNamesOf(back), names) << names[0] << used;
            EXPECT_EQ(drawnObjects(back).back().layer, 3) << names[0] << used;
        }
    }
}

// Of its own size, which is more than the height of its capitals.
TEST(RoundTrip, ATextThatOthersEditedKeepsItsSize)
{
    for (const float turn : {0.0F, 37.0F, 90.0F, 211.0F}) {
        for (const float size : {6.0F, 48.0F, 13.7F}) {
            EntityRecord r = fake::ofLooks(fake::text({1200, -340.5F}, "Kitchen", size), 0xFFFFFF);
            r.a1 = turn;
            const std::string bytes = Drawing{r}.written().bytes;
            std::string other = bytes;
            other.replace(other.find("  1\r\nKitchen"), 12, "  1\r\nBath");
            const EntityRecord words = drawnObjects(readBack(other)).front();
            EXPECT_EQ(words.t1, "Bath");
            EXPECT_FLOAT_EQ(words.p2.x, size) << turn;
            EXPECT_NEAR(words.p1.x, r.p1.x, 0.01) << turn << " " << size;
            EXPECT_NEAR(words.p1.y, r.p1.y, 0.01) << turn << " " << size;
            // Twice as high as they found it.
            const std::size_t at = bytes.find("AcDbText\r\n"), height = bytes.find(" 40\r\n", at) + 5;
            const std::size_t end = bytes.find('\r', height);
            other = bytes;
            other.replace(height, end - height, std::to_string(size / 9));
            EXPECT_NEAR(drawnObjects(readBack(other)).front().p2.x, 2 * size, size * 1e-4) << turn;
        }
    }
}

TEST(RoundTrip, TheTextOfALeaderThatOthersMovedKeepsItsSize)
{
    EntityRecord r = made(Kind::leader);
    r.s2 = 30;
    r.a2 = 30;
    std::string bytes = Drawing{r}.written().bytes;
    const std::size_t at = bytes.find(" 10\r\n", bytes.find("AcDbLeader")) + 5;
    bytes.replace(at, bytes.find('\r', at) - at, "-20.0");
    int texts = 0;
    for (const EntityRecord& one : drawnObjects(readBack(bytes))) {
        if (one.kind != Kind::text) continue;
        ++texts;
        EXPECT_FLOAT_EQ(one.p2.x, 30);
        EXPECT_NEAR(one.p1.x, r.p5.x, 0.01);
        EXPECT_NEAR(one.p1.y, r.p5.y, 0.01);
    }
    EXPECT_EQ(texts, 1);
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

// Has of each record, by its type, a group of it; gives what is to stand there, or nothing.
using Edit = std::function<std::optional<std::string>(const std::string& type, const WrittenPair& group)>;

std::string edited(const std::string& bytes, const Edit& edit)
{
    std::string all, type;
    for (const WrittenPair& pair : pairsOf(bytes)) {
        if (pair.code == 0) type = pair.value;
        const std::optional<std::string> value = pair.code == 0 ? pair.value : edit(type, pair);
        if (value) all += std::to_string(pair.code) + "\r\n" + *value + "\r\n";
    }
    return all;
}

std::vector<EntityRecord> annotationsTurnedBy(double degrees)
{
    std::vector<EntityRecord> objects;
    for (const Kind kind :
         {Kind::text, Kind::linearDimension, Kind::radialDimension, Kind::angularDimension, Kind::leader}) {
        EntityRecord r = made(kind);
        (kind == Kind::angularDimension ? r.a3 : r.a1) = degrees;
        if (kind == Kind::linearDimension && degrees == 0) r.p3.y = r.p4.y;
        objects.push_back(inWhite(r));
    }
    return objects;
}

// Groups that say what would be so without them.
TEST(RoundTrip, WhatOthersLeaveOutOrSayInAnotherWayIsNoChange)
{
    const auto isTurn = [](const std::string& type, const WrittenPair& group) {
        const bool isDimension = type == "DIMENSION" && (group.code == 50 || group.code == 53);
        return isDimension || (type == "TEXT" && group.code == 50) ||
               (type == "MTEXT" && (group.code == 11 || group.code == 21 || group.code == 31));
    };
    const auto withoutNoughts = [&](const std::string& type, const WrittenPair& group) {
        const bool saysNothing = group.value == "0.0" || (group.code == 11 && group.value == "1.0");
        return isTurn(type, group) && saysNothing ? std::nullopt : std::optional(group.value);
    };
    const auto byAngle = [](const std::string& type, const WrittenPair& group) -> std::optional<std::string> {
        if (type == "MTEXT" && group.code == 11) return std::nullopt;
        if (type == "MTEXT" && group.code == 21) return std::nullopt;
        if (type == "MTEXT" && group.code == 31) return "0\r\n 50\r\n36.87";
        return group.value;
    };
    const auto withoutTurns = [&](const std::string& type, const WrittenPair& group) {
        return isTurn(type, group) ? std::nullopt : std::optional(group.value);
    };
    struct Row {
        const char* what;
        double degrees;
        Edit edit;
        bool comesBack;
    };
    const Row rows[] = {
        {"level, noughts left out", 0, withoutNoughts, true},
        {"turned, noughts left out", 36.87, withoutNoughts, true},
        {"turned, a paragraph's way as its angle", 36.87, byAngle, true},
        {"turned, the turn left out", 36.87, withoutTurns, false},
    };
    for (const Row& row : rows) {
        for (const EntityRecord& r : annotationsTurnedBy(row.degrees)) {
            if (!row.comesBack && r.kind == Kind::leader) continue; // its paragraph alone is turned
            const auto back = drawnObjects(readBack(edited(Drawing{r}.written().bytes, row.edit)));
            ASSERT_FALSE(back.empty());
            const std::string kind = row.what + std::to_string(numberOf(r.kind));
            if (row.comesBack)
                EXPECT_EQ(objectText(back.front()), objectText(drawnObjects(Drawing{r}).front())) << kind;
            else
                EXPECT_NE(objectText(back.front()), objectText(drawnObjects(Drawing{r}).front())) << kind;
        }
    }
}

// Sizes of text and arrows are the style's, and of the picture that other programs draw by it.
TEST(RoundTrip, ADimensionThatOthersMadeLargerOrSmallerIsReadAsItStands)
{
    for (const EntityRecord& r : annotationsTurnedBy(0)) {
        if (r.kind == Kind::text) continue;
        for (const double factor : {3.0, 0.5, 1.02}) {
            const auto grow = [factor](const std::string& type, const WrittenPair& group) {
                const bool isText = (type == "TEXT" || type == "MTEXT") && group.code == 40;
                const bool isStyle = type == "DIMSTYLE" && (group.code == 140 || group.code == 41);
                return std::optional(isText || isStyle ? std::to_string(std::stod(group.value) * factor)
                                                       : group.value);
            };
            for (const EntityRecord& one : drawnObjects(readBack(edited(Drawing{r}.written().bytes, grow)))) {
                const bool isShown = one.kind == Kind::text || isDimension(one.kind);
                if (!isShown || one.t1.empty()) continue;
                const double size = one.kind == Kind::text ? one.p2.x : one.s2;
                const bool isOwnSize = one.kind == Kind::text && r.kind == Kind::leader;
                EXPECT_NEAR(size, r.s2 * factor * (isOwnSize ? 1 : 2.0 / 3), 1e-3)
                    << numberOf(r.kind) << " " << factor;
            }
        }
    }
}

// One of the two is enough, and so is the factor of all sizes.
TEST(RoundTrip, AnyOtherSizeOfADimensionsStyleIsAChange)
{
    for (const int code : {140, 41, 40}) {
        const auto grow = [code](const std::string& type, const WrittenPair& group) {
            return std::optional(type == "DIMSTYLE" && group.code == code ? "17.5" : group.value);
        };
        for (const Kind kind : {Kind::linearDimension, Kind::radialDimension}) {
            const EntityRecord r = inWhite(made(kind));
            const auto back = drawnObjects(readBack(edited(Drawing{r}.written().bytes, grow)));
            EXPECT_TRUE(back.size() > 1 ||
                        objectText(back.front()) != objectText(drawnObjects(Drawing{r}).front()))
                << code << " " << numberOf(kind);
        }
    }
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
    EXPECT_EQ(drawnObjects(readBack(otherFace)).front().p2.x, 48);
}

} // namespace
} // namespace mirtane
