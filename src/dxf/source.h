#pragma once

#include "dxf/scanner.h"

#include <string>

namespace mirtane {

// The lines of a file as a record takes them: a line is looked at as a group code, and if it is one of the
// record's, the next line is its value. Each value function takes that line, and leaves its target as it was
// where the line is missing or does not hold what it should.
class DxfSource {
  public:
    DxfSource(std::string_view text, char decimalPoint) : lines_(text), point_(decimalPoint) {}

    bool next(std::string_view& line) { return lines_.next(line); }
    bool atEnd() const { return lines_.atEnd(); }

    // False at the end of the text.
    bool value(std::string_view& line);

    void number(float& target);
    void number(double& target);
    void angle(double& target); // degrees in the file, radians in target
    void whole(std::int16_t& target);
    void text(std::string& target);      // UTF-8
    void blockName(std::string& target); // UTF-8

    // Whether a value was there since the last call.
    bool tookValues();

  private:
    std::optional<double> leading();

    LineScanner lines_;
    char point_;
    bool took_ = false;
};

// The name of a block as UTF-8, cut off where no program makes a longer one: each line of the block keeps it.
std::string dxfBlockName(std::string_view bytes);

// A text of the file as UTF-8. What is beyond the length that a drawing file can hold is cut off.
std::string dxfWords(std::string_view bytes);

} // namespace mirtane
