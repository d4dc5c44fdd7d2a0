// files/bytes.cpp: strings with a count in front, the only part of a record whose length is not fixed.

#include "files/bytes.h"

namespace mirtane {

std::string_view ByteReader::counted()
{
    const std::span<const std::uint8_t> taken = take(number<std::uint16_t>());
    return {reinterpret_cast<const char*>(taken.data()), taken.size()}; // bytes are read as characters
}

void ByteWriter::counted(std::string_view text)
{
    text = text.substr(0, longestCounted);
    numbers(static_cast<std::uint16_t>(text.size())); // at most 65,535, cut above
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

} // namespace mirtane
