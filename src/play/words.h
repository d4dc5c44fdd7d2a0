#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mirtane::play {

// A fault of a line: what stands behind FILE:LINE, and the exit status that it ends the run with.
struct Refusal {
    std::string reason;
    int status = 2;
};

// Divides a line into words by blanks, and into the rest of the line. Every taker throws Refusal for what is
// not there or not of its kind.
class Words {
  public:
    explicit Words(std::string_view line) : left_(line) {}

    bool atEnd();
    std::size_t count() const; // words left
    std::string_view word();
    double number();
    float coordinate();
    int whole();
    // The rest of the line as it stands, or the string that it is as JSON if it begins with a double quote.
    std::string text();
    // One word, or one JSON string, which may have blanks.
    std::string wordOrString();
    std::string_view rest();
    void end(); // refuses what is left over

  private:
    void skipBlanks();

    std::string_view left_;
};

} // namespace mirtane::play
