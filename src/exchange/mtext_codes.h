#pragma once

// The codes in a paragraph text, taken apart.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

// What holds from a code on, until the brace closes within which it stands.
struct LetterForm {
    double height = 1; // of a capital letter
    double widthFactor = 1;
    bool underlined = false;
    std::string face{};
    std::optional<int> color{}, trueColor{};
};

enum class Break : std::uint8_t { none, line, column };

// Letters of one form, and the break behind them.
struct LetterRun {
    std::string words;
    LetterForm form;
    Break after = Break::none;
    std::optional<std::int16_t> justification; // of the paragraph: 0 left, 1 right, 2 centre
};

// "%%d", "^I" and the like stay in the words.
std::vector<LetterRun> letterRuns(std::string_view text, const LetterForm& form);

} // namespace mirtane
