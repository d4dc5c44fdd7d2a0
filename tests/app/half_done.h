#pragma once

// The program at every moment that leaves something half done, and what is to be seen once it has ended.

#include "desk.h"

#include "render/redraw.h"
#include "render/view.h"

#include <gtest/gtest.h>

#include <string_view>

namespace mirtane::fake {

// What a surface shows, from the operations on it: the marks of the image, and those of the clean picture.
class Screen {
  public:
    void take(const Ops& ops)
    {
        for (const std::string& op : ops) take(op);
    }
    const Ops& marks() const { return image_; }

  private:
    void take(const std::string& op)
    {
        if (op == "clear") image_.clear();
        if (op == "snapshot") clean_ = image_;
        if (op == "restoreSnapshot") image_ = clean_;
        if (op == "clearSnapshot") clean_.clear();
        const Ops mark = fake::marks({op});
        image_.insert(image_.end(), mark.begin(), mark.end());
    }

    Ops image_, clean_;
};

// A drawing with unsaved work, one name in each library and a row in its layer, ortho turned off by the user.
struct Office : Desk {
    Office()
    {
        press("freecurs"_c);
        for (float y = 1000; y < 1300; y += 100) drawLine(1000, y, 1400, y + 37);
        for (const ControlId menu : {"ass7"_c, "ht5"_c, "ml3"_c}) create(menu);
        placeText();
        shell.redraw();
        lookAtScreen();
    }

    void select(std::int32_t slot) { s.store.setStat(slot, Stat::sel); }
    void create(ControlId menu)
    {
        select(1);
        press(menu);
        type("one");
        enter();
        click(1000, 1000);
        if (menu == "ht5"_c) click(1120, 1040);
        cancel();
    }
    void placeText()
    {
        press("Command15"_c);
        click(2000, 2000);
        type("words");
        enter();
        cancel();
        textSlot = s.store.entCount - 1;
        press("Command1"_c);
    }
    void row(int number) { shell.clickRow("List1"_c, number); }
    void makeSaved() { s.savedCount = s.store.entCount; }
    void lookAtScreen() { screen.take(ops()); }
    // What the surface would show were everything painted anew.
    Ops repainted()
    {
        shell.redraw();
        Screen anew;
        anew.take(ops());
        return anew.marks();
    }

    std::int32_t textSlot = 0;
    Screen screen;
};

struct Moment {
    const char* what;
    void (*begin)(Office& office);
    std::string_view function = "Line"; // that is there afterwards
    bool marksAnObject = false;         // which is then no selection to be saved
};

inline void startEdit(Office& office, ControlId button)
{
    office.press("Command19"_c);
    office.select(2);
    office.cancel();
    office.press(button);
}

inline void chooseFromList(Office& office, ControlId menu)
{
    office.press(menu);
    office.row(0);
}

inline void startCreating(Office& office, ControlId menu)
{
    office.select(2);
    office.press(menu);
    office.type("two");
    office.enter();
}

inline constexpr Moment moments[] = {
    {"nothing", [](Office&) {}},
    {"a line",
     [](Office& office) {
         office.click(300, 410);
         office.click(700, 433);
         office.move(911, 215);
     }},
    {"a construction line without a point",
     [](Office& office) {
         office.click(300, 410);
         office.move(500, 433);
         office.press("blank"_c);
     }},
    {"a construction line under way",
     [](Office& office) {
         office.press("blank"_c);
         office.click(300, 410);
         office.move(555, 433);
     }},
    {"a window of the selection",
     [](Office& office) {
         office.press("Command19"_c);
         office.click(300, 410);
         office.move(911, 815);
     },
     "Window Select"},
    {"a window within a construction line",
     [](Office& office) {
         office.press("Command18"_c);
         office.click(300, 410);
         office.press("blank"_c);
     },
     "Window Select Filtered"},
    {"a zoom",
     [](Office& office) {
         office.press("Command43"_c);
         office.click(-300, 410);
         office.move(911, 815);
     }},
    {"a zoom in the middle of a circle",
     [](Office& office) {
         office.press("Command2"_c);
         office.click(2300, 410);
         office.move(2500, 410);
         office.press("Command43"_c);
         office.click(300, 410);
         office.move(911, 815);
     },
     "2pt. Circle"},
    {"an ellipse's second axis",
     [](Office& office) {
         office.press("Command7"_c);
         office.click(300, 410);
         office.click(700, 633);
         office.move(911, 215);
     },
     "Ellipse"},
    {"an ellipse's second axis within a construction line",
     [](Office& office) {
         office.press("Command7"_c);
         office.click(300, 410);
         office.click(700, 633);
         office.press("blank"_c);
         office.click(900, 433);
         office.move(911, 215);
     },
     "Ellipse"},
    {"a text",
     [](Office& office) {
         office.press("Command15"_c);
         office.click(300, 410);
         office.type("half");
     },
     "Place Text"},
    {"a leader",
     [](Office& office) {
         office.press("Command14"_c);
         office.type("note");
         office.enter();
         office.click(300, 410);
         office.move(911, 215);
     },
     "Leader"},
    {"a text under edit",
     [](Office& office) {
         office.press("Command16"_c);
         office.click(2000, 2000);
         office.type("!");
     },
     "Text Edit", true},
    {"a text under edit within a construction line",
     [](Office& office) {
         office.press("Command16"_c);
         office.click(2000, 2000);
         office.press("blank"_c);
         office.click(900, 433);
     },
     "Text Edit", true},
    {"multiple lines",
     [](Office& office) {
         chooseFromList(office, "Command10"_c);
         office.click(300, 410);
         office.click(700, 433);
         office.move(911, 215);
     },
     "Multiple Lines"},
    {"the boundary of a hatch",
     [](Office& office) {
         chooseFromList(office, "ht3"_c);
         office.click(300, 410);
         office.click(700, 433);
         office.click(650, 833);
         office.move(911, 215);
     },
     "Place Hatch"},
    {"the boundary of an area",
     [](Office& office) {
         office.press("ut4"_c);
         office.click(300, 410);
         office.click(700, 433);
         office.move(911, 215);
     }},
    {"an associate",
     [](Office& office) {
         chooseFromList(office, "ass3"_c);
         office.move(911, 215);
     },
     "Place Associate"},
    {"a move",
     [](Office& office) {
         startEdit(office, "frmedit.Command8"_c);
         office.click(300, 410);
         office.move(911, 215);
     },
     "Window Select"},
    {"a mirror line",
     [](Office& office) {
         startEdit(office, "frmedit.Command5"_c);
         office.click(300, 410);
         office.move(911, 215);
     },
     "Window Select"},
    {"a change of properties", [](Office& office) { startEdit(office, "frmedit.Command10"_c); },
     "Window Select"},
    {"the radius of a fillet", [](Office& office) { startEdit(office, "frmedit.Command11"_c); },
     "Window Select"},
    {"a new hatch",
     [](Office& office) {
         startCreating(office, "ht5"_c);
         office.click(300, 410);
         office.move(911, 215);
     }},
    {"new multiple lines", [](Office& office) { startCreating(office, "ml3"_c); }},
    {"a new associate", [](Office& office) { startCreating(office, "ass7"_c); }},
    {"a text size", [](Office& office) { office.press("tk3"_c); }},
    {"a number half typed",
     [](Office& office) {
         office.click(300, 410);
         office.move(911, 215);
         office.type("12");
     }},
};

inline constexpr ControlId confirm = "frmfile.Command1"_c;

inline void expectNothingBegun(const Office& office, const std::string& where)
{
    const Session& s = office.s;
    EXPECT_EQ(s.stepNo, 0) << where;
    EXPECT_EQ(s.windowStep, 0) << where;
    EXPECT_EQ(s.textLength, 0) << where;
    EXPECT_EQ(s.boundaryCount, 0) << where;
    EXPECT_EQ(s.editPending, 0) << where;
    EXPECT_NE(s.workAngle, selectionFollowsPointer) << where;
    EXPECT_FALSE(zoomWindowIsOn(s.controls)) << where;
    EXPECT_FALSE(office.visible("frmedit"_c)) << where;
    EXPECT_FALSE(office.visible("frmfilter"_c)) << where;
    EXPECT_EQ(office.caption("blank"_c), "Blank/Off") << where;
    EXPECT_EQ(office.caption("freecurs"_c), "Ortho/Off") << where;
    EXPECT_EQ(s.orthoAngle, 0) << where;
    EXPECT_NE(office.focused(), "entry") << where; // what is typed next has no function to go to
}

inline void expectNothingLeftOnThePicture(Office& office, const std::string& where)
{
    office.lookAtScreen();
    const Ops shown = office.screen.marks();
    EXPECT_EQ(shown, office.repainted()) << where;
}

inline void expectAClickStoresNothing(Office& office, const std::string& where)
{
    const std::int32_t before = office.s.store.entCount;
    office.click(300, 2410);
    EXPECT_EQ(office.s.store.entCount, before) << where;
}

} // namespace mirtane::fake
