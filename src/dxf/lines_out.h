#pragma once

#include "dxf/number_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace mirtane {

// A DXF file as it grows, line by line, each ended by CR LF.
class DxfLines {
  public:
    // expected: about how many bytes there will be. decimalPoint stands in the numbers.
    DxfLines(std::size_t expected, char decimalPoint) : bytes_(expected), point_(decimalPoint) {}

    void line(std::string_view text);
    void pair(std::string_view code, std::string_view value)
    {
        line(code);
        line(value);
    }
    void pair(std::string_view code, float value);
    void pair(std::string_view code, double value);

    // The file; nothing is left behind.
    std::vector<std::uint8_t> take();

  private:
    void room(std::size_t count);

    std::vector<std::uint8_t> bytes_; // grown ahead of what is used
    std::size_t used_ = 0;
    char point_;
};

} // namespace mirtane
