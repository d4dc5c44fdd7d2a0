// A drawing of 59,899 slots, opened and drawn in as a user would.

#include "files/entity_record_codec.h"
#include "records.h"
#include "theatre.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

// A file of the header and count - 1 lines.
Bytes drawingOf(std::int32_t count)
{
    Bytes bytes;
    ByteWriter out(bytes);
    EntityRecord r;
    r.kind = headerKind;
    r.p1 = {48, 48};
    r.t1 = "us";
    r.t2 = "Garamond";
    r.layer = 1;
    r.color = 0xFFFFFF;
    writeRecord(out, r);
    for (std::int32_t i = 1; i < count; ++i) {
        const auto x = static_cast<float>(i % 300); // a small whole number
        writeRecord(out, fake::ofLooks(fake::line({x, 0}, {x, 200}), 0, 1));
    }
    return bytes;
}

struct FullTable : testing::Test {
    void open(std::int32_t count)
    {
        theatre.disk.writeWhole(theatre.home() + "/full.mtd", drawingOf(count));
        EXPECT_EQ(theatre.playAll("press fil4\nput frmfile.Text1 full\nenter"), "");
    }

    fake::Theatre theatre;
};

TEST_F(FullTable, WarnsWithTheLineThatLeavesAHundredAndOneSlots)
{
    open(59899);
    EXPECT_EQ(theatre.playAll("expect get session.entCount == 59899\n"
                              "expect get memy.text == \"099.832\"\n"
                              "expect get entry.text == \"\"\n"
                              "click 10 10\n"
                              "expect get entry.text == \"\"\n"
                              "click 90 10\n"
                              "expect get session.entCount == 59900\n"
                              "expect get memy.text == \"099.833\"\n"
                              "expect get entry.text == \"You are out of memory! Save and exit now.\"\n"
                              "cancel 0 0\n"
                              "expect get entry.text == \"\"\n"),
              "");
}

TEST_F(FullTable, RefusesNothingAndKeepsWhatFits)
{
    open(60000);
    EXPECT_EQ(
        theatre.playAll("press freecurs\n"
                        "click 10 10\n"
                        "click 90 10\n"
                        "click 90 90\n"
                        "expect get session.entCount == 60002\n"
                        "expect slot 60000 == {\"x1\":10,\"y1\":10,\"x2\":90,\"y2\":10,\"stat\":\"on\"}\n"
                        "press undu\n"
                        "press undu\n"
                        "expect slot 60000 == {\"stat\":\"out\"}\n"
                        "press Command42\n"
                        "press fil7\n"
                        "put frmfile.Text1 more\n"
                        "enter\n"
                        "press fil4\n"
                        "put frmfile.Text1 more\n"
                        "enter\n"
                        "expect get session.entCount == 60000\n"),
        "");
}

} // namespace
} // namespace mirtane
