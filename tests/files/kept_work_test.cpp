#include "files/kept_work.h"

#include "files/drawing_file.h"
#include "model/insertion.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

std::unique_ptr<Session> drawingOf(int lines)
{
    auto s = std::make_unique<Session>();
    for (int i = 0; i < lines; ++i) {
        const auto at = static_cast<float>(i); // few
        s->ptA = {-1e5F + at, 3 * at};
        s->ptB = {2e5F, -7 * at};
        addLine(*s);
        commitSlot(*s);
    }
    return s;
}

TEST(KeptWork, ComesBackWithWhatItIs)
{
    const KeptAbout abouts[] = {
        {"untitled.mtd", "", "2026-11-22 14:32"},
        {"plan 50% & more.mtd", "/srv/two words/plan 50% & more.mtd", "2026-01-01 00:00"},
        {"\u5bb6.mtd", "/home/\u00e4\u0416/\u5bb6.mtd", ""},
        {"", "", ""},
        {"a.mtd", "/a.mtd", "2026-11-22 14:32", FileStamp{-1, INT64_MIN, UINT64_MAX, 7, "15:00"}},
        {"a.mtd", "", "2026-11-22 14:32", {}, "/srv/the plans", 4711, "2026-11-21 08:00"},
        {std::string(3000, 'n'), "/" + std::string(4000, '\xfe') + "\n", "%"},
    };
    for (const KeptAbout& about : abouts) {
        for (const int lines : {0, 1, 500}) {
            const auto s = drawingOf(lines);
            const auto work = readKeptWork(keptWork(*s, about));
            ASSERT_TRUE(work);
            EXPECT_EQ(work->about, about);
            EXPECT_EQ(work->drawing, drawingBytes(*s, SaveWhat::drawing));
        }
    }
}

TEST(KeptWork, ComesBackWithTheLibrariesThatAreInNoFile)
{
    Bytes many;
    for (int i = 0; i < 123'457; ++i) many.push_back(static_cast<std::uint8_t>(i * 7 % 256)); // a byte
    const std::vector<KeptLibrary> shelves[] = {
        {},
        {{".mta", "door", many}},
        {{".mth", "two words, 50%", {0, 1, 2}}, {".mth", "empty", {}}, {".mtm", "two words, 50%", many}},
        {{".mta", "full", Bytes(16'000, 9)}, {".mtm", "", Bytes(48'000, 32)}},
    };
    const KeptAbout about{"a.mtd", "/a.mtd", "2026-11-22 14:32", {}, "/srv", 3, "08:00"};
    for (const std::vector<KeptLibrary>& shelf : shelves) {
        for (const int lines : {0, 77}) {
            const auto s = drawingOf(lines);
            const auto work = readKeptWork(keptWork(*s, about, shelf));
            ASSERT_TRUE(work);
            EXPECT_EQ(work->about, about);
            EXPECT_EQ(work->libraries, shelf);
            EXPECT_EQ(work->drawing, drawingBytes(*s, SaveWhat::drawing));
        }
    }
}

// Who opens kept work as a drawing and loses power has its records among the objects.
TEST(KeptWork, OfADrawingThatWasKeptWorkItself)
{
    const auto s = drawingOf(3);
    const Bytes first = keptWork(*s, {"a.mtd", "", ""}, {{".mta", "door", {1, 2, 3}}});
    Session opened;
    replaceDrawing(opened, first);
    const auto work = readKeptWork(keptWork(opened, {"b.mtd", "", ""}, {{".mta", "gate", {4}}}));
    ASSERT_TRUE(work);
    EXPECT_EQ(work->about.drawingName, "b.mtd");
    EXPECT_EQ(work->libraries, (std::vector<KeptLibrary>{{".mta", "gate", {4}}}));
    EXPECT_EQ(work->drawing, drawingBytes(opened, SaveWhat::drawing));
}

// Opened as a drawing it is one: the last record is none of its objects.
TEST(KeptWork, IsADrawingFile)
{
    const auto s = drawingOf(9);
    const Bytes bytes = keptWork(*s, {"a.mtd", "/a.mtd", "2026-11-22 14:32"});
    Session opened;
    replaceDrawing(opened, bytes);
    EXPECT_EQ(opened.store.entCount, 11);
    EXPECT_EQ(opened.store.kind[10], headerKind);
    for (std::int32_t i = 1; i < 10; ++i) EXPECT_EQ(opened.store.record(i).p2, s->store.record(i).p2);
}

TEST(KeptWork, ThatIsNotWholeIsNone)
{
    const Bytes bytes = keptWork(*drawingOf(3), {"a.mtd", "/a.mtd", "2026-11-22 14:32"});
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(readKeptWork(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size))));
    }
    Bytes longer = bytes;
    longer.push_back(0);
    EXPECT_FALSE(readKeptWork(longer));
    EXPECT_FALSE(readKeptWork(drawingBytes(*drawingOf(3), SaveWhat::drawing)));
}

} // namespace
} // namespace mirtane
