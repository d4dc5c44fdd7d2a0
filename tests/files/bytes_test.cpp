// Numbers and strings from bytes and to bytes, also from bytes that end too early.

#include "files/bytes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

TEST(ByteReader, NumbersAreLittleEndian)
{
    const Bytes bytes = {0x02, 0x01, 0xFE, 0xFF, 0x04, 0x03, 0x02, 0x81, 0x00, 0x00,
                         0xC8, 0x42, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0xBF};
    ByteReader in(bytes);
    EXPECT_EQ(in.number<std::uint16_t>(), 0x0102);
    EXPECT_EQ(in.number<std::int16_t>(), -2);
    EXPECT_EQ(in.number<std::int32_t>(), -0x7EFDFCFC);
    EXPECT_EQ(in.number<float>(), 100.0F);
    EXPECT_EQ(in.number<double>(), -0.5);
    EXPECT_EQ(in.remaining(), 0U);
    EXPECT_TRUE(in.ok());
}

TEST(ByteReader, PastTheEndItGivesZerosAndRemembers)
{
    const Bytes bytes = {0xFF, 0xFF, 0xFF};
    ByteReader in(bytes);
    EXPECT_EQ(in.number<float>(), 0.0F);
    EXPECT_FALSE(in.ok());
    EXPECT_EQ(in.number<std::int16_t>(), 0) << "what is left is not taken either";
    EXPECT_EQ(in.counted(), "");
    EXPECT_EQ(in.remaining(), 0U);
    EXPECT_FALSE(in.ok());
}

TEST(ByteReader, NumbersOfOneCallComeAllOrNotAtAll)
{
    const Bytes bytes = {1, 0, 2, 0, 3};
    std::int16_t a = 9;
    std::int16_t b = 9;
    std::int16_t c = 9;
    ByteReader(bytes).numbers(a, b);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 2);
    ByteReader(bytes).numbers(a, b, c);
    EXPECT_EQ(a, 0);
    EXPECT_EQ(c, 0);
}

TEST(ByteReader, NothingToReadIsNotAFaultByItself)
{
    EXPECT_TRUE(ByteReader({}).ok());
}

TEST(ByteReader, CountedStrings)
{
    struct Row {
        const char* what;
        Bytes bytes;
        std::string text;
        bool ok;
    };
    const Row rows[] = {
        {"empty", {0, 0}, "", true},
        {"three bytes", {3, 0, 'a', 0, 'c'}, std::string("a\0c", 3), true},
        {"count says one more than there is", {4, 0, 'a', 'b', 'c'}, "", false},
        {"count says all it can", {0xFF, 0xFF, 'a'}, "", false},
        {"half a count", {1}, "", false},
    };
    for (const Row& row : rows) {
        ByteReader in(row.bytes);
        EXPECT_EQ(in.counted(), row.text) << row.what;
        EXPECT_EQ(in.ok(), row.ok) << row.what;
    }
}

TEST(ByteWriter, AppendsLittleEndian)
{
    Bytes bytes = {9};
    ByteWriter out(bytes);
    out.numbers(std::int16_t{-2});
    out.numbers(std::int32_t{0x01020304});
    out.numbers(100.0F);
    out.numbers(-0.5);
    out.counted("ab");
    EXPECT_EQ(bytes, (Bytes{9, 0xFE, 0xFF, 4, 3, 2,    1,    0, 0, 0xC8, 0x42, 0,
                            0, 0,    0,    0, 0, 0xE0, 0xBF, 2, 0, 'a',  'b'}));
}

TEST(ByteWriter, AStringIsCutAtTheLongestCount)
{
    for (const std::size_t length : {std::size_t{65535}, std::size_t{65536}, std::size_t{200000}}) {
        Bytes bytes;
        ByteWriter(bytes).counted(std::string(length, 'x'));
        ASSERT_EQ(bytes.size(), 2U + 65535U) << length;
        EXPECT_EQ(bytes[0], 0xFF);
        EXPECT_EQ(bytes[1], 0xFF);
    }
}

} // namespace
} // namespace mirtane
