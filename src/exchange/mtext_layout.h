#pragma once

// A paragraph text as the lines that it is seen as.

#include "exchange/vec.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

struct ParagraphColumns {
    int count = 1;
    double width = 0, gutter = 0;
    std::vector<double> heights; // of each; where there is none, only a break in the text ends a column
};

// In the text's own directions, x the way that it is written and y up, from its insertion point.
struct ParagraphForm {
    double height = 1;  // of a capital letter
    double width = 0;   // that lines are wrapped at; 0: at none
    int attachment = 1; // 1 top left to 9 bottom right, row by row
    double lineSpacing = 1;
    bool exactSpacing = false; // a high letter does not push its line down
    double widthFactor = 1;    // of the letters
    ParagraphColumns columns{};
};

// What the codes in a text made of a line; where they change within it, as it begins.
struct ParagraphLine {
    std::string words;
    Vec at;                         // on the baseline, by justification its start, end or middle
    std::int16_t justification = 0; // 0 left, 1 right, 2 centre
    double height = 1;
    bool underlined = false;
    std::string face;             // empty: that of the text's style
    std::optional<int> color;     // by number, 0 and 256 included
    std::optional<int> trueColor; // 0xRRGGBB
};

// text is UTF-8. Lines without a sign in them are not among them.
std::vector<ParagraphLine> paragraphLines(std::string_view text, const ParagraphForm& form);

} // namespace mirtane
