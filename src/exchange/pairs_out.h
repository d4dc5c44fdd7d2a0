#pragma once

#include "exchange/vec.h"
#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace mirtane {

// Files are written in inches, y up; twelve world units are one.
double toInches(double world);
Vec toInches(Point world);

// As a file has an angle: the number that a reader's product brings back to it, if there is one.
double degreesOf(double radians);

// What one object of a file is called by another. 0 is none.
using DxfHandle = std::uint32_t;

// A DXF file as it grows: pairs of a group code and a value, a line each.
class PairsOut {
  public:
    void text(int code, std::string_view value); // one line, as it is to stand in the file
    void whole(int code, std::int64_t value);
    void handle(int code, DxfHandle value);
    // Both leave out no digit that a float has. The second keeps all that a double has.
    void number(int code, double value) { number(code, value, singleDigits); }
    void exact(int code, double value) { number(code, value, doubleDigits); }
    void degrees(int code, double radians) { exact(code, degreesOf(radians)); }
    void point(int code, Vec p); // code, code + 10, and code + 20 with 0

    std::string take() { return std::move(lines_); }

  private:
    // Nine make a float whole again; one more, for it is divided by twelve.
    static constexpr int singleDigits = 10;
    static constexpr int doubleDigits = 17;

    void code(int code);
    void number(int code, double value, int digits);

    std::string lines_;
};

} // namespace mirtane
