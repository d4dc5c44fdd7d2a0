#include "model/text_column.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <utility>

namespace mirtane {
namespace {

constexpr std::size_t size = 60001;

TEST(TextColumn, HoldsNothingAtFirst)
{
    const TextColumn column(size);
    EXPECT_EQ(column.size(), size);
    for (std::size_t slot = 0; slot < size; ++slot) EXPECT_TRUE(column[slot].empty());
}

TEST(TextColumn, IsAsAnArrayOfTexts)
{
    TextColumn column(size);
    std::vector<std::string> plain(size);
    std::mt19937 dice(7);
    for (int i = 0; i < 3000; ++i) {
        const std::size_t slot = i % 3 == 0 ? size - 1 - dice() % 300 : dice() % size;
        const std::string text = i % 5 == 0 ? "" : "text " + std::to_string(i);
        if (i % 2 == 0)
            column[slot] = text;
        else
            column.set(slot, text);
        plain[slot] = text;
        if (i % 1000 == 500) {
            const std::string all = "all of them, " + std::to_string(i);
            column.setAll(all);
            plain.assign(size, all);
        }
    }
    const TextColumn& read = column;
    for (std::size_t slot = 0; slot < size; ++slot) EXPECT_EQ(read[slot], plain[slot]) << slot;
}

TEST(TextColumn, EndsWithTheLastSlot)
{
    for (const std::size_t count : {std::size_t{1}, std::size_t{255}, std::size_t{256}, std::size_t{257}}) {
        TextColumn column(count);
        column[count - 1] = "last";
        EXPECT_EQ(std::as_const(column)[count - 1], "last") << count;
    }
}

TEST(TextColumn, ACopyIsAnother)
{
    TextColumn column(1000);
    column.setAll("none");
    column[511] = "door";
    TextColumn copy = column;
    EXPECT_TRUE(copy == column);
    copy[511] = "chair";
    copy.set(512, "table");
    EXPECT_EQ(std::as_const(column)[511], "door");
    EXPECT_EQ(std::as_const(column)[512], "none");
    EXPECT_FALSE(copy == column);
    column = copy;
    EXPECT_TRUE(copy == column);
}

// Whether a piece has been made is nobody's business.
TEST(TextColumn, WhatReadsTheSameIsEqual)
{
    TextColumn made(1000), left(1000);
    made.setAll("none");
    left.setAll("none");
    made[300] = "door";
    made[300] = "none";
    EXPECT_TRUE(made == left);
}

} // namespace
} // namespace mirtane
