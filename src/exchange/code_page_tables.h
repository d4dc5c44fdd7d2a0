#pragma once

#include <array>
#include <span>

namespace mirtane {

struct CodePageTable {
    int number = 0; // 88592 is ISO 8859-2, 10000 Mac Roman
    std::array<char16_t, 128> upperHalf{};
};

std::span<const CodePageTable> codePageTables();

} // namespace mirtane
