#include "platform/qt/page_choice.h"

#include "memory_ports.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(PageChoice, IsKeptAmongTheSettings)
{
    const PageChoice rows[] = {
        {QPageSize(QPageSize::A0), QPageLayout::Landscape, "/plots of \u00e9t\u00e9"},
        {QPageSize(QPageSize::Letter), QPageLayout::Portrait, ""},
        {QPageSize(QPageSize::Tabloid), QPageLayout::Landscape, "/"},
    };
    for (const PageChoice& row : rows) {
        fake::MemorySettings settings;
        settings.values = {{"tnam", "Serif"}};
        keep(row, settings);
        const PageChoice found = pageChoiceIn(settings);
        EXPECT_EQ(found.paper.id(), row.paper.id());
        EXPECT_EQ(found.way, row.way);
        EXPECT_EQ(found.folder, row.folder);
    }
}

TEST(PageChoice, IsTheSystemsPaperUprightUntilOneIsMade)
{
    qputenv("PAPERSIZE", "a2");
    for (const char* paper : {"", "wallpaper"}) {
        fake::MemorySettings settings;
        if (*paper != '\0') settings.values = {{"paper", paper}, {"paperway", "aslant"}};
        const PageChoice found = pageChoiceIn(settings);
        EXPECT_EQ(found.paper.id(), QPageSize::A2) << paper;
        EXPECT_EQ(found.way, QPageLayout::Portrait) << paper;
        EXPECT_EQ(found.folder, "") << paper;
    }
    qunsetenv("PAPERSIZE");
}

TEST(PageChoice, IsTold)
{
    const PageChoice start{QPageSize(QPageSize::A4), QPageLayout::Portrait, ""};
    const PageChoice across{QPageSize(QPageSize::A4), QPageLayout::Landscape, ""};
    const PageChoice large{QPageSize(QPageSize::A1), QPageLayout::Portrait, "/plots"};
    const PageChoice place{QPageSize(QPageSize::A4), QPageLayout::Portrait, "/plots"};
    EXPECT_EQ(told(start, start), "A4 upright; PDF files go beside the drawing");
    EXPECT_EQ(told(across, start), "A4 across from the next start on; PDF files go beside the drawing");
    EXPECT_EQ(told(large, start), "A1 upright from the next start on; PDF files go to /plots");
    EXPECT_EQ(told(place, start), "A4 upright; PDF files go to /plots");
}

} // namespace
} // namespace mirtane
