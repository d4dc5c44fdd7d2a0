#include "play/words.h"

#include "geometry/fault.h"
#include "play/json_compare.h"

#include <charconv>
#include <cmath>

namespace mirtane::play {
namespace {

template <class Number> Number read(std::string_view word)
{
    Number value{};
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (fault != std::errc{} || end != word.data() + word.size() ||
        !std::isfinite(static_cast<double>(value))) {
        throw Refusal{"not a number: " + std::string(word)};
    }
    return value;
}

std::string stringOf(std::string_view quoted)
{
    if (const auto text = stringOfJson(quoted)) return *text;
    throw Refusal{"not a string: " + std::string(quoted)};
}

// One past the closing quote of the JSON string that text begins with.
std::size_t endOfString(std::string_view text)
{
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '"')
            return i + 1;
    }
    throw Refusal{"a string without its end"};
}

} // namespace

void Words::skipBlanks()
{
    left_.remove_prefix(std::min(left_.find_first_not_of(" \t"), left_.size()));
}

bool Words::atEnd()
{
    skipBlanks();
    return left_.empty();
}

std::size_t Words::count() const
{
    Words copy = *this;
    std::size_t words = 0;
    for (; !copy.atEnd(); ++words) copy.word();
    return words;
}

std::string_view Words::word()
{
    if (atEnd()) throw Refusal{"a word is missing"};
    const std::string_view found = left_.substr(0, left_.find_first_of(" \t"));
    left_.remove_prefix(found.size());
    return found;
}

double Words::number()
{
    return read<double>(word());
}

float Words::coordinate()
{
    const std::string_view found = word();
    float value = 0;
    if (!keep(value, read<double>(found))) throw Refusal{"not a coordinate: " + std::string(found)};
    return value;
}

int Words::whole()
{
    return read<int>(word());
}

std::string_view Words::rest()
{
    skipBlanks();
    const std::string_view found = left_;
    left_ = {};
    return found;
}

std::string Words::text()
{
    const std::string_view found = rest();
    return found.starts_with('"') ? stringOf(found) : std::string(found);
}

std::string Words::wordOrString()
{
    if (atEnd() || left_.front() != '"') return std::string(word());
    const std::string_view quoted = left_.substr(0, endOfString(left_));
    left_.remove_prefix(quoted.size());
    return stringOf(quoted);
}

void Words::end()
{
    if (!atEnd()) throw Refusal{"too many words: " + std::string(left_)};
}

} // namespace mirtane::play
