#include "events.h"

#include "app/actions.h"
#include "disk_contents.h"
#include "model/record_moves.h"
#include "words.h"

namespace mirtane::soak {
namespace {

// What the doings below work with.
struct Turn {
    Stage& stage;
    Hand& hand;
    Random& random;
    Manner manner;

    Session& s() { return stage.s; }
    Point point() { return somePoint(stage, random); }
    bool isUp(ControlId form) { return stage.s.controls[form].visible; }
};

constexpr ControlId drawButtons[] = {
    "Command1"_c,  "Command2"_c,  "Command3"_c,  "Command4"_c,  "Command5"_c,  "Command6"_c,  "Command7"_c,
    "Command8"_c,  "Command9"_c,  "Command10"_c, "Command11"_c, "Command12"_c, "Command13"_c, "Command14"_c,
    "Command15"_c, "Command16"_c, "ut3"_c,       "ut4"_c,       "ht3"_c,       "ass3"_c,      "dim11"_c,
};

constexpr ControlId snapButtons[] = {
    "Command35"_c, "Command36"_c, "Command37"_c, "Command38"_c, "Command39"_c, "Command40"_c, "Command21"_c,
};

constexpr ControlId selectButtons[] = {"Command17"_c, "Command18"_c, "Command19"_c, "Command20"_c};

constexpr ControlId boxes[] = {
    "angle"_c, "snapper"_c, "textrot"_c, "hatrot"_c, "assrot"_c, "Combo3"_c, "entry"_c, "frmprintset.Text1"_c,
};

constexpr ControlId lists[] = {
    "List1"_c, "frmfilter.List1"_c, "frmfile.File1"_c, "frmfile.Dir1"_c, "frmfile.Drive1"_c,
};

constexpr ControlId fileMenus[] = {
    "fil4"_c, "fil7"_c, "fil9"_c, "dd2"_c, "dd4"_c, "ass10"_c, "ht8"_c, "ml6"_c,
};

// Exit is left to a doing of its own, which is rare.
std::vector<ControlId> everyButton()
{
    std::vector<ControlId> found;
    for (std::size_t i = 0; i < controlCount; ++i) {
        const ControlId id = controlTable[i].id;
        if (actionOf(id) != nullptr && id != "fil14"_c) found.push_back(id);
    }
    return found;
}

void pressAny(Turn& t)
{
    static const std::vector<ControlId> buttons = everyButton();
    const ControlId button = t.random.among(buttons);
    if (button != "redu"_c || t.manner == Manner::wild) t.hand.press(button);
}

void moveSomewhere(Turn& t)
{
    t.hand.move(t.point());
}

void clickSomewhere(Turn& t)
{
    t.hand.click(t.point());
}

void otherButton(Turn& t)
{
    t.hand.down(t.random.oneIn(4) ? 4 : 2, t.point());
}

// Drags as a hand with a trembling pointer does.
void drag(Turn& t)
{
    t.hand.down(1, t.point());
    for (int i = t.random.within(1, 4); i > 0; --i) t.hand.move(t.point());
    t.hand.down(1, t.point());
}

void pressSnap(Turn& t)
{
    t.hand.press(t.random.among(snapButtons));
    t.hand.click(t.point());
}

void typeNumber(Turn& t)
{
    t.hand.type(someNumber(t.random));
    if (!t.random.oneIn(8)) t.hand.enter();
}

void typeText(Turn& t)
{
    t.hand.type(someText(t.random));
    if (!t.random.oneIn(4)) t.hand.enter();
}

void editKeys(Turn& t)
{
    for (int i = t.random.within(1, 5); i > 0; --i) t.hand.backspace();
    if (t.random.oneIn(2)) t.hand.enter();
}

void fillBox(Turn& t)
{
    t.hand.put(t.random.among(boxes), t.random.oneIn(3) ? someText(t.random) : someNumber(t.random));
    if (!t.random.oneIn(4)) t.hand.enter();
}

void pickRow(Turn& t, ControlId list)
{
    const std::vector<std::string>& rows = t.s().controls[list].rows;
    if (!rows.empty()) t.hand.pick(list, static_cast<int>(t.random.below(rows.size()))); // a few rows
}

void pickAny(Turn& t)
{
    pickRow(t, t.random.among(lists));
}

// A tame user redoes at the most what was just undone.
void undoSome(Turn& t)
{
    const int undone = t.random.within(1, 4);
    for (int i = 0; i < undone; ++i) t.hand.press("undu"_c);
    for (int i = t.random.within(0, undone); i > 0; --i) t.hand.press("redu"_c);
}

void redoSome(Turn& t)
{
    if (t.manner == Manner::tame) return;
    for (int i = t.random.within(1, 4); i > 0; --i) t.hand.press("redu"_c);
}

void useKeys(Turn& t)
{
    constexpr int codes[] = {16, 17, 37, 38, 39, 40, 65};
    const int code = t.random.among(codes);
    t.hand.holdKey(code);
    if (t.random.oneIn(2)) t.hand.click(t.point());
    if (!t.random.oneIn(8)) t.hand.letGoKey(code);
}

void turnWheel(Turn& t)
{
    t.hand.wheel(t.random.within(-4, 4), t.point());
}

void setScale(Turn& t)
{
    const Point corner = t.point();
    const auto width = static_cast<float>(t.random.within(1, 5000)); // small whole numbers
    t.hand.scale({corner.x, corner.y, width, width * surfaceHeight / surfaceWidth});
}

// Back to the window of the start, so that a session does not end far from its drawing.
void resetScale(Turn& t)
{
    t.hand.scale({0, 0, 4 * surfaceWidth, 4 * surfaceHeight});
}

void resize(Turn& t)
{
    t.hand.resize(t.random.within(1, 2 * surfaceWidth), t.random.within(1, 2 * surfaceHeight));
}

void zoom(Turn& t)
{
    constexpr ControlId buttons[] = {"Command42"_c, "Command43"_c, "Command44"_c};
    t.hand.press(t.random.among(buttons));
}

// A function and as many points and lengths as it may want.
void draw(Turn& t)
{
    t.hand.press(t.random.among(drawButtons));
    if (t.random.oneIn(2)) pickRow(t, "List1"_c);
    for (int i = t.random.within(1, 6); i > 0; --i) {
        if (t.random.oneIn(5)) moveSomewhere(t);
        if (t.random.oneIn(8)) typeNumber(t);
        if (t.random.oneIn(12)) t.hand.press(t.random.among(snapButtons));
        clickSomewhere(t);
    }
    if (t.random.oneIn(3)) typeText(t);
    if (t.random.oneIn(2)) t.hand.cancel(t.point());
}

void select(Turn& t)
{
    const ControlId button = t.random.among(selectButtons);
    t.hand.press(button);
    const bool byWindow = button == "Command18"_c || button == "Command19"_c;
    const Scale view = t.stage.pic1.getScale();
    if (byWindow && t.random.oneIn(3)) {
        t.hand.click({view.left, view.top});
        t.hand.click({view.left + view.width, view.top + view.height});
    } else {
        clickSomewhere(t);
        clickSomewhere(t);
    }
}

// A selection, an edit of it, and what the edit may ask for.
void edit(Turn& t)
{
    select(t);
    if (t.random.oneIn(2)) t.hand.cancel(t.point());
    if (t.isUp("frmedit"_c) && t.random.oneIn(2)) {
        static const std::vector<ControlId> buttons = everyButton();
        for (const ControlId id : buttons)
            if (formOf(id) == "frmedit"_c && t.random.oneIn(10)) t.hand.press(id);
    } else {
        pickRow(t, "List1"_c);
    }
    for (int i = t.random.within(0, 5); i > 0; --i) t.random.oneIn(3) ? typeNumber(t) : clickSomewhere(t);
}

void useLibrary(Turn& t)
{
    constexpr ControlId menus[] = {
        "ml3"_c,  "ml9"_c,  "ml5"_c,  "ht5"_c,   "ht10"_c, "ht7"_c,
        "ht11"_c, "ass7"_c, "ass9"_c, "ass21"_c, "ass5"_c,
    };
    if (t.random.oneIn(2)) select(t);
    t.hand.press(t.random.among(menus));
    if (t.random.oneIn(2)) typeText(t);
    if (t.random.oneIn(2)) pickRow(t, "List1"_c);
    for (int i = t.random.within(0, 3); i > 0; --i) clickSomewhere(t);
}

void answerFileDialog(Turn& t)
{
    constexpr ControlId buttons[] = {"frmfile.Command1"_c, "frmfile.Command1"_c, "frmfile.Command2"_c};
    if (t.random.oneIn(12)) pickRow(t, "frmfile.Dir1"_c);
    if (t.random.oneIn(3)) {
        t.hand.put("frmfile.Text1"_c, someText(t.random));
    } else {
        pickRow(t, "frmfile.File1"_c);
    }
    t.stage.disk.refusesWrites = t.random.oneIn(20);
    t.random.oneIn(2) ? t.hand.enter() : t.hand.press(t.random.among(buttons));
    t.stage.disk.refusesWrites = false;
}

void useFile(Turn& t)
{
    if (t.random.oneIn(4)) select(t);
    t.hand.press(t.random.among(fileMenus));
    if (t.isUp("frmfile"_c)) answerFileDialog(t);
    if (t.isUp("frmfile"_c)) answerFileDialog(t);
}

void useForm(Turn& t)
{
    constexpr ControlId forms[] = {"frmfile"_c, "frmfilter"_c, "frmedit"_c, "frmprintset"_c, "frmhelp"_c};
    const ControlId form = t.random.among(forms);
    if (!t.isUp(form)) return;
    if (form == "frmfile"_c && !t.random.oneIn(4)) return answerFileDialog(t);
    static const std::vector<ControlId> buttons = everyButton();
    for (const ControlId id : buttons)
        if (formOf(id) == form && t.random.oneIn(8)) t.hand.press(id);
    if (t.isUp(form) && t.random.oneIn(4)) t.hand.closeForm(form);
}

void print(Turn& t)
{
    select(t);
    t.hand.press("picset"_c);
    if (t.random.oneIn(2)) t.hand.put("frmprintset.Text1"_c, someNumber(t.random));
    if (t.random.oneIn(2)) t.hand.press("frmprintset.Command1"_c);
}

void giveFocus(Turn& t)
{
    constexpr ControlId holders[] = {"pic1"_c,  "List1"_c,    "Combo3"_c,
                                     "angle"_c, "Command1"_c, "frmfile.File1"_c};
    t.hand.giveFocus(t.random.among(holders));
}

void closeDrawing(Turn& t)
{
    t.hand.press("fil5"_c);
    if (t.isUp("frmfile"_c)) t.hand.press("frmfile.Command2"_c);
}

void exitProgram(Turn& t)
{
    t.random.oneIn(2) ? t.hand.press("fil14"_c) : t.hand.closeForm("frmMain"_c);
}

void rest(Turn& t)
{
    t.hand.rest();
}

bool isCrowded(const Stage& stage)
{
    return stage.s.drawingName == crowded;
}

// What fills the table and the log fastest.
void moveAll(Turn& t)
{
    if (!isCrowded(t.stage)) return;
    t.hand.press("Command19"_c);
    t.hand.scale({-4000, -4000, 8000, 8000});
    t.hand.click({-4000, -4000});
    t.hand.click({3999, 3999});
    t.hand.cancel(t.point());
    t.hand.press(ids::editMove);
    t.hand.click({0, 0});
    t.hand.click({1, -1});
}

struct Doing {
    std::size_t weight;
    void (*run)(Turn& turn);
};

constexpr Doing doings[] = {
    {120, draw},     {60, clickSomewhere}, {30, moveSomewhere}, {25, otherButton}, {25, drag},
    {25, pressSnap}, {20, typeNumber},     {10, typeText},      {5, editKeys},     {12, fillBox},
    {25, pickAny},   {12, undoSome},       {8, redoSome},       {10, useKeys},     {4, turnWheel},
    {1, setScale},   {4, resetScale},      {1, resize},         {6, zoom},         {20, select},
    {60, edit},      {20, useLibrary},     {15, useFile},       {15, useForm},     {6, print},
    {5, giveFocus},  {40, pressAny},       {1, closeDrawing},   {15, rest},        {60, moveAll},
};

} // namespace

void openCrowded(Hand& hand)
{
    hand.press("fil4"_c);
    hand.put("frmfile.Text1"_c, crowded);
    hand.enter();
}

void doSomething(Stage& stage, Hand& hand, Random& random, Manner manner)
{
    constexpr std::int32_t manySlots = 3000; // each redraw passes over all of them
    constexpr std::size_t doingsBetweenExits = 3000;
    Turn turn{stage, hand, random, manner};
    if (!isCrowded(stage) && stage.s.store.entCount > manySlots && random.oneIn(10))
        return closeDrawing(turn);
    if (random.oneIn(doingsBetweenExits)) return exitProgram(turn);
    random.weighted(doings).run(turn);
}

} // namespace mirtane::soak
