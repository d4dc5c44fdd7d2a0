#include "library/libraries.h"

#include "kind_print.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

using Names = std::vector<std::string>;

constexpr Library all[] = {Library::multipleLines, Library::hatches, Library::associates};

std::unique_ptr<Session> sessionWith(Library library, const Names& names)
{
    auto session = std::make_unique<Session>();
    for (const std::string& name : names) {
        if (library == Library::multipleLines) {
            MultipleLine row;
            row.name = name;
            session->multipleLinesLibrary.add(row);
        } else if (library == Library::hatches) {
            HatchRow row;
            row.hatchName = name;
            session->hatchLibrary.add(row);
        } else {
            const std::size_t at = EntityStore::at(session->store.entCount++);
            session->store.kind[at] = Kind{11};
            session->store.stat[at] = Stat::out;
            session->store.ownerName[at] = name;
        }
    }
    return session;
}

TEST(Libraries, ListANameWheneverItDiffersFromTheOneListedLast)
{
    struct Row {
        const char* what;
        Names rows, listed;
    };
    const Row rows[] = {
        {"nothing", {}, {}},
        {"neighbours", {"A", "A", "B"}, {"A", "B"}},
        {"rows that lie apart", {"A", "B", "A"}, {"A", "B", "A"}},
        {"removed rows between are no break", {"A", "??????", "A"}, {"A"}},
        {"rows without a name are no break", {"A", "", "A", "B"}, {"A", "B"}},
        {"removed rows alone", {"??????", "??????"}, {}},
        {"case counts", {"oak", "Oak"}, {"oak", "Oak"}},
    };
    for (const Library library : all) {
        for (const Row& row : rows) {
            const auto s = sessionWith(library, row.rows);
            EXPECT_EQ(listedNames(*s, library), row.listed) << row.what;
            EXPECT_EQ(hasLiveName(*s, library), !row.listed.empty()) << row.what;
        }
    }
}

TEST(Libraries, ANameIsInUseOnlyWhenItIsJustThat)
{
    for (const Library library : all) {
        const auto s = sessionWith(library, {"Wall", "Door"});
        EXPECT_TRUE(hasName(*s, library, "Door"));
        EXPECT_FALSE(hasName(*s, library, "door"));
        EXPECT_FALSE(hasName(*s, library, "Doo"));
        EXPECT_FALSE(hasName(*s, library, "Doors"));
    }
}

TEST(Libraries, AreNotMixedUp)
{
    for (const Library filled : all) {
        const auto s = sessionWith(filled, {"A"});
        for (const Library asked : all) EXPECT_EQ(hasName(*s, asked, "A"), asked == filled);
    }
}

TEST(Libraries, RemovingANameKeepsItsRowsAndTheNameInUse)
{
    for (const Library library : all) {
        const auto s = sessionWith(library, {"A", "B", "A"});
        currentName(*s, library) = "A";
        removeName(*s, library, "A");
        EXPECT_EQ(listedNames(*s, library), Names{"B"});
        EXPECT_FALSE(hasName(*s, library, "A"));
        EXPECT_EQ(currentName(*s, library), "A");
    }
    const auto hatches = sessionWith(Library::hatches, {"A", "B", "A"});
    removeName(*hatches, Library::hatches, "A");
    EXPECT_EQ(hatches->hatchLibrary.count, 3);
    EXPECT_EQ(hatches->hatchLibrary.rows[0].hatchName, "??????");
    EXPECT_EQ(hatches->hatchLibrary.rows[2].hatchName, "??????");
}

TEST(Libraries, RemovingAnAssociateLeavesItsPiecesHidden)
{
    const auto s = sessionWith(Library::associates, {"A"});
    removeName(*s, Library::associates, "A");
    EXPECT_EQ(s->store.entCount, 2);
    EXPECT_EQ(s->store.stat[1], Stat::out);
    EXPECT_EQ(s->store.kind[1], Kind{11});
    EXPECT_EQ(s->store.ownerName[1], "??????");
}

TEST(Libraries, RemovingNothingLeavesTheSlotsWithoutOwnerAlone)
{
    const auto s = sessionWith(Library::associates, {"", "A"});
    removeName(*s, Library::associates, "");
    EXPECT_EQ(s->store.ownerName[1], "");
}

TEST(Libraries, OfferTheirNamesUnderACaption)
{
    for (const Library library : all) {
        const auto s = sessionWith(library, {"A", "B"});
        s->controls["List1"_c].rows = {"old"};
        s->controls["List1"_c].row = 0;
        EXPECT_TRUE(offerNames(*s, library, "Select Hatch"));
        EXPECT_EQ(s->controls["Label3"_c].caption, "Select Hatch");
        EXPECT_EQ(s->controls["List1"_c].rows, (Names{"A", "B"}));
        EXPECT_EQ(s->controls["List1"_c].row, -1);
    }
}

TEST(Libraries, WithNothingToOfferDoNothingAtAll)
{
    for (const Library library : all) {
        const auto s = sessionWith(library, {"??????"});
        s->controls["Label3"_c].caption = "Edit Functions";
        s->controls["List1"_c].rows = {"Break"};
        s->stepNo = 1;
        currentName(*s, library) = "A";
        EXPECT_FALSE(offerNames(*s, library, "Save Hatch"));
        EXPECT_EQ(s->controls["Label3"_c].caption, "Edit Functions");
        EXPECT_EQ(s->controls["List1"_c].rows, Names{"Break"});
        EXPECT_EQ(s->stepNo, 1);
        EXPECT_EQ(currentName(*s, library), "A");
    }
}

TEST(Libraries, OfferingKeepsTheNameInUseButForAssociates)
{
    for (const Library library : all) {
        const auto s = sessionWith(library, {"A"});
        s->stepNo = 1;
        currentName(*s, library) = "A";
        offerNames(*s, library, "Select");
        const bool isAssociates = library == Library::associates;
        EXPECT_EQ(currentName(*s, library), isAssociates ? "??????" : "A");
        EXPECT_EQ(s->stepNo, isAssociates ? 0 : 1);
    }
}

TEST(Libraries, RefillShowsAnEmptyListToo)
{
    const auto s = sessionWith(Library::hatches, {});
    s->controls["List1"_c].rows = {"gone"};
    refillNames(*s, Library::hatches, "Remove Hatch");
    EXPECT_TRUE(s->controls["List1"_c].rows.empty());
    EXPECT_EQ(s->controls["Label3"_c].caption, "Remove Hatch");
}

TEST(LibraryTable, DropsRowsPastItsEndWhileTheCountGoesOn)
{
    HatchLibrary library;
    HatchRow row;
    for (int i = 0; i < 1005; ++i) {
        row.hatchName = std::to_string(i);
        library.add(row);
    }
    EXPECT_EQ(library.count, 1005);
    ASSERT_EQ(library.used().size(), 1000U);
    EXPECT_EQ(library.used().back().hatchName, "999");
}

TEST(LibraryTable, NothingBearsTheNameThatMeansNone)
{
    EXPECT_TRUE(bearsName("A", "A"));
    EXPECT_FALSE(bearsName("A", "B"));
    EXPECT_FALSE(bearsName("??????", "??????"));
}

} // namespace
} // namespace mirtane
