// Every command and question of mirtane-play, what it does and what it refuses.

#include "theatre.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Theatre;

// Fonts and images need an application of the toolkit, and none of these tests a screen.
class Toolkit : public testing::Environment {
  public:
    void SetUp() override
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QGuiApplication>(count_, words_);
    }
    void TearDown() override { application_.reset(); }

  private:
    int count_ = 1;
    char name_[12] = "test_play";
    char* words_[2] = {name_, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

const testing::Environment* const toolkit = testing::AddGlobalTestEnvironment(new Toolkit); // gtest owns it

#define EXPECT_PLAYS(theatre, lines) EXPECT_EQ((theatre).playAll(lines), "")

// -- doing --

TEST(PlayCommands, MoveMovesThePointer)
{
    Theatre t;
    EXPECT_PLAYS(t, "press freecurs\ndown 1 10 20\nmove 30.5 -40\nexpect get session.pickLast == [30.5,-40]");
    EXPECT_EQ(t.play("move 1 2"), "");
}

TEST(PlayCommands, DownPressesAButton)
{
    Theatre t;
    EXPECT_PLAYS(t, "down 1 10 20\nexpect get session.stepNo == 1\ndown 4 30 40\n"
                    "expect get session.pickFirst == [30,40]\ndown 2 0 0\nexpect get session.stepNo == 0");
    for (const char* line : {"down 3 0 0", "down 0 0 0", "down x 0 0", "down 1 0", "down 1 0 0 0", "down"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, ClickMovesAndPressesTheLeftButton)
{
    Theatre t;
    EXPECT_PLAYS(t, "click 10 20\nexpect get session.stepNo == 1\nclick 10 520\n"
                    "expect get session.orthoSector == 4\nexpect slot 1 == {\"x2\":10,\"y2\":520}");
}

TEST(PlayCommands, CancelPressesTheRightButton)
{
    Theatre t;
    EXPECT_PLAYS(t,
                 "click 10 20\ncancel 5 6\nexpect get session.stepNo == 0\nexpect get session.ptA == [5,6]");
}

TEST(PlayCommands, KeydownAndKeyupHoldAndLetGo)
{
    Theatre t;
    EXPECT_PLAYS(
        t, "keydown 16\nexpect get session.snapKey == 1\nkeydown 17\nexpect get session.snapKey == 2\n"
           "keyup 17\nexpect get session.snapKey == 0\nkeydown 37\nexpect get session.viewLeft == -480");
    EXPECT_EQ(t.statusOf("keydown"), 2);
    EXPECT_EQ(t.statusOf("keyup shift"), 2);
}

TEST(PlayCommands, TypePressesAKeyACharacterWhereTheFocusIsAtThatMoment)
{
    Theatre t;
    EXPECT_PLAYS(t, "click 10 20\ntype 12'6\nexpect focused == \"entry\"\nexpect get entry.text == \"12'6\"");
    EXPECT_EQ(t.statusOf("type"), 0); // no text, no key
    EXPECT_PLAYS(t, "type \"3\"\nexpect get entry.text == \"12'63\"");
    EXPECT_EQ(t.statusOf("type \"3"), 2);
}

TEST(PlayCommands, EnterAndBackspaceArePressedWhereTheFocusIs)
{
    Theatre t;
    EXPECT_PLAYS(t, "click 10 20\nmove 500 20\ntype 12\nbackspace\nexpect get entry.text == \"1\"\nenter\n"
                    "expect slot 1 == {\"x2\":22,\"y2\":20}\nexpect focused == \"pic1\"");
}

TEST(PlayCommands, PutTypesOverWhatStandsInATextBox)
{
    Theatre t;
    EXPECT_PLAYS(t, "press fil7\nput frmfile.Text1 a house of mine\n"
                    "expect get frmfile.Text1.text == \"a house of mine\"\n"
                    "put frmfile.Text1 \"b \\u00e4 \\\"c\\\"\"\n"
                    "expect get frmfile.Text1.text == \"b \\u00e4 \\\"c\\\"\"\n"
                    "put angle 4x5\nexpect get angle.text == \"000.000\"\n" // it stands behind the dialog
                    "press frmfile.Command2\nput angle 4x5\nexpect get angle.text == \"45\"\n"
                    "expect focused == \"angle\"");
    for (const char* line : {"put List1 a", "put Command1 a", "put nothing a", "put", "put angle \"open",
                             "put Text3 a", "put frmprintset a"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, PutOfTheFileNameIsComparedKeyByKey)
{
    Theatre t;
    EXPECT_PLAYS(t, "press fil7\nput frmfile.Text1 a\nenter\npress fil7\nput frmfile.Text1 a\n"
                    "expect get frmfile.Command1.caption == \"Overwrite?\"");
}

TEST(PlayCommands, PressClicksWhatTakesAClick)
{
    Theatre t;
    EXPECT_PLAYS(t, "press Command8\nexpect get session.curFunc == \"Point\"\npress ls5\n"
                    "expect get session.curStyle == 2\npress freecurs\nexpect get freecurs.caption == "
                    "\"Ortho/Off\"\npress angle\nexpect get angle.text == \"\"\npress Label1");
    for (const char* line : {"press", "press nothing", "press List1", "press pic1", "press frmfile.Command1",
                             "press frmedit.Command4", "press frmMain", "press Command1 now"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, FocusLeavesTheControlThatHadIt)
{
    Theatre t;
    EXPECT_PLAYS(t, "press snapper\ntype 5\nexpect get snapper.text == \"5\"\nfocus pic1\n"
                    "expect get snapper.text == \"025.000\"\nexpect focused == \"pic1\"\n"
                    "focus angle\nexpect focused == \"angle\"");
    for (const char* line : {"focus", "focus nothing", "focus frmfile.Text1", "focus Text3", "focus undu"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, PickClicksARowByNumberOrByItsText)
{
    Theatre t;
    EXPECT_PLAYS(t, "press fil7\nput frmfile.Text1 b b\nenter\npress fil7\nput frmfile.Text1 a\nenter\npress "
                    "fil4\npick frmfile.File1 0\nexpect get frmfile.Text1.text == \"a.mtd\"\n"
                    "expect get frmfile.File1.row == 0\npick frmfile.File1 =b b.mtd\n"
                    "expect get frmfile.Text1.text == \"b b.mtd\"");
    for (const char* line : {"pick frmfile.File1 2", "pick frmfile.File1 -1", "pick frmfile.File1 =c.mtd",
                             "pick frmfile.File1 x", "pick frmfile.File1", "pick Command1 0", "pick"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, PickOfAFolderGoesThere)
{
    Theatre t;
    const std::string parent = t.home().substr(0, t.home().rfind('/'));
    EXPECT_PLAYS(t, "press fil4\npick frmfile.Dir1 =..");
    EXPECT_EQ(t.session->controls["frmfile.Dir1"_c].text, parent);
}

TEST(PlayCommands, ScaleSetsTheWorldWindow)
{
    Theatre t;
    EXPECT_PLAYS(t,
                 "scale 10 20 300 200\nexpect get session.viewLeft == 10\nexpect get session.viewTop == 20\n"
                 "expect get session.viewRight == 310\nexpect get session.viewBottom == 220");
    EXPECT_EQ(t.surface.getScale().width, 300);
    for (const char* line : {"scale 0 0 0 5", "scale 0 0 5 -1", "scale 0 0 5", "scale 0 0 5 5 5",
                             "scale a b c d", "scale 0 0 1e50 5", "scale nan 0 5 5"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, ResizeKeepsTheUnitsToThePixelAndRepaintsNothing)
{
    Theatre t;
    t.play("ops");
    EXPECT_PLAYS(
        t, "resize 600 500\nexpect get session.viewRight == 2400\nexpect get session.viewBottom == 2000\n"
           "expect get session.viewLeft == 0\nexpect ops == []");
    EXPECT_EQ(t.surface.getOuterSize().width, 9000);
    for (const char* line : {"resize 0 5", "resize 5", "resize -1 5", "resize 5.5 5", "resize 999999999 5"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, CloseIsTheCloseButtonOfTheMainWindow)
{
    Theatre t;
    EXPECT_PLAYS(
        t, "click 0 10\nclick 500 10\nclose\nexpect alive == true\nexpect get frmfile.caption == \"Save "
           "Changes\"\npress frmfile.Command2\nexpect alive == false");
}

TEST(PlayCommands, NothingButAliveIsAnsweredAfterTheEnd)
{
    Theatre t;
    EXPECT_PLAYS(t, "close\nexpect alive == false\n\n# a remark");
    EXPECT_EQ(t.play("alive"), "false");
    for (const char* line :
         {"click 1 2", "get entry.text", "slot 1", "ops", "close", "expect get entry.text == 1"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayCommands, BlankLinesAndRemarksArePassedOver)
{
    Theatre t;
    for (const char* line : {"", "   ", "\t", "# press Command8", "  # remark", "#remark"}) {
        EXPECT_EQ(t.statusOf(line), 0) << line;
        EXPECT_EQ(t.play(line), "") << line;
    }
    EXPECT_EQ(t.session->curFunc, "Line");
}

TEST(PlayCommands, UnknownOnesAreRefused)
{
    Theatre t;
    for (const char* line : {"jump 1 2", "Click 1 2", "click", "click 1", "click 1 2 3", "click 1 2x",
                             "click one 2", "move 1e40 0", "cancel", "expect", "expect alive",
                             "expect alive ==", "get", "expect alive == tru", "expect click 1 2 == 3"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayQuestions, LibrariesWithoutRowsAreEmpty)
{
    Theatre t;
    EXPECT_EQ(t.play("hatches"), "[]");
    EXPECT_EQ(t.play("mlines"), "[]");
    EXPECT_EQ(t.play("printed"), "[]");
}

// -- asking --

TEST(PlayQuestions, GetAnswersWhatAControlHas)
{
    Theatre t;
    EXPECT_EQ(t.play("get freecurs.caption"), "\"Ortho/On\"");
    EXPECT_EQ(t.play("get frmedit.visible"), "false");
    EXPECT_EQ(t.play("get frmMain.caption"),
              "\"Mirtane 4.00    Drawing Name: untitled.mtd    Current Function: "
              "Line(Enter beginning point of line:)\"");
    EXPECT_EQ(t.play("get List1.row"), "1") << "the working layer's";
    EXPECT_EQ(t.play("get setts.color"), "16777215");
    EXPECT_EQ(t.play("get ls3.checked"), "true");
    EXPECT_EQ(t.play("get frmfilter.ob4.enabled"), "false");
    EXPECT_EQ(t.play("get snapbox.text"), "\"\"");
    EXPECT_PLAYS(t, "expect get angle == {\"text\":\"000.000\",\"visible\":true,\"enabled\":true}\n"
                    "expect get frmMain == {\"visible\":true}");
    EXPECT_EQ(t.play("get List1.rows").substr(0, 25), "[\"No :On :0\",\"No :Wk :1\",");
    for (const char* line : {"get nothing", "get angle.nothing", "get Command1.rows", "get Command1.text",
                             "get", "get angle text", "get frmnothing.caption"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayQuestions, GetSessionAnswersAValueByItsName)
{
    Theatre t;
    const std::pair<const char*, const char*> rows[] = {
        {"curFunc", "\"Line\""},
        {"baseFunc", "\"Line\""},
        {"lastFunc", "\"Line\""},
        {"stepNo", "0"},
        {"promptText", "\"(Enter beginning point of line:)\""},
        {"editPending", "0"},
        {"entCount", "1"},
        {"savedCount", "1"},
        {"saveFollowUp", "0"},
        {"drawingName", "\"untitled.mtd\""},
        {"dxfName", "\"untitled.dxf\""},
        {"workLayer", "1"},
        {"curColor", "16777215"},
        {"curStyle", "0"},
        {"textSize", "48"},
        {"arrowSize", "48"},
        {"dimStyle", "1"},
        {"textJust", "0"},
        {"textFont", "\"Garamond\""},
        {"dimTol", "0.125"},
        {"numComma", "0"},
        {"angFormat", "0"},
        {"numStyle", "\"us\""},
        {"polygonSides", "3"},
        {"layerCount", "16"},
        {"undoLogCount", "0"},
        {"undoGroupNext", "0"},
        {"undoGroupTop", "0"},
        {"redoGroupTop", "0"},
        {"workRadius", "0"},
        {"workAngle", "0"},
        {"arcStart", "0"},
        {"arcEnd", "0"},
        {"orthoAngle", "0"},
        {"orthoAngleSaved", "0"},
        {"orthoCaption", "\"Ortho/On\""},
        {"snapKey", "0"},
        {"liveAngle", "0"},
        {"windowStep", "0"},
        {"windowX1", "0"},
        {"windowY2", "0"},
        {"blankStep", "0"},
        {"blankSavedFunc", "\"\""},
        {"textLength", "0"},
        {"viewLeft", "0"},
        {"viewBottom", "3200"},
        {"wholeViewFlag", "0"},
        {"pixelPerUnitX", "0.25"},
        {"savedPrompt", "\"\""},
        {"filterLayer", "-1"},
        {"filterKind", "-1"},
        {"filterStyle", "-1"},
        {"pickFirst", "[0,0]"},
        {"pickLast", "[0,0]"},
        {"mousePos", "[0,0]"},
        {"blankStart", "[0,0]"},
        {"blankEnd", "[0,0]"},
        {"ptA", "[0,0]"},
        {"ptH", "[0,0]"},
        {"pickFirstX", "0"},
        {"ptFY", "0"},
    };
    for (const auto& [name, answer] : rows)
        EXPECT_EQ(t.play("get session." + std::string(name)), answer) << name;
    for (const char* line :
         {"get session", "get session.", "get session.nothing", "get session.pickFirstZ"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayQuestions, NumbersAreInTheirShortestForm)
{
    Theatre t;
    EXPECT_PLAYS(t, "press freecurs\nclick 0.1 -2.5");
    EXPECT_EQ(t.play("get session.pickFirst"), "[0.1,-2.5]");
}

TEST(PlayQuestions, FocusedNamesTheControl)
{
    Theatre t;
    EXPECT_EQ(t.play("focused"), "\"pic1\"");
    t.play("press fil4");
    EXPECT_EQ(t.play("focused"), "\"frmfile.Text1\"");
    EXPECT_EQ(t.statusOf("focused now"), 2);
}

TEST(PlayQuestions, SlotAndSlotsAnswerAllFields)
{
    Theatre t;
    EXPECT_EQ(t.play("slots"), "[]");
    t.playAll("press lw6\npress ls4\nclick 100 200\nclick 400 200");
    const std::string expected =
        R"({"slot":1,"x1":100,"y1":200,"x2":400,"y2":200,"x3":0,"y3":0,"x4":0,"y4":0,"x5":0,"y5":0,)"
        R"("s1":0,"s2":0,"rad":0,"a1":0,"a2":0,"a3":0,"color":255,"layer":1,"style":1,"kind":1,)"
        R"("t1":"","t2":"","stat":"on","ownerName":"","dxfTag":""})";
    EXPECT_EQ(t.play("slot 1"), expected);
    EXPECT_EQ(t.play("slots"), "[" + expected + "]");
    EXPECT_EQ(t.statusOf("slot 0"), 0);
    EXPECT_EQ(t.statusOf("slot 60000"), 0);
    for (const char* line : {"slot", "slot 60001", "slot -1", "slot x", "slot 1 2", "slots 1"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayQuestions, LayersAnswerARowEach)
{
    Theatre t;
    t.playAll("click 100 200\nclick 400 200");
    const std::string rows = t.play("layers");
    EXPECT_EQ(rows.substr(0, rows.find(",{\"number\":2")),
              R"([{"number":0,"name":"0","used":"No :","shown":"On :"},)"
              R"({"number":1,"name":"1","used":"Yes:","shown":"Wk :"})");
    EXPECT_NE(rows.find("\"number\":15,"), std::string::npos);
    EXPECT_EQ(rows.find("\"number\":16,"), std::string::npos);
}

TEST(PlayQuestions, UndologAnswersSlotStatAndGroup)
{
    Theatre t;
    EXPECT_EQ(t.play("undolog"), "[]");
    t.playAll("click 100 200\nclick 400 200\nclick 900 200\npress undu");
    EXPECT_EQ(t.play("undolog"), R"([[1,"on",0],[2,"on",1],[2,"out",2]])");
}

TEST(PlayQuestions, OpsAnswersWhatWasDrawnSinceTheLastTime)
{
    Theatre t;
    t.play("ops");
    EXPECT_EQ(t.play("ops"), "[]");
    t.playAll("press freecurs\nclick 100 200\nmove 10.5 -3");
    EXPECT_EQ(t.play("ops"), R"([["restoreSnapshot"],["line",100,200,10.5,-3]])");
    EXPECT_EQ(t.play("ops"), "[]");
}

TEST(PlayQuestions, WidthAnswersTheSurfacesMeasure)
{
    Theatre t;
    const double one = std::stod(t.play("width 480 Garamond a"));
    const double two = std::stod(t.play("width 480 Garamond aa"));
    const double large = std::stod(t.play("width 960 Garamond aa"));
    EXPECT_GT(one, 0);
    EXPECT_NEAR(two, 2 * one, 0.1 * one);
    EXPECT_NEAR(large, 2 * two, 0.1 * two);
    EXPECT_EQ(t.play("width 480 Garamond \"aa\""), t.play("width 480 Garamond aa"));
    EXPECT_EQ(t.statusOf("width 48 \"Courier New\" a b"), 0);
    for (const char* line : {"width", "width x Garamond a", "width 48", "width 48 \"Courier a"}) {
        EXPECT_EQ(t.statusOf(line), 2) << line;
    }
}

TEST(PlayQuestions, ImageWritesThePictureOfTheDrawing)
{
    Theatre t;
    t.playAll("press lw6\nclick 400 400\nclick 800 400");
    const std::string file = t.home() + "/a picture.png";
    EXPECT_EQ(t.play("image " + file), "[1200,800]");
    const QImage image(QString::fromStdString(file));
    EXPECT_EQ(image.size(), QSize(1200, 800));
    EXPECT_EQ(image.pixelColor(150, 100), QColor(255, 0, 0)); // four units to the pixel
    EXPECT_EQ(image.pixelColor(150, 110), QColor(0, 0, 0));
    EXPECT_EQ(t.statusOf("image " + t.home() + "/no folder/a.png"), 2);
}

TEST(PlayQuestions, AliveIsTrueUntilTheEnd)
{
    Theatre t;
    EXPECT_EQ(t.play("alive"), "true");
    t.play("press fil14");
    EXPECT_EQ(t.play("alive"), "false");
}

struct ExpectRow {
    const char* line;
    int status;
};

TEST(PlayQuestions, ExpectComparesAsJson)
{
    const ExpectRow rows[] = {
        {"expect get session.stepNo == 0", 0},
        {"expect get session.stepNo == 1", 1},
        {"expect get session.stepNo == 0.0009", 0},
        {"expect get session.stepNo == 0.002", 1},
        {"expect get session.curColor == 16777200", 0}, // within one part in 100,000
        {"expect get session.curColor == 16777500", 1},
        {"expect get session.stepNo == \"0\"", 1},
        {"expect get session.curFunc == \"Line\"", 0},
        {"expect get session.curFunc == \"line\"", 1},
        {"expect get session.pickFirst == [0,0]", 0},
        {"expect get session.pickFirst == [0]", 1},
        {"expect get session.pickFirst == [0,0,0]", 1},
        {"expect get angle == {\"text\":\"000.000\"}", 0},
        {"expect get angle == {\"text\":\"1\"}", 1},
        {"expect get angle == {\"nothing\":1}", 1},
        {"expect get angle == {}", 0},
        {"expect get angle == { \"text\" : \"000.000\" }", 0},
        {"expect alive == true", 0},
        {"expect alive == false", 1},
        {"expect alive == null", 1},
        {"expect get nothing == 1", 2},
        {"expect get session.stepNo = 0", 2},
        {"expect get session.stepNo == {", 2},
    };
    Theatre t;
    for (const ExpectRow& row : rows) EXPECT_EQ(t.statusOf(row.line), row.status) << row.line;
    EXPECT_EQ(t.play("expect alive == true"), "");
}

} // namespace
} // namespace mirtane
