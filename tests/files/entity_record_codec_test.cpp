// One record byte by byte.

#include "files/entity_record_codec.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace mirtane {
namespace {

EntityRecord sample()
{
    EntityRecord r;
    r.p1 = {1, -2};
    r.p2 = {0.5F, 100};
    r.p3 = {3, 4};
    r.p4 = {5, 6};
    r.p5 = {7, 8};
    r.s1 = 48;
    r.s2 = 12;
    r.rad = 10;
    r.a1 = 1;
    r.a2 = -2;
    r.a3 = 0.5;
    r.color = 0xFF8000;
    r.layer = 300;
    r.style = 4;
    r.kind = Kind{-2};
    r.t1 = "\xC3\xA9!"; // e acute
    r.t2 = "Garamond";
    return r;
}

const Bytes sampleBytes = {
    0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x00, 0xC0, // x1 y1
    0x00, 0x00, 0x00, 0x3F, 0x00, 0x00, 0xC8, 0x42, // x2 y2
    0x00, 0x00, 0x40, 0x40, 0x00, 0x00, 0x80, 0x40, // x3 y3
    0x00, 0x00, 0xA0, 0x40, 0x00, 0x00, 0xC0, 0x40, // x4 y4
    0x00, 0x00, 0xE0, 0x40, 0x00, 0x00, 0x00, 0x41, // x5 y5
    0x00, 0x00, 0x40, 0x42, 0x00, 0x00, 0x40, 0x41, // s1 s2
    0x00, 0x00, 0x20, 0x41,                         // rad
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F, // a1
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0, // a2
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0x3F, // a3
    0x00, 0x80, 0xFF, 0x00,                         // color
    0x2C, 0x01, 0x04, 0x00, 0xFE, 0xFF,             // layer style kind
    0x02, 0x00, 0xE9, '!',                          // t1
    0x08, 0x00, 'G',  'a',  'r',  'a',  'm',  'o',  'n', 'd',
};

Bytes written(const EntityRecord& record)
{
    Bytes bytes;
    ByteWriter out(bytes);
    writeRecord(out, record);
    return bytes;
}

EntityRecord readBack(const Bytes& bytes)
{
    ByteReader in(bytes);
    EntityRecord record;
    EXPECT_TRUE(readRecord(in, record));
    EXPECT_EQ(in.remaining(), 0U);
    return record;
}

TEST(EntityRecordCodec, ARecordIsWrittenFieldByField)
{
    EXPECT_EQ(written(sample()), sampleBytes);
}

TEST(EntityRecordCodec, TheSameBytesAreReadBack)
{
    EXPECT_EQ(readBack(sampleBytes), sample());
}

TEST(EntityRecordCodec, ARecordWithoutTextsHasNinetyBytes)
{
    EXPECT_EQ(written({}).size(), recordBytesWithoutTexts);
    EXPECT_EQ(recordBytesWithoutTexts, 90U);
}

TEST(EntityRecordCodec, EveryShortenedRecordIsRefused)
{
    for (std::size_t n = 0; n < sampleBytes.size(); ++n) {
        const Bytes cut(sampleBytes.data(),
                        sampleBytes.data() + n); // its own block, so a read past its end is seen
        ByteReader in(cut);
        EntityRecord record;
        EXPECT_FALSE(readRecord(in, record)) << n;
    }
}

TEST(EntityRecordCodec, NumbersThatAreNoneKeepTheirBits)
{
    EntityRecord r;
    r.p1 = {std::bit_cast<float>(0x7F812345U), std::bit_cast<float>(0xFFC00001U)};
    r.rad = -std::numeric_limits<float>::infinity();
    r.a2 = std::bit_cast<double>(std::uint64_t{0x7FF0000000000123U});
    const Bytes bytes = written(r);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 8),
              (Bytes{0x45, 0x23, 0x81, 0x7F, 0x01, 0x00, 0xC0, 0xFF}));
    EXPECT_EQ(Bytes(bytes.begin() + 48, bytes.begin() + 52), (Bytes{0x00, 0x00, 0x80, 0xFF}));
    EXPECT_EQ(Bytes(bytes.begin() + 60, bytes.begin() + 68), (Bytes{0x23, 0x01, 0, 0, 0, 0, 0xF0, 0x7F}));
    EXPECT_EQ(written(readBack(bytes)), bytes);
}

TEST(EntityRecordCodec, TextsAreInTheWesternCodePage)
{
    struct Row {
        const char* what;
        std::string inMemory;
        Bytes inFile;
        std::string readBack;
    };
    const Row rows[] = {
        {"plain", "A1", {'A', '1'}, "A1"},
        {"euro sign", "\xE2\x82\xAC", {0x80}, "\xE2\x82\xAC"},
        {"y with two dots", "\xC3\xBF", {0xFF}, "\xC3\xBF"},
        {"a place that the code page leaves open", "\xC2\x81", {0x81}, "\xC2\x81"},
        {"not in the code page",
         "a\xE4\xB8\xAD"
         "b",
         {'a', '?', 'b'},
         "a?b"},
    };
    for (const Row& row : rows) {
        EntityRecord r;
        r.t1 = row.inMemory;
        const Bytes bytes = written(r);
        ASSERT_EQ(bytes.size(), recordBytesWithoutTexts + row.inFile.size()) << row.what;
        EXPECT_EQ(Bytes(bytes.begin() + 88, bytes.end() - 2), row.inFile) << row.what;
        EXPECT_EQ(readBack(bytes).t1, row.readBack) << row.what;
    }
}

TEST(EntityRecordCodec, ATextIsCutByItsLengthInTheFile)
{
    EntityRecord r;
    for (int i = 0; i < 70000; ++i) r.t1 += "\xC3\xA9"; // two bytes in memory, one in the file
    r.t2 = "after";
    const EntityRecord back = readBack(written(r));
    EXPECT_EQ(back.t1.size(), 2U * 65535U);
    EXPECT_EQ(back.t2, "after");
}

} // namespace
} // namespace mirtane
