// A drawing keeps the letters of one code page. Others are refused where they would be stored.

#include "layer_desk.h"
#include "text/utf8.h"

#include "text/code_page.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LayerDesk;

// Of scripts, of symbols, and of what can't be seen.
constexpr const char* lost[] = {
    "\u03A9",     // Greek
    "\u0436",     // Cyrillic
    "\u5BB6",     // a house
    "\u0101",     // a with a stroke above, which is near to what is kept
    "\u2300",     // the sign of a diameter
    "\u2264",     // less or equal
    "\u0301",     // an accent by itself
    "\U0001F3E0", // beyond the first plane
};

std::string refusal(const std::string& letter)
{
    return letter + " can't be kept in a drawing";
}

// Every letter that the code page has.
std::string allKept()
{
    std::string bytes;
    for (int byte = 0xA0; byte < 0x100; ++byte) bytes += static_cast<char>(byte); // a byte
    return fromCodePage(bytes +
                        "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97"
                        "\x98\x99\x9A\x9B\x9C\x9E\x9F");
}

struct Place {
    const char* what;
    void (*begin)(LayerDesk& desk);
    std::string (*typed)(const LayerDesk& desk);
};

void selectFirst(LayerDesk& desk)
{
    desk.drawLine(100, 100, 400, 300);
    desk.s.store.setStat(1, Stat::sel);
}

std::string liveText(const LayerDesk& desk)
{
    return desk.text("Text3"_c);
}

std::string boxText(const LayerDesk& desk)
{
    return desk.text("Combo3"_c);
}

// Where words go that are typed elsewhere than in entry.
const Place places[] = {
    {"text",
     [](LayerDesk& d) {
         d.press("Command15"_c);
         d.click(1000, 1000);
     },
     liveText},
    {"leader", [](LayerDesk& d) { d.press("Command14"_c); }, liveText},
    {"edited text",
     [](LayerDesk& d) {
         d.press("Command15"_c);
         d.click(1000, 1000);
         d.type("x");
         d.enter();
         d.press("Command16"_c);
         d.click(1000, 1000);
         d.backspace();
     },
     liveText},
    {"name of a layer", [](LayerDesk& d) { d.menuRow("ly9"_c, 4); }, boxText},
    {"name of a new layer", [](LayerDesk& d) { d.press("ly11"_c); }, boxText},
};

TEST(LettersKept, OthersAreRefusedAndNamedAndTheRestIsTaken)
{
    for (const Place& place : places) {
        for (const std::string letter : lost) {
            LayerDesk desk;
            place.begin(desk);
            desk.type("a" + letter + "\xC3\xA9");
            EXPECT_EQ(place.typed(desk), "a\xC3\xA9") << place.what << " " << letter;
            EXPECT_EQ(desk.text("entry"_c), refusal(letter)) << place.what;
        }
    }
}

TEST(LettersKept, AreAllOfTheCodePageWithoutAWord)
{
    for (const Place& place : places) {
        LayerDesk desk;
        place.begin(desk);
        const std::string all = allKept();
        std::string taken;
        for (const std::string& letter : utf8Characters(all)) {
            desk.type(letter);
            taken += place.typed(desk);
            desk.backspace();
        }
        EXPECT_EQ(taken, all) << place.what;
        EXPECT_EQ(desk.text("entry"_c), "") << place.what;
    }
}

TEST(LettersKept, ThatWereShownComeBackFromTheFile)
{
    LayerDesk desk;
    desk.press("Command15"_c);
    desk.click(1000, 1000);
    std::string shown;
    for (const std::string letter : lost) desk.type("\u00D8" + letter + "\u20AC" + letter);
    shown = desk.text("Text3"_c);
    desk.enter();
    desk.nameLayer(4, "\u03A9w\u0436\u00E4\u2264nde");
    const std::string row = desk.row(4);
    desk.saveAs("house");
    desk.press("fil5"_c);
    desk.open("house");
    EXPECT_EQ(desk.slot(1).t1, shown);
    EXPECT_EQ(desk.row(4), row);
    EXPECT_EQ(shown.find('?'), std::string::npos);
}

TEST(LettersKept, NoneIsStoredWhereNoneWasTaken)
{
    LayerDesk desk;
    desk.press("Command15"_c);
    desk.click(1000, 1000);
    desk.type("\u03A9\u03A9");
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 1);
    desk.addLayer("\u5BB6");
    EXPECT_EQ(desk.s.layerTable.layerCount, 16);
}

// The names of libraries are typed in entry, where the refusal stands too.

constexpr ControlId creators[] = {"ml3"_c, "ht5"_c, "ass7"_c};

TEST(LettersKept, InANameOfALibraryOthersAreNamedAndTheNameIsTypedOverThat)
{
    for (const ControlId creator : creators) {
        for (const std::string letter : lost) {
            LayerDesk desk;
            selectFirst(desk);
            desk.press(creator);
            desk.type("ti" + letter);
            const Control& entry = desk.s.controls["entry"_c];
            EXPECT_EQ(entry.text, refusal(letter)) << creator.row().name;
            EXPECT_EQ(entry.anchor, 0);
            EXPECT_EQ(desk.focused(), "entry");
            desk.enter(); // what is said is no name
            EXPECT_EQ(entry.text, refusal(letter)) << creator.row().name;
            EXPECT_EQ(desk.s.stepNo, 0);
            desk.type("tiles");
            EXPECT_EQ(entry.text, "tiles");
            desk.enter();
            EXPECT_EQ(desk.s.stepNo, 1) << creator.row().name;
        }
    }
}

TEST(LettersKept, AtTheBeginningOfANameOthersAreNamedToo)
{
    for (const ControlId creator : creators) {
        LayerDesk desk;
        selectFirst(desk);
        desk.press(creator);
        desk.type("\u03A9");
        EXPECT_EQ(desk.text("entry"_c), refusal("\u03A9"));
        desk.type("\u00E9t\u00E9");
        EXPECT_EQ(desk.text("entry"_c), "\u00E9t\u00E9");
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 1) << creator.row().name;
    }
}

// -- what comes in one go --

TEST(LettersKept, OfAPastedTextAllButTheOthersAreTaken)
{
    for (const Place& place : places) {
        LayerDesk desk;
        place.begin(desk);
        desk.shell.type(U"a \u03A9b \u5BB6c\u00E9");
        EXPECT_EQ(place.typed(desk), "a b c\u00E9") << place.what;
        EXPECT_EQ(desk.text("entry"_c), refusal("\u5BB6")) << place.what;
    }
}

TEST(LettersKept, APastedNameWithOthersIsTypedAnew)
{
    for (const ControlId creator : creators) {
        LayerDesk desk;
        selectFirst(desk);
        desk.press(creator);
        desk.shell.type(U"roo\u03A9fs");
        EXPECT_EQ(desk.text("entry"_c), refusal("\u03A9"));
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 0);
        desk.shell.type(U"roofs \u00E9t\u00E9");
        EXPECT_EQ(desk.text("entry"_c), "roofs \u00E9t\u00E9");
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 1);
    }
}

TEST(LettersKept, NamesOfFilesMayHaveAny)
{
    LayerDesk desk;
    desk.drawLine(100, 100, 400, 300);
    desk.saveAs("\u5BB6 \u03A9");
    EXPECT_TRUE(desk.disk.files.contains("/home/user/\u5BB6 \u03A9.mtd"));
    EXPECT_EQ(desk.text("entry"_c), "");
}

// -- fonts --

TEST(LettersKept, OfTheNameOfAFontAreThoseOfTheDrawingToo)
{
    for (const ControlId menu : {"tk5"_c, "tk14"_c}) {
        LayerDesk desk;
        desk.press("Command15"_c);
        desk.click(1000, 1000);
        desk.type("words");
        desk.enter();
        desk.s.store.setStat(1, Stat::sel);
        desk.press(menu);
        desk.s.controls["List1"_c].rows = {"Serif", "\u660E\u671D"};
        desk.pick(1);
        desk.shell.giveFocus("List1"_c);
        desk.enter();
        EXPECT_EQ(desk.text("entry"_c), refusal("\u660E"));
        EXPECT_EQ(desk.s.textFont, "Garamond");
        EXPECT_EQ(desk.s.store.entCount, 2);
        EXPECT_EQ(desk.slot(1).t2, "Garamond");
        desk.pick(0);
        desk.shell.giveFocus("List1"_c);
        desk.enter();
        EXPECT_EQ(menu == "tk5"_c ? desk.s.textFont : desk.slot(2).t2, "Serif");
    }
}

TEST(LettersKept, OfTheFontInTheSettingsAreThoseOfTheDrawingToo)
{
    const std::pair<const char*, const char*> rows[] = {
        {"\u660E\u671D", "Garamond"}, {"\u00C9toile", "\u00C9toile"}, {"Mono \u03A9", "Garamond"}};
    for (const auto& [stored, taken] : rows) {
        const std::map<std::string, std::string> settings = {{"tnam", stored}};
        EXPECT_EQ(fake::Desk(settings).s.textFont, taken) << stored;
    }
}

} // namespace
} // namespace mirtane
