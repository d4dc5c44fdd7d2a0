#include "desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using testing::ElementsAre;

struct Criteria {
    int layer = -1;
    int kind = -1;
    int color = 0;
    int style = -1;

    friend bool operator==(const Criteria&, const Criteria&) = default;
};

void PrintTo(const Criteria& c, std::ostream* out)
{
    *out << "layer " << c.layer << " kind " << c.kind << " colour " << c.color << " style " << c.style;
}

class FilterDialog : public testing::Test {
  protected:
    Criteria criteria() const
    {
        return {desk.s.filterLayer, desk.s.filterKind, desk.s.filterColor, desk.s.filterStyle};
    }

    std::vector<std::string> texts() const
    {
        std::vector<std::string> all;
        for (const ControlId box : fake::filterBoxes) all.push_back(desk.text(box));
        return all;
    }

    // An object that lies about (100, 100), with another layer, colour or style than the next of its kind.
    std::int32_t add(Kind kind, std::int16_t layer = 1, std::int32_t color = 0xFFFFFF, std::int16_t style = 0)
    {
        const Point third = kind == Kind::ellipse ? Point{0.5F, 0} : Point{105, 105};
        EntityRecord r = fake::record(kind, {100, 100}, {110, 100}, third, {106, 106}, {107, 107});
        r.rad = 10;
        return desk.add(fake::ofLooks(r, color, layer, style));
    }

    // "1 3" where a window round everything selects slots 1 and 3; they are on again afterwards.
    std::string windowSelects(ControlId starter = "Command18"_c)
    {
        desk.press(starter);
        desk.click(0, 0);
        desk.click(1000, 1000);
        std::string slots;
        for (std::int32_t i = 1; i < desk.s.store.entCount; ++i) {
            if (desk.stat(i) == Stat::sel) slots += (slots.empty() ? "" : " ") + std::to_string(i);
        }
        changeStat(desk.s.store, Stat::sel, Stat::on);
        return slots;
    }

    void choose(std::initializer_list<ControlId> menus)
    {
        desk.press("flt1"_c);
        for (const ControlId menu : menus) desk.press(menu);
        desk.press("frmfilter.Command1"_c);
    }

    Desk desk;
};

TEST_F(FilterDialog, ComesUpWithItsTitleTheLayersAndNoCriterion)
{
    desk.press("ly11"_c); // the list of the main window is another one
    desk.drawLine(100, 100, 400, 100);
    desk.press("flt1"_c);
    EXPECT_TRUE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.caption("frmfilter"_c), "Filter Settings");
    EXPECT_THAT(texts(), ElementsAre("All", "All", "All", "All"));
    EXPECT_EQ(criteria(), Criteria{});
    const std::vector<std::string>& rows = desk.s.controls["frmfilter.List1"_c].rows;
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_EQ(rows[0], "No :On :0");
    EXPECT_EQ(rows[1], "Yes:Wk :1");
    EXPECT_EQ(rows[15], "No :On :15");
}

TEST_F(FilterDialog, EachMenuSetsItsCriterionAndItsBoxAlone)
{
    struct Row {
        ControlId menu;
        Criteria criteria;
        std::vector<std::string> texts;
    };
    const Row rows[] = {
        {"frmfilter.ob5"_c, {.kind = 1}, {"All", "Line", "All", "All"}},
        {"frmfilter.ob6"_c, {.kind = 2}, {"All", "Circle", "All", "All"}},
        {"frmfilter.ob7"_c, {.kind = 3}, {"All", "Arc", "All", "All"}},
        {"frmfilter.ob8"_c, {.kind = 4}, {"All", "Ellipse", "All", "All"}},
        {"frmfilter.ob9"_c, {.kind = 5}, {"All", "Point", "All", "All"}},
        {"frmfilter.ob10"_c, {.kind = 6}, {"All", "Text", "All", "All"}},
        {"frmfilter.ob11"_c, {.kind = 7}, {"All", "Dimension", "All", "All"}},
        {"frmfilter.cu5"_c, {.color = 0xFF0000}, {"All", "All", "1:Blue", "All"}},
        {"frmfilter.cu6"_c, {.color = 0x00FF00}, {"All", "All", "2:Green", "All"}},
        {"frmfilter.cu7"_c, {.color = 0xFFFF00}, {"All", "All", "3:Aqua", "All"}},
        {"frmfilter.cu8"_c, {.color = 0x0000FF}, {"All", "All", "4:Red", "All"}},
        {"frmfilter.cu9"_c, {.color = 0xFF00FF}, {"All", "All", "5:Purple", "All"}},
        {"frmfilter.cu10"_c, {.color = 0x0080FF}, {"All", "All", "6:Brown", "All"}},
        {"frmfilter.cu11"_c, {.color = 0x00FFFF}, {"All", "All", "7:Yellow", "All"}},
        {"frmfilter.cu12"_c, {.color = 0xFFFFFF}, {"All", "All", "8:White", "All"}},
        {"frmfilter.st5"_c, {.style = 0}, {"All", "All", "All", "Solid"}},
        {"frmfilter.st6"_c, {.style = 1}, {"All", "All", "All", "Dash"}},
        {"frmfilter.st7"_c, {.style = 2}, {"All", "All", "All", "Dot"}},
        {"frmfilter.st8"_c, {.style = 3}, {"All", "All", "All", "Dash-Dot"}},
        {"frmfilter.st9"_c, {.style = 4}, {"All", "All", "All", "Dash-Dot-Dot"}},
    };
    desk.press("flt1"_c);
    for (const Row& row : rows) {
        desk.press("frmfilter.rst1"_c);
        desk.press(row.menu);
        EXPECT_EQ(criteria(), row.criteria) << row.menu.row().caption;
        EXPECT_EQ(texts(), row.texts);
        if (row.criteria.color != 0) {
            EXPECT_EQ(desk.s.controls["frmfilter.Text3"_c].color, row.criteria.color);
        }
    }
}

TEST_F(FilterDialog, ARowOfTheListIsTheLayer)
{
    desk.press("flt1"_c);
    desk.shell.clickRow("frmfilter.List1"_c, 3);
    EXPECT_EQ(desk.text("frmfilter.Text1"_c), "No :On :3");
    EXPECT_EQ(criteria(), Criteria{.layer = 3});
    desk.shell.clickRow("frmfilter.List1"_c, 0);
    EXPECT_EQ(desk.text("frmfilter.Text1"_c), "No :On :0");
    EXPECT_EQ(criteria(), Criteria{.layer = 0});
}

TEST_F(FilterDialog, AClickOnABoxShowsAllButTheCriterionStillFilters)
{
    add(Kind::line, 3, 0x0000FF, 2);
    add(Kind::line, 1, 0x0000FF, 2);
    add(Kind::circle, 3, 0x0000FF, 2);
    add(Kind::line, 3, 0xFFFFFF, 2);
    add(Kind::line, 3, 0x0000FF, 1);
    desk.press("flt1"_c);
    desk.shell.clickRow("frmfilter.List1"_c, 3);
    desk.press("frmfilter.ob5"_c);
    desk.press("frmfilter.cu8"_c);
    desk.press("frmfilter.st7"_c);
    for (const ControlId box : fake::filterBoxes) {
        desk.press(box);
        EXPECT_EQ(desk.text(box), "All");
        EXPECT_EQ(desk.focused(), "frmfilter.List1");
    }
    EXPECT_EQ(desk.s.controls["frmfilter.Text3"_c].color, desk.s.controls["frmfilter.List1"_c].color);
    EXPECT_EQ(criteria(), (Criteria{3, 1, 0x0000FF, 2}));
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(windowSelects(), "1");
}

TEST_F(FilterDialog, ResetForgetsAllFour)
{
    add(Kind::line, 3, 0x0000FF, 2);
    add(Kind::text, 4);
    desk.press("flt1"_c);
    desk.shell.clickRow("frmfilter.List1"_c, 7);
    for (const ControlId menu : {"frmfilter.ob9"_c, "frmfilter.cu5"_c, "frmfilter.st9"_c}) desk.press(menu);
    desk.press("frmfilter.rst1"_c);
    EXPECT_EQ(criteria(), Criteria{});
    EXPECT_THAT(texts(), ElementsAre("All", "All", "All", "All"));
    EXPECT_TRUE(desk.visible("frmfilter"_c));
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(windowSelects(), "1 2");
}

TEST_F(FilterDialog, AcceptHidesItAndKeepsTheCriteriaInForce)
{
    choose({"frmfilter.ob6"_c, "frmfilter.cu8"_c});
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(criteria(), (Criteria{.kind = 2, .color = 0x0000FF}));
    desk.press("Command1"_c);
    desk.press("flt1"_c);
    EXPECT_THAT(texts(), ElementsAre("All", "Circle", "4:Red", "All"));
    EXPECT_EQ(criteria(), (Criteria{.kind = 2, .color = 0x0000FF}));
}

TEST_F(FilterDialog, CancelAndTheCloseBoxForgetTheCriteria)
{
    for (const bool byBox : {false, true}) {
        choose({"frmfilter.ob6"_c});
        desk.press("flt1"_c);
        desk.press("frmfilter.st6"_c);
        byBox ? desk.shell.closeForm("frmfilter"_c) : desk.press("frmfilter.Command2"_c);
        EXPECT_FALSE(desk.visible("frmfilter"_c));
        EXPECT_EQ(criteria(), Criteria{});
        EXPECT_THAT(texts(), ElementsAre("All", "All", "All", "All"));
    }
}

TEST_F(FilterDialog, CancelLeavesSelectionAndFunctionAlone)
{
    desk.drawLine(100, 100, 400, 100);
    desk.press("Command20"_c);
    desk.click(200, 100);
    desk.press("flt1"_c);
    desk.press("frmfilter.Command2"_c);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.s.curFunc, "Object Select");
}

TEST_F(FilterDialog, AnyClickOnTheDrawingHidesItAndKeepsTheCriteria)
{
    for (const int button : {1, 2, 4}) {
        desk.press("flt1"_c);
        desk.press("frmfilter.ob6"_c);
        desk.down(button, 2000, 2000);
        EXPECT_FALSE(desk.visible("frmfilter"_c)) << button;
        EXPECT_EQ(criteria(), Criteria{.kind = 2}) << button;
    }
}

TEST_F(FilterDialog, DoesNotDisturbTheRunningFunction)
{
    desk.click(100, 100);
    choose({"frmfilter.ob6"_c});
    EXPECT_EQ(desk.s.stepNo, 1);
    desk.click(400, 100);
    EXPECT_EQ(desk.slot(1).p2, (Point{400, 100}));
}

TEST_F(FilterDialog, OnlyTheFilteredWindowLooksAtIt)
{
    add(Kind::line);
    add(Kind::circle);
    choose({"frmfilter.ob6"_c});
    EXPECT_EQ(windowSelects("Command19"_c), "1 2");
    EXPECT_EQ(windowSelects("Command18"_c), "2");
}

TEST_F(FilterDialog, DimensionIsEveryDimensionAndLeaderAndNothingThatIsNeverPainted)
{
    for (const Kind kind : everyKind) add(kind);
    for (const Kind kind : {Kind{25}, Kind{30}, Kind{35}}) add(kind);
    choose({"frmfilter.ob11"_c});
    EXPECT_EQ(windowSelects(), "7 8 9 10");
}

TEST_F(FilterDialog, EachKindAlone)
{
    for (const Kind kind :
         {Kind::line, Kind::circle, Kind::arc, Kind::ellipse, Kind::point, Kind::text, Kind::linearDimension})
        add(kind);
    const ControlId menus[] = {"frmfilter.ob5"_c, "frmfilter.ob6"_c, "frmfilter.ob7"_c,
                               "frmfilter.ob8"_c, "frmfilter.ob9"_c, "frmfilter.ob10"_c};
    int kind = 1;
    for (const ControlId menu : menus) {
        choose({menu});
        EXPECT_EQ(windowSelects(), std::to_string(kind++));
    }
}

TEST_F(FilterDialog, WhiteFiltersAndBlackIsNoCriterion)
{
    add(Kind::line, 1, 0xFFFFFF);
    add(Kind::line, 1, 0x000000);
    add(Kind::line, 1, 0x0000FF);
    choose({"frmfilter.cu12"_c});
    EXPECT_EQ(windowSelects(), "1");
    choose({"frmfilter.rst1"_c});
    EXPECT_EQ(windowSelects(), "1 2 3");
}

TEST_F(FilterDialog, SolidAndLayer0AreCriteriaThoughTheyAreZero)
{
    add(Kind::line, 0, 0xFFFFFF, 1);
    add(Kind::line, 1, 0xFFFFFF, 0);
    choose({"frmfilter.st5"_c});
    EXPECT_EQ(windowSelects(), "2");
    choose({"frmfilter.rst1"_c});
    desk.press("flt1"_c);
    desk.shell.clickRow("frmfilter.List1"_c, 0);
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(windowSelects(), "1");
}

TEST_F(FilterDialog, AFilterThatMatchesNothingSelectsNothingSilently)
{
    add(Kind::line);
    choose({"frmfilter.ob8"_c});
    EXPECT_EQ(windowSelects(), "");
    EXPECT_EQ(desk.text("entry"_c), "");
    desk.cancel();
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
}

TEST_F(FilterDialog, AMarkThatTheFilterWouldNotGiveStays)
{
    add(Kind::line);
    add(Kind::circle);
    desk.s.store.setStat(1, Stat::sel);
    desk.s.curFunc = desk.s.baseFunc = desk.s.lastFunc = "Object Select";
    choose({"frmfilter.ob6"_c});
    EXPECT_EQ(windowSelects(), "1 2");
}

TEST_F(FilterDialog, ShowsTheLayersAsTheyStandEachTimeItComesUp)
{
    desk.press("flt1"_c);
    desk.press("frmfilter.Command1"_c);
    desk.drawLine(100, 100, 400, 100);
    desk.press("flt1"_c);
    EXPECT_EQ(desk.s.controls["frmfilter.List1"_c].rows[1], "Yes:Wk :1");
}

TEST_F(FilterDialog, ChangeAndTheFilterDoNotShareWhatIsChosen)
{
    desk.drawLine(100, 100, 400, 100);
    choose({"frmfilter.cu8"_c});
    desk.press("Command17"_c);
    desk.shell.clickRow("List1"_c, 10);
    EXPECT_EQ(desk.caption("frmfilter"_c), "Change Properties");
    EXPECT_THAT(texts(), ElementsAre("All", "All", "All", "All"));
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.slot(2).color, 0xFFFFFF);
    EXPECT_EQ(criteria(), Criteria{});
}

TEST_F(FilterDialog, DoesNotTakeTheFormFromAChangeUnderWay)
{
    desk.drawLine(100, 100, 400, 100);
    desk.press("Command17"_c);
    desk.shell.clickRow("List1"_c, 10);
    desk.press("flt1"_c);
    EXPECT_EQ(desk.caption("frmfilter"_c), "Change Properties");
}

TEST_F(FilterDialog, KeysGoToTheDrawingOnceAClickThereHasTakenTheFormAway)
{
    desk.press("flt1"_c);
    desk.shell.clickRow("frmfilter.List1"_c, 1);
    ASSERT_EQ(desk.focused(), "frmfilter.List1");
    desk.click(100, 100);
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.focused(), "pic1");
}

} // namespace
} // namespace mirtane
