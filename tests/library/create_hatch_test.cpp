#include "library/hatch.h"
#include "library/libraries.h"

#include "library_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LibraryDesk;

// "Create Hatch" with a name typed, waiting for the first corner.
struct CreateHatchDesk : LibraryDesk {
    explicit CreateHatchDesk(const char* name = "Brick") : LibraryDesk("Create Hatch")
    {
        typeIn(name);
        EXPECT_EQ(s.stepNo, 1);
    }
    void tile()
    {
        click(100, 200);
        click(130, 220);
    }
    const HatchRow& row(std::size_t i) const { return session->hatchLibrary.rows[i]; }
    std::int32_t count() const { return session->hatchLibrary.count; }
};

TEST(CreateHatch, TakesLinesRelativeToTheFirstCorner)
{
    CreateHatchDesk desk;
    EntityRecord line = fake::line({105, 215}, {125, 215});
    line.color = 0x00FF00;
    line.style = 3;
    desk.add(line);
    desk.tile();
    ASSERT_EQ(desk.count(), 1);
    HatchRow expected = fake::hatchLine("Brick", {5, 15}, {25, 15}, 30, 20);
    expected.hatchColor = 0x00FF00;
    expected.hatchStyle = 3;
    EXPECT_EQ(desk.row(0), expected);
}

TEST(CreateHatch, KeepsTheDirectionOfALine)
{
    struct Row {
        const char* what;
        Point to;
        double direction;
    };
    const Row rows[] = {
        {"right", {20, 10}, 0},
        {"up", {10, 0}, 1.5707963},
        {"left", {0, 10}, 3.1415927},
        {"down", {10, 20}, 4.712389},
        {"upper right", {20, 0}, 0.78539816},
        {"lower left", {0, 20}, 3.92699086},
    };
    for (const Row& row : rows) {
        CreateHatchDesk desk;
        desk.add(fake::line({10, 10}, row.to));
        desk.tile();
        EXPECT_NEAR(desk.row(0).hatchA1, row.direction, 1e-8) << row.what;
    }
}

TEST(CreateHatch, TakesCirclesArcsAndPoints)
{
    CreateHatchDesk desk;
    desk.add(fake::circle({110, 210}, 5));
    desk.add(fake::filled(Kind::arc));
    desk.add(fake::filled(Kind::point));
    desk.tile();
    ASSERT_EQ(desk.count(), 3);
    EXPECT_EQ(desk.row(0), fake::hatchCircle("Brick", {10, 10}, 5, 30, 20));

    EXPECT_EQ(desk.row(1).hatchKind, Kind::arc);
    EXPECT_EQ(desk.row(1).h1, (Point{-99, -198}));
    EXPECT_EQ(desk.row(1).h2, (Point{-97, -196}));
    EXPECT_EQ(desk.row(1).h3, (Point{-95, -194}));
    EXPECT_EQ(desk.row(1).h4, (Point{-93, -192}));
    EXPECT_EQ(desk.row(1).hatchRad, 13);
    EXPECT_EQ(desk.row(1).hatchA1, 0.25);
    EXPECT_EQ(desk.row(1).hatchA2, 0.5);
    EXPECT_EQ(desk.row(1).hatchStyle, 3);

    EXPECT_EQ(desk.row(2).hatchKind, Kind::point);
    EXPECT_EQ(desk.row(2).h1, (Point{-99, -198})) << "outside the tile is no matter";
    EXPECT_EQ(desk.row(2).hatchStyle, 0);
    EXPECT_EQ(desk.row(2).hatchRad, 0);
}

TEST(CreateHatch, SaysHowManyPiecesTheTableHadNoRoomFor)
{
    struct Row {
        std::int32_t count; // rows in use, of 1,000
        const char* said;   // with 1,200 lines and a text, which is no piece
    };
    const Row rows[] = {{0, "The table is full: 200 pieces are missing"},
                        {1000, "The table is full: 1,200 pieces are missing"},
                        {5000, "The table is full: 1,200 pieces are missing"},
                        {801, "The table is full: 1,001 pieces are missing"}};
    for (const Row& row : rows) {
        CreateHatchDesk desk;
        for (int i = 0; i < 1200; ++i) desk.add(fake::line({105, 215}, {125, 215}));
        desk.add(fake::filled(Kind::text));
        desk.s.hatchLibrary.count = row.count;
        desk.tile();
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.count;
    }
    CreateHatchDesk desk;
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.add(fake::line({105, 216}, {125, 216}));
    desk.s.hatchLibrary.count = 999;
    desk.tile();
    EXPECT_EQ(desk.text("entry"_c), "The table is full: 1 piece is missing");
    CreateHatchDesk fits;
    fits.add(fake::line({105, 215}, {125, 215}));
    fits.s.hatchLibrary.count = 999;
    fits.tile();
    EXPECT_EQ(fits.text("entry"_c), "");
}

TEST(CreateHatch, PassesOverOtherKindsAndWhatIsNotSelected)
{
    CreateHatchDesk desk;
    for (const Kind kind : {Kind::ellipse, Kind::text, Kind::linearDimension, Kind::radialDimension,
                            Kind::leader, Kind::angularDimension, Kind{11}, Kind{25}})
        desk.add(fake::filled(kind));
    desk.add(fake::filled(Kind::line), Stat::on);
    desk.tile();
    EXPECT_EQ(desk.count(), 0);
    EXPECT_TRUE(desk.list().empty()) << "a hatch without rows has no name in the list";
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(CreateHatch, KeepsTheSignsOfTheTile)
{
    CreateHatchDesk desk;
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.click(130, 220);
    desk.click(100, 200);
    EXPECT_EQ(desk.row(0).hatchTileW, -30);
    EXPECT_EQ(desk.row(0).hatchTileH, -20);
    EXPECT_EQ(desk.row(0).h1, (Point{-25, -5}));
}

TEST(CreateHatch, AcceptsATileWithoutSize)
{
    CreateHatchDesk desk;
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.click(100, 200);
    desk.click(100, 200);
    ASSERT_EQ(desk.count(), 1);
    EXPECT_EQ(desk.row(0).hatchTileW, 0);
    EXPECT_EQ(desk.row(0).hatchTileH, 0);
}

TEST(CreateHatch, TheFirstCornerDoesNotMoveTheFirstPoint)
{
    CreateHatchDesk desk;
    desk.s.pickFirst = {7, 8};
    desk.click(100, 200);
    EXPECT_EQ(desk.s.pickFirst, (Point{7, 8}));
    EXPECT_EQ(desk.s.promptText, "(Enter lower-right corner of hatch:)");
}

TEST(CreateHatch, EndsWithTheNamesInTheListAndNoneChosen)
{
    CreateHatchDesk desk;
    desk.s.baseFunc = desk.s.lastFunc = "Window Select";
    desk.s.hatchLibrary.add(fake::hatchLine("Tile", {0, 0}, {1, 1}, 10, 10));
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.tile();
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.caption("Label3"_c), "Select Hatch");
    EXPECT_EQ(desk.list(), (std::vector<std::string>{"Tile", "Brick"}));
    EXPECT_EQ(desk.s.hatchName, "??????");
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
}

TEST(CreateHatch, RemovedRowsKeepTheirPlaces)
{
    CreateHatchDesk desk;
    desk.s.hatchLibrary.add(fake::hatchLine("??????", {0, 0}, {1, 1}, 10, 10));
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.tile();
    EXPECT_EQ(desk.count(), 2);
    EXPECT_EQ(desk.row(0).hatchName, "??????");
    EXPECT_EQ(desk.row(1).hatchName, "Brick");
}

TEST(CreateHatch, RowsPastTheTableAreDroppedAndCounted)
{
    CreateHatchDesk desk;
    desk.s.hatchLibrary.count = 999;
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.add(fake::line({105, 216}, {125, 216}));
    desk.tile();
    EXPECT_EQ(desk.count(), 1001);
    EXPECT_EQ(desk.row(999).h1, (Point{5, 15}));
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(CreateHatch, RemovedRowsCountTowardTheEndOfTheTable)
{
    CreateHatchDesk desk;
    for (int i = 0; i < 999; ++i) desk.s.hatchLibrary.add(fake::hatchLine("Old", {0, 0}, {1, 1}, 10, 10));
    removeName(desk.s, Library::hatches, "Old");
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.add(fake::line({105, 216}, {125, 216}));
    desk.tile();
    EXPECT_EQ(desk.count(), 1001);
    EXPECT_EQ(desk.row(998).hatchName, "??????") << "no new row takes the place of a removed one";
    EXPECT_EQ(desk.row(999).h1, (Point{5, 15}));
    EXPECT_EQ(desk.s.hatchLibrary.used().size(), 1000U) << "the second line found no room";

    removeName(desk.s, Library::hatches, "Brick");
    desk.s.hatchName = "Stone";
    desk.s.stepNo = 1;
    desk.s.curFunc = "Create Hatch";
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.tile();
    EXPECT_FALSE(hasLiveName(desk.s, Library::hatches)) << "all 1,000 rows are taken by removed ones";
    EXPECT_TRUE(desk.list().empty());
}

TEST(CreateHatch, WithoutANameMakesNoRows)
{
    CreateHatchDesk desk;
    desk.s.hatchName = noName;
    desk.add(fake::line({105, 215}, {125, 215}));
    desk.tile();
    EXPECT_EQ(desk.count(), 0);
}

} // namespace
} // namespace mirtane
