// The rows of hatch and multiple-lines files byte by byte.

#include "files/library_row_codec.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace mirtane {
namespace {

HatchRow hatchSample()
{
    HatchRow r;
    r.h1 = {1, -2};
    r.h2 = {0.5F, 100};
    r.h3 = {3, 4};
    r.h4 = {5, 6};
    r.hatchTileW = 48;
    r.hatchTileH = -12;
    r.hatchRad = 10;
    r.hatchA1 = 1;
    r.hatchA2 = -2;
    r.hatchColor = 0xFF8000;
    r.hatchStyle = 4;
    r.hatchKind = Kind::arc;
    r.hatchName = "Brick";
    return r;
}

const Bytes hatchRowBytes = {
    0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x00, 0xC0, //  0 hx1 hy1
    0x00, 0x00, 0x00, 0x3F, 0x00, 0x00, 0xC8, 0x42, //  8 hx2 hy2
    0x00, 0x00, 0x40, 0x40, 0x00, 0x00, 0x80, 0x40, // 16 hx3 hy3
    0x00, 0x00, 0xA0, 0x40, 0x00, 0x00, 0xC0, 0x40, // 24 hx4 hy4
    0x00, 0x00, 0x40, 0x42,                         // 32 width of the tile
    0x00, 0x00, 0x40, 0xC1,                         // 36 height of the tile
    0x00, 0x00, 0x20, 0x41,                         // 40 radius
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F, // 44 first angle
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0, // 52 second angle
    0x00, 0x80, 0xFF, 0x00,                         // 60 colour
    0x04, 0x00,                                     // 64 style
    0x03, 0x00,                                     // 66 kind
    0x05, 0x00, 'B',  'r',  'i',  'c',  'k',        // 68 name
};

MultipleLine lineSample()
{
    MultipleLine r;
    r.m1 = -2;
    r.legStart = {1, 0.5F};
    r.legEnd = {100, 48};
    r.colour = 0x00FF80;
    r.style = 2;
    r.name = "Caf\xC3\xA9";
    return r;
}

const Bytes lineBytes = {
    0x00, 0x00, 0x00, 0xC0,                         //  0 offset
    0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x00, 0x3F, //  4 start of the leg
    0x00, 0x00, 0xC8, 0x42, 0x00, 0x00, 0x40, 0x42, // 12 its end
    0x80, 0xFF, 0x00, 0x00,                         // 20 colour
    0x02, 0x00,                                     // 24 style
    0x04, 0x00, 'C',  'a',  'f',  0xE9,             // 26 name, in the code page
};

template <class Row> Bytes written(void (*write)(ByteWriter&, const Row&), const Row& row)
{
    Bytes bytes;
    ByteWriter out(bytes);
    write(out, row);
    return bytes;
}

template <class Row> Row readBack(bool (*read)(ByteReader&, Row&), const Bytes& bytes)
{
    ByteReader in(bytes);
    Row row;
    EXPECT_TRUE(read(in, row));
    EXPECT_EQ(in.remaining(), 0U);
    return row;
}

template <class Row> void expectEveryShortenedRowRefused(bool (*read)(ByteReader&, Row&), const Bytes& whole)
{
    for (std::size_t n = 0; n < whole.size(); ++n) {
        const Bytes cut(whole.data(), whole.data() + n); // its own block, so a read past its end is seen
        ByteReader in(cut);
        Row row;
        EXPECT_FALSE(read(in, row)) << n;
    }
}

TEST(LibraryRowCodec, ARowIsWrittenFieldByField)
{
    EXPECT_EQ(written(writeHatchRow, hatchSample()), hatchRowBytes);
    EXPECT_EQ(written(writeMultipleLine, lineSample()), lineBytes);
}

TEST(LibraryRowCodec, TheSameBytesAreReadBack)
{
    EXPECT_EQ(readBack(readHatchRow, hatchRowBytes), hatchSample());
    EXPECT_EQ(readBack(readMultipleLine, lineBytes), lineSample());
}

TEST(LibraryRowCodec, RowsWithoutANameHaveTheirFixedBytes)
{
    EXPECT_EQ(written(writeHatchRow, {}).size(), 70U);
    EXPECT_EQ(hatchRowBytesWithoutName, 70U);
    EXPECT_EQ(written(writeMultipleLine, {}).size(), 28U);
    EXPECT_EQ(multipleLineBytesWithoutName, 28U);
}

TEST(LibraryRowCodec, EveryShortenedRowIsRefused)
{
    expectEveryShortenedRowRefused(readHatchRow, hatchRowBytes);
    expectEveryShortenedRowRefused(readMultipleLine, lineBytes);
}

TEST(LibraryRowCodec, NumbersThatAreNoneKeepTheirBits)
{
    HatchRow r = hatchSample();
    r.hatchTileW = std::bit_cast<float>(0x7F812345U);
    r.hatchA2 = std::bit_cast<double>(std::uint64_t{0x7FF0000000000123U});
    const Bytes bytes = written(writeHatchRow, r);
    EXPECT_EQ(written(writeHatchRow, readBack(readHatchRow, bytes)), bytes);
    EXPECT_EQ(Bytes(bytes.begin() + 32, bytes.begin() + 36), (Bytes{0x45, 0x23, 0x81, 0x7F}));
}

TEST(LibraryRowCodec, ANameIsCutAtTheLongestThatACountCanSay)
{
    MultipleLine r;
    r.name = std::string(70000, 'x');
    EXPECT_EQ(readBack(readMultipleLine, written(writeMultipleLine, r)).name.size(), 65535U);
}

} // namespace
} // namespace mirtane
