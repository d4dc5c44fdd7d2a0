#pragma once

#include "exchange/drawing_maker.h"
#include "exchange/mtext_layout.h"

namespace mirtane {

struct ParagraphPlace {
    Vec3 at;
    Vec along{1, 0};        // of length 1
    std::string_view style; // of the text, by its name
};

void drawParagraphs(std::string_view words, const ParagraphForm& form, const ParagraphPlace& place,
                    DrawingMaker& maker);

// How much wider or narrower the letters of a style are; 1 for one that is not there.
double widthFactorOf(std::string_view style, const DxfList& list);

} // namespace mirtane
