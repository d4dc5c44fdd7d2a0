#pragma once

#include "exchange/drawing_maker.h"
#include "exchange/mtext_layout.h"

namespace mirtane {

struct ParagraphPlace {
    Vec3 at;
    Vec3 along{1, 0, 0}; // the way of the line, and the way up from it, of length 1
    Vec3 up{0, 1, 0};
    std::string_view style; // of the text, by its name
};

void drawParagraphs(std::string_view words, const ParagraphForm& form, const ParagraphPlace& place,
                    DrawingMaker& maker);

// How much wider or narrower the letters of a style are; 1 for one that is not there.
double widthFactorOf(std::string_view style, const DxfList& list);

} // namespace mirtane
