#include "exchange/pairs.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mirtane {
namespace {

constexpr int comment = 999;

// The bytes of eight that are 0, by their highest bits: taking 1 from such a byte borrows. Above the lowest
// of them others may be marked as well.
constexpr std::uint64_t zeroBytes(std::uint64_t eight)
{
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101, highest = ones << 7;
    return (eight - ones) & ~eight & highest;
}

// The first end of a line, or end. Most lines of these files are of fewer than eight characters, which are
// looked at in one step: that is twice as fast as to call the library's search for each of them.
const char* findBreak(const char* from, const char* end)
{
    constexpr std::uint64_t feeds = 0x0A0A'0A0A'0A0A'0A0A, returns = 0x0D0D'0D0D'0D0D'0D0D;
    if constexpr (std::endian::native == std::endian::little) {
        for (; end - from >= 8; from += 8) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, from, sizeof eight);
            const std::uint64_t breaks = zeroBytes(eight ^ feeds) | zeroBytes(eight ^ returns);
            if (breaks != 0) return from + std::countr_zero(breaks) / 8;
        }
    }
    return std::find_if(from, end, [](char c) { return c == '\n' || c == '\r'; });
}

// Lines end at LF, at CR, or at both, and then with as many CR before the LF as transfers have put there.
const char* behindBreak(const char* stop, const char* end)
{
    constexpr std::ptrdiff_t mostReturns = 8;
    if (stop == end) return end;
    if (*stop == '\n') return stop + 1;
    if (end - stop > 1 && stop[1] == '\n') return stop + 2; // what nearly all lines end with
    const char* const last = stop + std::min(mostReturns, end - stop);
    const char* const feed = std::find_if(stop, last, [](char c) { return c != '\r'; });
    return (feed != last && *feed == '\n' ? feed : stop) + 1;
}

class Lines {
  public:
    explicit Lines(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

    bool next(std::string_view& line)
    {
        if (at_ == end_) return false;
        const char* const stop = findBreak(at_, end_);
        line = {at_, static_cast<std::size_t>(stop - at_)}; // stop is not before at_
        at_ = behindBreak(stop, end_);
        return true;
    }

  private:
    const char* at_;
    const char* end_;
};

// The number that a few digits are, or -1: nearly all codes have three at most.
int fewDigits(std::string_view text)
{
    constexpr std::size_t few = 4;
    if (text.empty() || text.size() > few) return -1;
    int number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return -1;
        number = 10 * number + (c - '0');
    }
    return number;
}

bool isCode(std::string_view line, int& code)
{
    line = trimmed(line);
    code = fewDigits(line);
    if (code >= 0) return true;
    const char* const end = line.data() + line.size();
    const auto [stop, fault] = std::from_chars(line.data(), end, code);
    return fault == std::errc{} && stop == end && !line.empty();
}

std::string_view beforeEndMark(std::string_view text)
{
    constexpr char endOfFile = 0x1A; // of systems that are no more
    return text.substr(0, text.find(endOfFile));
}

} // namespace

std::vector<DxfGroup> dxfPairs(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    constexpr std::size_t bytesOfAPair = 8; // seldom less
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::vector<DxfGroup> pairs;
    pairs.reserve(text.size() / bytesOfAPair);
    Lines lines(beforeEndMark(text));
    std::string_view line;
    DxfGroup group;
    while (lines.next(line)) {
        if (!isCode(line, group.code) || !lines.next(group.value)) continue;
        if (group.code != comment) pairs.push_back(group);
    }
    return pairs;
}

} // namespace mirtane
