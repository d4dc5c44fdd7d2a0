#include "exchange/pairs.h"

#include "dxf_text.h"

#include <bit>

namespace mirtane {
namespace {

using namespace fake;

std::string joined(const std::vector<DxfGroup>& pairs)
{
    std::string text;
    for (const DxfGroup& one : pairs) text += std::to_string(one.code) + "=" + std::string(one.value) + ";";
    return text;
}

TEST(DxfPairs, AnyPaddingAndAnyLineEnd)
{
    struct Row {
        const char* what;
        std::string text;
    };
    const Row rows[] = {
        {"bare", "0\nLINE\n10\n1.5\n"},
        {"padded", "  0\nLINE\n 10\n1.5\n"},
        {"far padded, and behind", "     0 \nLINE\n\t10\t\n1.5\n"},
        {"CR LF", "0\r\nLINE\r\n10\r\n1.5\r\n"},
        {"CR alone", "0\rLINE\r10\r1.5\r"},
        {"CR CR LF", "0\r\r\nLINE\r\r\n10\r\r\n1.5\r\r\n"},
        {"both in one file", "0\r\nLINE\r\n10\n1.5\r"},
        {"no end behind the last", "0\nLINE\n10\n1.5"},
        {"a mark of UTF-8 before", "\xEF\xBB\xBF"
                                   "0\nLINE\n10\n1.5\n"},
        {"an end mark behind", "0\nLINE\n10\n1.5\n\x1a"
                               "0\nCIRCLE\n"},
        {"comments", "999\nby hand\n0\nLINE\n999\n0\n10\n1.5\n"},
        {"a line too much", "0\nLINE\nwhat\n10\n1.5\n"},
        {"a blank line too much", "0\nLINE\n\n10\n1.5\n"},
        {"a code without a value at the end", "0\nLINE\n10\n1.5\n20"},
    };
    for (const Row& row : rows) EXPECT_EQ(joined(dxfPairs(row.text)), "0=LINE;10=1.5;") << row.what;
}

TEST(DxfPairs, BlanksOfAValueStay)
{
    EXPECT_EQ(joined(dxfPairs("1\n  two  words \n")), "1=  two  words ;");
}

// The bytes of a number, the lowest first.
template <class Whole> std::string low(Whole value)
{
    std::string bytes;
    for (std::size_t i = 0; i < sizeof(Whole); ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF); // a byte
    return bytes;
}

std::string low(double value)
{
    return low(std::bit_cast<std::uint64_t>(value));
}

const std::string binaryMark("AutoCAD Binary DXF\r\n\x1a\0", 22);

TEST(BinaryDxf, CodesOfTwoBytes)
{
    std::string file = binaryMark;
    const auto code = [&file](std::int16_t number) { file += low(number); };
    code(0), file += std::string("CIRCLE\0", 7);
    code(10), file += low(-0.1);
    code(62), file += low(std::int16_t{-3});
    code(90), file += low(std::int32_t{70000});
    code(160), file += low(std::int64_t{1} << 40);
    code(290), file += '\1';
    code(310), file += std::string("\3abc", 4);
    code(1071), file += low(std::int32_t{-5});
    code(1), file += std::string("two\nlines\0", 10);
    ASSERT_TRUE(isBinaryDxf(file));
    EXPECT_EQ(joined(dxfPairs(textOfBinaryDxf(file))),
              "0=CIRCLE;10=-0.1;62=-3;90=70000;160=1099511627776;290=1;310=;1071=-5;1=two lines;");
}

TEST(BinaryDxf, CodesOfOneByteAndOfThree)
{
    const std::string file = binaryMark + std::string("\0LINE\0", 6) + "\x0A" + low(1e21) + "\xFF" +
                             low(std::int16_t{1040}) + low(2.5) + "\x46" + low(std::int16_t{9});
    EXPECT_EQ(joined(dxfPairs(textOfBinaryDxf(file))), "0=LINE;10=1e+21;1040=2.5;70=9;");
}

TEST(BinaryDxf, EveryShortenedFileIsTaken)
{
    const std::string whole = binaryMark + low(std::int16_t{0}) + std::string("LINE\0", 5) +
                              low(std::int16_t{10}) + low(1.5) + low(std::int16_t{310}) +
                              std::string("\3abc", 4);
    for (std::size_t n = binaryMark.size(); n < whole.size(); ++n) {
        const std::vector<char> cut(whole.begin(),
                                    whole.begin() + static_cast<std::ptrdiff_t>(n)); // in whole
        EXPECT_LE(dxfPairs(textOfBinaryDxf({cut.data(), cut.size()})).size(), 2U) << n;
    }
}

TEST(BinaryDxf, ComesInLikeTheTextItStandsFor)
{
    std::string file = binaryMark;
    const auto add = [&file](std::int16_t code, const std::string& value) { file += low(code) + value; };
    const auto word = [](const std::string& text) { return text + std::string(1, '\0'); };
    add(0, word("SECTION")), add(2, word("ENTITIES")), add(0, word("LINE"));
    add(10, low(1.25)), add(20, low(-2.0)), add(30, low(0.0)), add(11, low(3.0)), add(21, low(4.5));
    add(0, word("ENDSEC")), add(0, word("EOF"));
    const std::vector<EntityRecord> objects = objectsOf(readInFull(file));
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_THAT(objects[0].p1, StandsAt(1.25, -2));
    EXPECT_THAT(objects[0].p2, StandsAt(3, 4.5));
}

} // namespace
} // namespace mirtane
