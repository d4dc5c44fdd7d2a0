#include "model/missing.h"

#include "model/insertion.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

TEST(Missing, IsSaidAsASentence)
{
    struct Row {
        Missing missing;
        const char* text;
    };
    const Row rows[] = {
        {{1, false}, "The table is full: 1 piece is missing"},
        {{2, false}, "The table is full: 2 pieces are missing"},
        {{12345, false}, "The table is full: 12,345 pieces are missing"},
        {{1, true}, "The table is full: more than 1 piece is missing"},
        {{270009, true}, "The table is full: more than 270,009 pieces are missing"},
    };
    for (const Row& row : rows) EXPECT_EQ(missingText(row.missing), row.text);
}

TEST(Missing, NothingIsNotSaid)
{
    const auto controls = std::make_unique<Controls>();
    setText((*controls)["entry"_c], "Nothing Selected!");
    tellMissing(*controls, {});
    EXPECT_EQ((*controls)["entry"_c].text, "Nothing Selected!");
    EXPECT_FALSE(tellsMissing(*controls));
}

TEST(Missing, IsNotTalkedOverByTheWarningThatTheTableIsNearlyFull)
{
    const auto s = std::make_unique<Session>();
    s->store.entCount = EntityStore::slotCount;
    updateGauge(*s);
    EXPECT_EQ(s->controls["entry"_c].text, "You are out of memory! Save and exit now.");
    tellMissing(s->controls, {17, false});
    EXPECT_TRUE(tellsMissing(s->controls));
    updateGauge(*s);
    EXPECT_EQ(s->controls["entry"_c].text, "The table is full: 17 pieces are missing");
}

} // namespace
} // namespace mirtane
