#include "snap/window_selection.h"

#include "click_desk.h"

namespace mirtane {
namespace {

using fake::ClickDesk;

bool isSelected(ClickDesk& desk, bool filtered = false)
{
    selectInWindow(desk.s, filtered);
    return desk.s.store.stat[1] == Stat::sel;
}

void placeWindow(ClickDesk& desk, Point a, Point b)
{
    desk.s.window1 = a;
    desk.s.window2 = b;
}

TEST(WindowSelection, EachKindMustLieInByItsOwnPoints)
{
    struct Row {
        const char* what;
        EntityRecord object;
        bool selected; // by the window from (100, 100) to (300, 300)
    };
    const Point in{200, 200};
    const Point out{500, 500};
    const auto pairs = [](Kind kind, Point a, Point b, Point c, Point d, Point e) {
        return fake::record(kind, a, b, c, d, e);
    };
    const auto circle = [](Point centre, float radius) { return fake::circle(centre, radius); };
    const auto ellipse = [](Point axisEnd, Point centre, float ratio) {
        return fake::ellipse(axisEnd, centre, ratio);
    };
    const Row rows[] = {
        {"line within", pairs(Kind::line, in, {210, 210}, out, out, out), true},
        {"line from edge to edge", pairs(Kind::line, {100, 100}, {300, 300}, out, out, out), true},
        {"line half out", pairs(Kind::line, in, {300.5f, 200}, in, in, in), false},
        {"line that crosses", pairs(Kind::line, {50, 200}, {350, 200}, in, in, in), false},
        {"circle that fits", circle({200, 200}, 100), true},
        {"circle a little too large", circle({200, 200}, 100.5f), false},
        {"circle out on the right", circle({250, 200}, 60), false},
        {"circle out on the left", circle({150, 200}, 60), false},
        {"circle out above", circle({200, 150}, 60), false},
        {"circle out below", circle({200, 250}, 60), false},
        {"arc, its centre outside", pairs(Kind::arc, out, in, in, in, out), true},
        {"arc, its start outside", pairs(Kind::arc, in, out, in, in, in), false},
        {"arc, its end outside", pairs(Kind::arc, in, in, out, in, in), false},
        {"arc, its middle outside", pairs(Kind::arc, in, in, in, out, in), false},
        {"ellipse that fits", ellipse({300, 200}, {200, 200}, 1), true},
        {"its stored end outside", ellipse({301, 200}, {200, 200}, 0.5f), false},
        {"its mirrored end outside", ellipse({280, 200}, {185, 200}, 0.5f), false},
        {"its second axis outside", ellipse({250, 200}, {200, 200}, 2.1f), false},
        {"its second axis outside below only", ellipse({250, 260}, {200, 260}, 1), false},
        {"its second axis outside above only", ellipse({250, 140}, {200, 140}, 1), false},
        {"point", pairs(Kind::point, in, out, out, out, out), true},
        {"point outside", pairs(Kind::point, out, in, in, in, in), false},
        {"text where it was entered", pairs(Kind::text, in, out, out, out, out), true},
        {"text entered outside", pairs(Kind::text, out, in, in, in, in), false},
        {"linear dimension", pairs(Kind::linearDimension, out, out, in, in, in), true},
        {"linear dimension, p3 outside", pairs(Kind::linearDimension, in, in, out, in, in), false},
        {"linear dimension, p4 outside", pairs(Kind::linearDimension, in, in, in, out, in), false},
        {"linear dimension, text outside", pairs(Kind::linearDimension, in, in, in, in, out), false},
        {"radial dimension", pairs(Kind::radialDimension, out, in, out, out, in), true},
        {"radial dimension, elbow outside", pairs(Kind::radialDimension, in, out, in, in, in), false},
        {"radial dimension, text outside", pairs(Kind::radialDimension, in, in, in, in, out), false},
        {"leader", pairs(Kind::leader, out, in, in, out, out), true},
        {"leader, shoulder outside", pairs(Kind::leader, in, out, in, in, in), false},
        {"leader, end of shoulder outside", pairs(Kind::leader, in, in, out, in, in), false},
        {"angular dimension", pairs(Kind::angularDimension, out, out, out, in, in), true},
        {"angular dimension, arc outside", pairs(Kind::angularDimension, in, in, in, out, in), false},
        {"angular dimension, text outside", pairs(Kind::angularDimension, in, in, in, in, out), false},
        {"piece of an associate", pairs(Kind{11}, in, in, in, in, in), false},
        {"header", pairs(headerKind, in, in, in, in, in), false},
        {"name of a layer", pairs(layerNameKind, in, in, in, in, in), false},
        {"kinds of an import", pairs(Kind{30}, in, in, in, in, in), false},
        {"and the other", pairs(Kind{35}, in, in, in, in, in), false},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        placeWindow(desk, {100, 100}, {300, 300});
        EXPECT_EQ(isSelected(desk), row.selected) << row.what;
    }
}

TEST(WindowSelection, AnyTwoOppositeCornersMakeTheSameWindow)
{
    const Point corners[][2] = {{{100, 100}, {300, 300}},
                                {{300, 300}, {100, 100}},
                                {{100, 300}, {300, 100}},
                                {{300, 100}, {100, 300}}};
    for (const auto& pair : corners) {
        ClickDesk desk;
        desk.line({110, 120}, {290, 280});
        desk.line({110, 120}, {310, 280});
        placeWindow(desk, pair[0], pair[1]);
        EXPECT_TRUE(isSelected(desk));
        EXPECT_EQ(desk.s.store.stat[2], Stat::on);
        EXPECT_EQ(desk.s.window1, (Point{100, 100}));
        EXPECT_EQ(desk.s.window2, (Point{300, 300}));
    }
}

TEST(WindowSelection, OnlyWhatIsOnIsMarkedAndMarksStay)
{
    ClickDesk desk;
    const Stat before[] = {Stat::on, Stat::sel, Stat::off, Stat::out};
    const Stat after[] = {Stat::sel, Stat::sel, Stat::off, Stat::out};
    for (const Stat stat : before) desk.point({200, 200}, stat);
    desk.point({900, 200}, Stat::sel);
    desk.s.store.p5[1] = {7, 8};
    placeWindow(desk, {100, 100}, {300, 300});
    selectInWindow(desk.s, false);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(desk.s.store.stat[i + 1], after[i]) << i;
    EXPECT_EQ(desk.s.store.stat[5], Stat::sel) << "outside, marked before";
    EXPECT_EQ(desk.s.store.p5[1], (Point{7, 8})) << "no click is remembered";
}

TEST(WindowSelection, TheFilter)
{
    struct Row {
        const char* what;
        FilterValues filter;
        Kind kind;
        bool selected; // an object of layer 3, style 2, yellow
    };
    const FilterValues none;
    const auto with = [](std::int16_t layer, std::int16_t kind, std::int16_t style, std::int32_t color) {
        FilterValues f;
        f.filterLayer = layer;
        f.filterKind = kind;
        f.filterStyle = style;
        f.filterColor = color;
        return f;
    };
    const std::int32_t yellow = 0x00FFFF;
    const Row rows[] = {
        {"no criterion", none, Kind::point, true},
        {"its layer", with(3, -1, -1, 0), Kind::point, true},
        {"another layer", with(4, -1, -1, 0), Kind::point, false},
        {"layer 0 is a layer", with(0, -1, -1, 0), Kind::point, false},
        {"its kind", with(-1, 5, -1, 0), Kind::point, true},
        {"another kind", with(-1, 6, -1, 0), Kind::point, false},
        {"dimensions: linear", with(-1, 7, -1, 0), Kind::linearDimension, true},
        {"dimensions: radial", with(-1, 7, -1, 0), Kind::radialDimension, true},
        {"dimensions: leader", with(-1, 7, -1, 0), Kind::leader, true},
        {"dimensions: angular", with(-1, 7, -1, 0), Kind::angularDimension, true},
        {"dimensions: no text", with(-1, 7, -1, 0), Kind::text, false},
        {"dimensions: no name of a layer", with(-1, 7, -1, 0), layerNameKind, false},
        {"its style", with(-1, -1, 2, 0), Kind::point, true},
        {"another style", with(-1, -1, 1, 0), Kind::point, false},
        {"solid is a style", with(-1, -1, 0, 0), Kind::point, false},
        {"its colour", with(-1, -1, -1, yellow), Kind::point, true},
        {"another colour", with(-1, -1, -1, 0xFFFFFF), Kind::point, false},
        {"the surface's black is no criterion", with(-1, -1, -1, 0x000000), Kind::point, true},
        {"all four", with(3, 5, 2, yellow), Kind::point, true},
        {"all but the last", with(3, 5, 1, yellow), Kind::point, false},
    };
    for (const Row& row : rows) {
        for (const bool filtered : {true, false}) {
            ClickDesk desk;
            const Point in{200, 200};
            desk.add(fake::ofLooks(fake::record(row.kind, in, in, in, in, in), yellow, 3, 2));
            static_cast<FilterValues&>(desk.s) = row.filter; // to its part that holds the filter
            placeWindow(desk, {100, 100}, {300, 300});
            const bool wanted = row.kind <= Kind::angularDimension && (row.selected || !filtered);
            EXPECT_EQ(isSelected(desk, filtered), wanted) << row.what << (filtered ? "" : ", not filtered");
        }
    }
}

TEST(WindowSelection, SelectionsAddUp)
{
    ClickDesk desk;
    desk.point({200, 200});
    desk.point({600, 200});
    placeWindow(desk, {100, 100}, {300, 300});
    selectInWindow(desk.s, false);
    placeWindow(desk, {500, 100}, {700, 300});
    selectInWindow(desk.s, false);
    EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 2);
}

} // namespace
} // namespace mirtane
