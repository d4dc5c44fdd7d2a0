#pragma once

#include "files/disk.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace mirtane {

// The bytes of a number turned from their order in memory to that of a file (the lowest first), or back.
template <class Number>
std::array<std::uint8_t, sizeof(Number)> swappedIfBigEndian(std::array<std::uint8_t, sizeof(Number)> raw)
{
    if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(raw);
    return raw;
}

// Takes little-endian numbers from bytes that it refers to and does not own. It never reads past the last
// byte: from the first read that would, every read gives zeros and empty strings, and ok() is false from then
// on, so that a caller tests once, at its end.
class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool ok() const { return ok_; }
    std::size_t remaining() const { return rest_.size(); }

    // Fills numbers, their bits as they are (a NaN keeps its payload): all of them, or all with 0.
    template <class... Number> void numbers(Number&... value)
    {
        const std::span<const std::uint8_t> taken = take((sizeof(Number) + ...));
        const std::uint8_t* from = taken.data();
        ((value = taken.empty() ? Number{} : decoded<Number>(from)), ...);
    }

    template <class Number> Number number()
    {
        Number value{};
        numbers(value);
        return value;
    }

    // The bytes behind a 16-bit count; empty when fewer are left than it says.
    std::string_view counted();

  private:
    // The next count bytes, or none and not ok() any more.
    std::span<const std::uint8_t> take(std::size_t count)
    {
        if (count > rest_.size()) {
            ok_ = false;
            rest_ = {};
            return {};
        }
        const std::span<const std::uint8_t> taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }

    template <class Number> static Number decoded(const std::uint8_t*& from)
    {
        std::array<std::uint8_t, sizeof(Number)> raw;
        std::copy_n(from, sizeof(Number), raw.begin());
        from += sizeof(Number);
        return std::bit_cast<Number>(swappedIfBigEndian<Number>(raw));
    }

    std::span<const std::uint8_t> rest_;
    bool ok_ = true;
};

// Appends little-endian numbers to bytes that it refers to.
class ByteWriter {
  public:
    static constexpr std::size_t longestCounted = 65535;

    explicit ByteWriter(Bytes& bytes) : bytes_(bytes) {}

    // The numbers, one behind the other.
    template <class... Number> void numbers(Number... value)
    {
        std::uint8_t out[(sizeof(Number) + ...)];
        std::uint8_t* to = out;
        (encode(to, value), ...);
        bytes_.insert(bytes_.end(), out, to);
    }

    // A 16-bit count and the bytes; what lies beyond 65,535 bytes is cut off.
    void counted(std::string_view text);

  private:
    template <class Number> static void encode(std::uint8_t*& to, Number value)
    {
        const auto raw = std::bit_cast<std::array<std::uint8_t, sizeof(Number)>>(value);
        to = std::ranges::copy(swappedIfBigEndian<Number>(raw), to).out;
    }

    Bytes& bytes_;
};

} // namespace mirtane
