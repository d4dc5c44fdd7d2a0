#include "exchange/pairs.h"

#include <charconv>
#include <cstring>
#include <optional>

namespace mirtane {
namespace {

constexpr int comment = 999;

// Lines end as they do in the rest of the file: at LF, with or without CR before it, or at CR alone. A
// carriage return that stands alone in a file of the first sort ends a line as well.
class Lines {
  public:
    explicit Lines(std::string_view text)
        : at_(text.data()), end_(text.data() + text.size()), alone_(hasReturnAlone(text))
    {
    }

    bool next(std::string_view& line)
    {
        if (at_ == end_) return false;
        const char* const stop = alone_ ? endOfAny() : endAtFeed();
        const char* last = stop;
        while (last != at_ && last[-1] == '\r') --last;
        line = {at_, static_cast<std::size_t>(last - at_)}; // last is not before at_
        const bool isPair = stop != end_ && *stop == '\r' && stop + 1 != end_ && stop[1] == '\n';
        at_ = stop == end_ ? end_ : stop + (isPair ? 2 : 1);
        return true;
    }

  private:
    static bool hasReturnAlone(std::string_view text)
    {
        for (std::size_t i = text.find('\r'); i < text.size(); i = text.find('\r', i + 1)) {
            const std::size_t next = text.find_first_not_of('\r', i);
            if (next == text.npos || text[next] != '\n') return true;
            i = next;
        }
        return false;
    }

    const char* endAtFeed() const
    {
        const void* const found = std::memchr(at_, '\n', static_cast<std::size_t>(end_ - at_));
        return found == nullptr ? end_ : static_cast<const char*>(found); // what memchr looked at
    }

    const char* endOfAny() const
    {
        const char* stop = at_;
        while (stop != end_ && *stop != '\n' && *stop != '\r') ++stop;
        return stop;
    }

    const char* at_;
    const char* end_;
    bool alone_;
};

bool isCode(std::string_view line, int& code)
{
    line = trimmed(line);
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
    constexpr std::size_t bytesOfAPair = 12; // seldom less
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
