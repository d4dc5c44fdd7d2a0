// A drawing whose own folder is not there: the dialog shows another one, in which a drawing of that name may
// be another drawing.

#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

const Bytes foreign = {3, 1, 4, 1, 5};

struct PlaceRow {
    const char* name;
    const char* folder;
    const char* told;
    const char* toldOfTheOther;
};

const PlaceRow places[] = {
    {"mill", "/media/stick", "mill.mtd is no longer on the disk: there is no folder /media/stick.",
     "Another mill.mtd is there already: saving replaces it."},
    {"gable east", "/net/office/plans",
     "gable east.mtd is no longer on the disk: there is no folder /net/office/plans.",
     "Another gable east.mtd is there already: saving replaces it."},
    {"\u00FCberdachung", "/vol", "\u00FCberdachung.mtd is no longer on the disk: there is no folder /vol.",
     "Another \u00FCberdachung.mtd is there already: saving replaces it."},
};

// A drawing that was saved there and drawn on since. A drawing of the same name stands where files go else.
struct WanderedDesk : LayerDesk {
    explicit WanderedDesk(const PlaceRow& place)
        : own(std::string(place.folder) + "/" + place.name + ".mtd"),
          inHome(std::string(home) + "/" + place.name + ".mtd")
    {
        folders.folders.insert(place.folder);
        drawLine(-210, 33, 1704, 955);
        press("fil7"_c);
        name(std::string(place.folder) + "/" + place.name);
        enter();
        drawLine(77, -41, 620, 2018);
        disk.files[inHome] = foreign;
    }

    void pullOut(const PlaceRow& place)
    {
        folders.folders.erase(place.folder);
        disk.files.erase(own);
    }
    void goTo(const std::string& folder)
    {
        s.controls["frmfile.Drive1"_c].rows = {folder};
        shell.clickRow("frmfile.Drive1"_c, 0);
        shell.giveFocus("frmfile.Text1"_c);
    }
    const std::string& button() const { return caption("frmfile.Command1"_c); }
    const std::string& strip() const { return caption("notice"_c); }

    std::string own, inHome;
};

TEST(OwnFolderThatIsGone, CostsNoOtherDrawingItsFileUnseen)
{
    for (const PlaceRow& place : places) {
        for (const ControlId menu : {"fil7"_c, "fil5"_c, "fil14"_c, "fil4"_c}) {
            WanderedDesk desk(place);
            ASSERT_TRUE(desk.disk.files.contains(desk.own)) << place.name;
            desk.pullOut(place);
            desk.press(menu);
            EXPECT_EQ(desk.text("frmfile.Dir1"_c), home) << place.name;
            EXPECT_EQ(desk.button(), "Overwrite?") << place.name;
            EXPECT_EQ(desk.strip(), place.told);
            desk.enter();
            EXPECT_TRUE(desk.visible("frmfile"_c)) << place.name;
            EXPECT_EQ(desk.disk.files[desk.inHome], foreign) << place.name;
            EXPECT_EQ(desk.strip(), place.toldOfTheOther);
            desk.enter(); // it was said
            EXPECT_NE(desk.disk.files[desk.inHome], foreign) << place.name;
        }
    }
}

struct WayRow {
    const char* what;
    void (*go)(WanderedDesk& desk, const PlaceRow& place);
};

const WayRow ways[] = {
    {"by the lists", [](WanderedDesk& d, const PlaceRow&) { d.goTo(home); }},
    {"by a path that is typed",
     [](WanderedDesk& d, const PlaceRow&) {
         d.name("/home/user/");
         d.enter();
     }},
};

// The file is gone, its folder is there; what is said of it is not said of another folder.
TEST(OwnFileThatIsGone, IsNotToldOfAFileInAnotherFolder)
{
    for (const PlaceRow& place : places) {
        for (const WayRow& way : ways) {
            const std::string where = std::string(place.name) + ", " + way.what;
            WanderedDesk desk(place);
            desk.disk.files.erase(desk.own);
            desk.press("fil7"_c);
            EXPECT_EQ(desk.strip(),
                      std::string(place.name) + ".mtd is no longer on the disk: saving puts it back.");
            way.go(desk, place);
            EXPECT_EQ(desk.text("frmfile.Dir1"_c), home) << where;
            EXPECT_EQ(desk.strip(), "") << where;
            desk.name(place.name);
            desk.enter();
            EXPECT_EQ(desk.disk.files[desk.inHome], foreign) << where;
            EXPECT_EQ(desk.strip(), place.toldOfTheOther) << where;
            desk.enter();
            EXPECT_NE(desk.disk.files[desk.inHome], foreign) << where;
        }
    }
}

// Back at its own place it is told again, and then saved.
TEST(OwnFileThatIsGone, IsToldAgainWhereTheDialogComesBackToItsFolder)
{
    for (const PlaceRow& place : places) {
        WanderedDesk desk(place);
        desk.disk.files.erase(desk.own);
        desk.press("fil7"_c);
        desk.goTo(home);
        desk.goTo(place.folder);
        desk.name(place.name);
        desk.enter();
        EXPECT_EQ(desk.strip(),
                  std::string(place.name) + ".mtd is no longer on the disk: saving puts it back.");
        EXPECT_TRUE(desk.visible("frmfile"_c)) << place.name;
        desk.enter();
        EXPECT_TRUE(desk.disk.files.contains(desk.own)) << place.name;
        EXPECT_EQ(desk.disk.files[desk.inHome], foreign) << place.name;
    }
}

// Nothing can be put back there.
TEST(OwnFileThatIsGone, IsToldWhereAFolderStandsInItsPlace)
{
    for (const PlaceRow& place : places) {
        WanderedDesk desk(place);
        desk.disk.files.erase(desk.own);
        desk.folders.folders.insert(desk.own);
        desk.press("fil7"_c);
        EXPECT_EQ(desk.button(), "Overwrite?") << place.name;
        EXPECT_EQ(desk.strip(), "A folder stands where " + std::string(place.name) +
                                    ".mtd was: save the drawing under another name.");
        desk.name("elsewhere");
        desk.enter();
        EXPECT_TRUE(desk.disk.files.contains(std::string(place.folder) + "/elsewhere.mtd")) << place.name;
        EXPECT_EQ(desk.strip(), "") << place.name;
    }
}

// A drawing of another name is what the button says it is.
TEST(OwnFolderThatIsGone, LeavesTheButtonItsWordForOtherNames)
{
    WanderedDesk desk(places[0]);
    desk.disk.files["/home/user/barn.mtd"] = foreign;
    desk.pullOut(places[0]);
    desk.press("fil7"_c);
    desk.name("barn");
    EXPECT_EQ(desk.button(), "Overwrite?");
    desk.enter();
    EXPECT_NE(desk.disk.files["/home/user/barn.mtd"], foreign);
}

} // namespace
} // namespace mirtane
