// The small picture of a file in the file dialog.

#include "desk.h"

#include "files/drawing_file.h"
#include "files/library_files.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using fake::Desk;

struct Preview : testing::Test {
    Preview()
    {
        desk.add(fake::line({100, 200}, {700, 500}), Stat::sel);
        desk.add(fake::circle({-90000, 200}, 50));
        HatchRow row;
        row.hatchName = "brick";
        row.h1 = {0, 0};
        row.h2 = {48, 24};
        row.hatchKind = Kind::line;
        desk.s.hatchLibrary.add(row);
        MultipleLine line;
        line.name = "wall";
        for (const float offset : {-20.0F, 20.0F, 22.0F}) {
            line.m1 = offset;
            desk.s.multipleLinesLibrary.add(line);
        }
        desk.disk.files = {{"/home/user/house.mtd", drawingBytes(desk.s, SaveWhat::drawing)},
                           {"/home/user/brick.mth", hatchBytes(desk.s.hatchLibrary, "brick")},
                           {"/home/user/wall.mtm", multipleLinesBytes(desk.s.multipleLinesLibrary, "wall")},
                           {"/home/user/none.mth", {}},
                           {"/home/user/plan.dxf", {}},
                           {"/home/user/huge.mtd", Bytes(1'000'000)}};
    }

    // The marks that the picture of a file leaves on a small surface; none where there is no picture.
    fake::Ops pictureOf(const std::string& file)
    {
        RecordingCanvas picture(Size{200, 120});
        picture.record(true);
        setText(desk.s.controls["frmfile.Picture1"_c], file);
        const bool drawn = desk.shell.previewFile(picture);
        const fake::Ops marks = fake::marks(fake::opsOn(picture));
        EXPECT_EQ(drawn, !marks.empty()) << file;
        return marks;
    }

    Desk desk;
};

TEST_F(Preview, ShowsWhatADrawingAndALibraryHold)
{
    const std::pair<const char*, std::size_t> rows[] = {
        {"/home/user/house.mtd", 2}, {"/home/user/brick.mth", 1}, {"/home/user/wall.mtm", 3}};
    for (int again = 0; again < 2; ++again) { // one does not show in the next
        for (const auto& [file, objects] : rows) EXPECT_EQ(pictureOf(file).size(), objects) << file;
    }
}

TEST_F(Preview, IsLeftOutWhereItWouldTakeLongOrShowNothing)
{
    for (const char* file : {"", "/home/user/none.mth", "/home/user/plan.dxf", "/home/user/huge.mtd",
                             "/home/user/not there.mtd"})
        EXPECT_TRUE(pictureOf(file).empty()) << file;
}

// A letter that is written once more costs little, one of a new size or direction has to be made.
TEST_F(Preview, IsLeftOutWhereItsLettersWouldTakeLong)
{
    struct Row {
        const char* what;
        int texts;
        float sizeStep;
        double turn;
        bool drawn;
    };
    const Row rows[] = {{"many of one size, level", 300, 0, 0, true},
                        {"many in few directions", 300, 0, 90, true},
                        {"very many", 1000, 0, 0, false},
                        {"each of its own size", 300, 0.25F, 0, false},
                        {"each in its own direction", 300, 0, 1, false},
                        {"few of their own", 60, 0.25F, 7, true}};
    for (const Row& row : rows) {
        Desk other;
        for (int i = 0; i < row.texts; ++i) {
            const auto number = static_cast<float>(i); // small
            EntityRecord text = fake::text({number * 17, 300 - number}, "Wohnraum 12");
            text.p2.x = 24 + row.sizeStep * number;
            text.a1 = std::fmod(row.turn * i, 360);
            other.add(text);
        }
        desk.disk.files["/home/user/words.mtd"] = drawingBytes(other.s, SaveWhat::drawing);
        EXPECT_EQ(!pictureOf("/home/user/words.mtd").empty(), row.drawn) << row.what;
    }
}

// Of a dimension's letters, too.
TEST_F(Preview, IsLeftOutWhereTheLettersOfDimensionsWouldTakeLong)
{
    for (const auto& [count, drawn] : {std::pair(20, true), std::pair(300, false)}) {
        Desk other;
        for (int i = 0; i < count; ++i) {
            EntityRecord dimension = fake::sample(Kind::linearDimension);
            dimension.t1 = "12'-6 1/2\"";
            dimension.a1 = i;
            dimension.a2 = 30.0 + i % 7;
            other.add(dimension);
        }
        desk.disk.files["/home/user/plan.mtd"] = drawingBytes(other.s, SaveWhat::drawing);
        EXPECT_EQ(!pictureOf("/home/user/plan.mtd").empty(), drawn) << count;
    }
}

TEST_F(Preview, LeavesTheDrawingAsItWas)
{
    const EntityRecord before = desk.slot(1);
    const Scale view = desk.pic1.getScale();
    desk.ops();
    for (const auto& [file, bytes] : desk.disk.files) pictureOf(file);
    EXPECT_EQ(desk.slot(1), before);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.pic1.getScale().width, view.width);
    EXPECT_TRUE(desk.ops().empty());
}

} // namespace
} // namespace mirtane
