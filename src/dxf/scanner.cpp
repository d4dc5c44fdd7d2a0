#include "dxf/scanner.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace mirtane {
namespace {

bool startsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '.';
}

// A number whose first character has been looked at, so that no word for infinity gets here.
std::optional<double> unsignedNumber(std::string_view text)
{
    double value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault == std::errc::invalid_argument) return {};
    if (fault == std::errc{}) return value;
    const auto length = static_cast<std::size_t>(end - text.data()); // end lies within text
    const std::string_view number = text.substr(0, length);
    const std::size_t exponent = number.find_first_of("eE");
    const bool large = exponent == std::string_view::npos ? number[number.find_first_not_of('0')] != '.'
                                                          : number[exponent + 1] != '-';
    return large ? std::nullopt : std::optional(0.0);
}

} // namespace

std::string_view textOf(std::span<const std::uint8_t> bytes)
{
    // Bytes may be looked at as characters: the one cast that the language allows for any object.
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool LineScanner::next(std::string_view& line)
{
    line = {};
    if (at_ == end_) return false;
    const char* stop = at_;
    while (stop != end_ && *stop != '\n' && *stop != '\r') ++stop;
    line = {at_, static_cast<std::size_t>(stop - at_)}; // stop does not lie before at_
    at_ = stop;
    if (at_ != end_ && *at_ == '\r') ++at_;
    if (at_ != end_ && *at_ == '\n') ++at_;
    return true;
}

std::optional<double> leadingNumber(std::string_view text, char decimalPoint)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool minus = text.starts_with('-');
    if (minus || text.starts_with('+')) text.remove_prefix(1);
    std::string respelled;
    if (decimalPoint != '.') {
        respelled.assign(text);
        std::ranges::replace(respelled, decimalPoint, '.');
        text = respelled;
    }
    if (text.empty() || !startsNumber(text[0])) return {};
    const std::optional<double> value = unsignedNumber(text);
    return minus && value ? -*value : value;
}

} // namespace mirtane
