#include "platform/posix/hash.h"

#include <cstdint>

namespace mirtane {

// FNV-1a of 64 bits.
std::string hashOf(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char letter : text) {
        hash ^= static_cast<unsigned char>(letter); // a char may be negative
        hash *= 0x100000001b3;
    }
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[hash >> shift & 15U];
    return digits;
}

} // namespace mirtane
