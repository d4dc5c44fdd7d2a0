#pragma once

namespace mirtane {

// Codes of the data that any program may keep with an object.
namespace data {
inline constexpr int words = 1000;
inline constexpr int application = 1001;
inline constexpr int brace = 1002;
inline constexpr int number = 1040;
inline constexpr int whole = 1070;
} // namespace data

// In the place of a kind.
inline constexpr int partOfAnother = 0;

} // namespace mirtane
