// exchange/binary_pairs.cpp: a binary file as text. The code says what sort of value follows; which codes
// have which has changed with the releases only in how a code itself is kept: in one byte at first, in two
// since.

#include "exchange/pairs.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

namespace mirtane {
namespace {

constexpr std::string_view mark("AutoCAD Binary DXF\r\n\x1a\0", 22);

enum class Sort { text, number, byte, whole16, whole32, whole64, chunk };

struct SortRow {
    int first, last;
    Sort sort;
};

constexpr SortRow sorts[] = {
    {10, 59, Sort::number},      {60, 79, Sort::whole16},    {90, 99, Sort::whole32},
    {110, 149, Sort::number},    {160, 169, Sort::whole64},  {170, 179, Sort::whole16},
    {210, 239, Sort::number},    {270, 289, Sort::whole16},  {290, 299, Sort::byte},
    {310, 319, Sort::chunk},     {370, 389, Sort::whole16},  {400, 409, Sort::whole16},
    {420, 429, Sort::whole32},   {440, 459, Sort::whole32},  {460, 469, Sort::number},
    {1004, 1004, Sort::chunk},   {1010, 1059, Sort::number}, {1060, 1070, Sort::whole16},
    {1071, 1071, Sort::whole32},
};

Sort sortOf(int code)
{
    for (const SortRow& row : sorts) {
        if (code >= row.first && code <= row.last) return row.sort;
    }
    return Sort::text;
}

class BinaryReader {
  public:
    explicit BinaryReader(std::string_view bytes, bool wideCodes) : rest_(bytes), wideCodes_(wideCodes) {}

    std::string run()
    {
        std::string out;
        out.reserve(rest_.size() * 2);
        while (ok_ && !rest_.empty()) {
            const auto code = nextCode();
            if (!ok_) break;
            const std::string value = nextValue(sortOf(code));
            if (ok_) out.append(std::to_string(code)).append("\n").append(value).append("\n");
        }
        return out;
    }

  private:
    // Zero past the end; the loop ends there.
    template <class Whole> Whole take()
    {
        if (rest_.size() < sizeof(Whole)) {
            ok_ = false;
            return 0;
        }
        std::uint64_t value = 0;
        for (std::size_t i = sizeof(Whole); i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(rest_[i]); // char may be signed
        rest_.remove_prefix(sizeof(Whole));
        return static_cast<Whole>(value); // as many bytes as it was made of
    }

    int nextCode()
    {
        constexpr std::uint8_t wideFollows = 255;
        if (wideCodes_) return take<std::int16_t>();
        const auto code = take<std::uint8_t>();
        return code == wideFollows ? take<std::int16_t>() : code;
    }

    std::string nextValue(Sort sort)
    {
        switch (sort) {
        case Sort::text:
            return text();
        case Sort::number:
            return number();
        case Sort::byte:
            return std::to_string(take<std::uint8_t>());
        case Sort::whole16:
            return std::to_string(take<std::int16_t>());
        case Sort::whole32:
            return std::to_string(take<std::int32_t>());
        case Sort::whole64:
            return std::to_string(take<std::int64_t>());
        case Sort::chunk:
            return chunk();
        }
        return {};
    }

    // Up to its zero, which a file that was cut lacks.
    std::string text()
    {
        const std::size_t size = rest_.find('\0');
        ok_ = size != rest_.npos;
        std::string value(rest_.substr(0, size));
        for (char& c : value) {
            if (c == '\r' || c == '\n' || c == '\x1a') c = ' '; // would end the line
        }
        rest_.remove_prefix(ok_ ? size + 1 : rest_.size());
        return value;
    }

    std::string number()
    {
        const auto value = std::bit_cast<double>(take<std::uint64_t>());
        std::array<char, 32> digits{}; // the longest has 24
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        return {digits.data(), end};
    }

    // Bytes that no record of ours needs.
    std::string chunk()
    {
        const auto size = take<std::uint8_t>();
        ok_ = ok_ && size <= rest_.size();
        if (ok_) rest_.remove_prefix(size);
        return {};
    }

    std::string_view rest_;
    bool wideCodes_;
    bool ok_ = true;
};

} // namespace

bool isBinaryDxf(std::string_view bytes)
{
    return bytes.starts_with(mark);
}

// The first pair is the code 0 and a text that is not empty, so that its second byte tells how codes are
// kept.
std::string textOfBinaryDxf(std::string_view bytes)
{
    bytes.remove_prefix(mark.size());
    const bool wideCodes = bytes.size() > 1 && bytes[0] == 0 && bytes[1] == 0;
    return BinaryReader(bytes, wideCodes).run();
}

} // namespace mirtane
