#include "exchange/pairs.h"

#include "dxf_text.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <random>

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

// Values of every length at every distance from the end of the file, with letters beside them that differ
// from an end of a line in one bit.
TEST(DxfPairs, LinesOfEveryLengthEndWhereTheyEnd)
{
    const std::string letters = "\x0B\x0C\x8A\x8D\x09\x0E\xFA a\x01\xFF";
    for (const std::string end : {"\n", "\r", "\r\n", "\r\r\n"}) {
        for (std::size_t length = 0; length < 40; ++length) {
            std::string value;
            for (std::size_t i = 0; i < length; ++i) value += letters[(i + length) % letters.size()];
            for (std::size_t behind = 0; behind < 10; ++behind) {
                const std::string last(behind, 'x');
                const std::string text =
                    std::string("1") + end + value + end + " 40" + end + value + end + "1004" + end + last;
                const std::string shown = "1=" + value + ";40=" + value + ";1004=" + last + ";";
                EXPECT_EQ(joined(dxfPairs(text + end)), shown) << length << ", " << behind;
                if (behind > 0) {
                    EXPECT_EQ(joined(dxfPairs(text)), shown) << length << ", " << behind;
                }
            }
        }
    }
}

TEST(DxfNumbers, ReadAsTheLibraryReadsThem)
{
    std::mt19937_64 chance(7);
    for (int i = 0; i < 20'000; ++i) {
        const auto digits = std::to_string(chance() >> (chance() % 64));
        const std::size_t point = chance() % (digits.size() + 2);
        std::string text =
            point > digits.size() ? digits : digits.substr(0, point) + "." + digits.substr(point);
        if (chance() % 2 == 0) text.insert(0, "-");
        double expected = 0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(dxfNumber(text)), std::bit_cast<std::uint64_t>(expected))
            << text;
    }
    for (const auto& [text, number] : {std::pair{" 7 ", 7.0},
                                       {"+5.25", 5.25},
                                       {".5", 0.5},
                                       {"-3.", -3.0},
                                       {"1e3", 1000.0},
                                       {"2.5E-2", 0.025},
                                       {"12a", 12.0},
                                       {"1.2.3", 1.2}})
        EXPECT_EQ(dxfNumber(text, -9), number) << text;
    for (const char* const none : {"", " ", ".", "-", "-.", "+", "x1", "nan", "inf", "1e999"})
        EXPECT_EQ(dxfNumber(none, -9), -9) << none;
    EXPECT_TRUE(std::signbit(dxfNumber("-0.0")));
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
