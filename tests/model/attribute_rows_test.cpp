#include "model/attribute_rows.h"

#include "tables/pens.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <memory>
#include <set>

namespace mirtane {
namespace {

// The header after a row has written an attribute of that text into it.
EntityRecord headerWith(const AttributeRow& row, const std::string& text)
{
    Attributes attributes;
    row.takeText(attributes, text);
    EntityRecord header;
    row.fillHeader(header, attributes);
    return header;
}

// What the rows are called here, by their place, as those that only a header carries have no key.
std::string nameOf(const AttributeRow& row)
{
    return "row " + std::to_string(&row - attributeRows().data()) + " " + std::string(row.key);
}

TEST(AttributeRows, HaveAKeyEachOfTheirOwn)
{
    std::set<std::string_view> keys;
    for (const AttributeRow& row : attributeRows()) {
        if (row.key.empty()) continue;
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
    }
    EXPECT_EQ(keys.size(), 9U);
}

TEST(AttributeRows, HaveAFieldOfTheHeaderEachOfTheirOwn)
{
    for (const AttributeRow& one : attributeRows()) {
        for (const AttributeRow& other : attributeRows()) {
            if (&one == &other || one.fillHeader == nullptr || other.fillHeader == nullptr) continue;
            EntityRecord header = headerWith(one, "7");
            const EntityRecord before = header;
            Attributes attributes;
            other.takeText(attributes, "5");
            other.fillHeader(header, attributes);
            Attributes read;
            one.takeHeader(read, header);
            EXPECT_EQ(one.text(read), "7") << nameOf(one) << ", " << nameOf(other);
            EXPECT_NE(header, before) << nameOf(other) << " writes nothing";
        }
    }
}

TEST(AttributeRows, ComeBackFromTheHeader)
{
    for (const AttributeRow& row : attributeRows()) {
        ASSERT_NE(row.takeHeader, nullptr) << nameOf(row);
        Attributes read;
        row.takeHeader(read, headerWith(row, "7"));
        EXPECT_EQ(row.text(read), "7") << nameOf(row);
    }
}

// An entry that no action answers would be greyed, and one that nothing marks would never show what is on.
TEST(AttributeRows, OfEachCheckedEntryOneIsMarkedByWhatItGives)
{
    for (const AttributeRow& row : attributeRows()) {
        for (const Choice& choice : row.choices) {
            EXPECT_TRUE(isChoice(choice.entry));
            const auto controls = std::make_unique<Controls>();
            Attributes attributes;
            choose(attributes, choice.entry);
            markChoices(*controls, attributes);
            // the pen is marked with what else is on at the moment
            const bool isPen = std::ranges::find(pens, choice.entry, &Pen::entry) != std::end(pens);
            const bool isChecked = choice.entry.row().kind == ControlKind::checkedEntry && !isPen;
            EXPECT_EQ((*controls)[choice.entry].checked, isChecked) << choice.entry.row().name;
        }
    }
}

} // namespace
} // namespace mirtane
