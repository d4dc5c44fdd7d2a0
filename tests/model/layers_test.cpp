#include "model/layers.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(Layers, OfANewDrawingAreSixteenAndLayerOneWorks)
{
    LayerTable table;
    resetLayers(table);
    EXPECT_EQ(table.layerCount, 16);
    const std::vector<std::string> rows = table.rows();
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_EQ(rows[0], "No :On :0");
    EXPECT_EQ(rows[1], "No :Wk :1");
    EXPECT_EQ(rows[15], "No :On :15");
    EXPECT_EQ(table.find(15)->layerNumber, 15);
}

TEST(Layers, ComeBackToSixteenWithoutNamesAndUse)
{
    LayerTable table;
    table.layerCount = 40;
    table.layers[3] = {"Yes:", "Off:", "Walls", 3};
    resetLayers(table);
    EXPECT_EQ(table.rows().size(), 16U);
    EXPECT_EQ(table.rows()[3], "No :On :3");
}

TEST(Layers, AreMarkedUsedOnlyWhereThereIsARow)
{
    LayerTable table;
    resetLayers(table);
    for (const std::int32_t number : {2, -1, 1000, 32767}) markUsed(table, number);
    EXPECT_EQ(table.rows()[2], "Yes:On :2");
    EXPECT_EQ(table.rows()[1], "No :Wk :1");
}

TEST(Layers, HaveAThousandRowsAndNoMore)
{
    LayerTable table;
    EXPECT_NE(table.find(999), nullptr);
    EXPECT_EQ(table.find(1000), nullptr);
    EXPECT_EQ(table.find(-1), nullptr);
    table.layerCount = 1005;
    EXPECT_EQ(table.rows().size(), 1000U);
}

} // namespace
} // namespace mirtane
