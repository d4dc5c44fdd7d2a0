// files/bytes.cpp: strings with a count in front, the only part of a record whose length is not fixed.

#include "files/bytes.h"

namespace mirtane {

std::string ByteReader::counted()
{
    const std::span<const std::uint8_t> taken = take(number<std::uint16_t>());
    return std::string(taken.begin(), taken.end());
}

void ByteWriter::counted(std::string_view text)
{
    text = text.substr(0, longestCounted);
    numbers(static_cast<std::uint16_t>(text.size())); // at most 65,535, cut above
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

} // namespace mirtane
