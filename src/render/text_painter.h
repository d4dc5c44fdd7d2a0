#pragma once

#include "model/entity_store.h"
#include "render/canvas.h"

namespace mirtane {

// One line of text as it is written. What the views look at must outlive the lettering.
struct Lettering {
    Point at;           // upper left corner, about which the line is turned
    float size = 0;     // world units
    double degrees = 0; // counter-clockwise; written at the nearest whole degree, ties to even
    bool underlined = false;
    std::string_view font;
    std::string_view words;
};

// That of a text (kind 6), where its painting starts: its justification is in that point already.
Lettering textLettering(const EntityRecord& r);
Lettering textLetteringAt(const EntityStore& store, std::size_t at);
// That of a dimension's text (kinds 7 to 10), never underlined.
Lettering dimLettering(const EntityRecord& r);
Lettering dimLetteringAt(const EntityStore& store, std::size_t at);

// Whichever of the two fits the kind.
Lettering letteringOf(const EntityRecord& r);

// Sets the surface's font, writes the line in the colour as set and leaves the pen dotted. The surface keeps
// the font.
void paintText(Canvas& pic1, const Lettering& text);
void paintDimText(Canvas& pic1, const Lettering& text); // not underlined, whatever the lettering says

// Width of words in a font at a size, world units; it does not change with the zoom. The surface keeps the
// font.
float textWidthIn(Canvas& pic1, std::string_view font, float size, std::string_view words);

} // namespace mirtane
