#pragma once

// The baseline of an object's text, from where its painting starts to where its string ends. Edits that may
// turn a text round work on both ends, so that it still reads forwards.

#include "render/canvas.h"
#include "tables/entity_record.h"

namespace mirtane {

struct Baseline {
    Point start, end;
};

// Stands for an empty text while its baseline is measured.
inline constexpr std::string_view emptyTextStandIn = "????????????";

// The baseline under words in the object's own font, size and rotation. Leaves the surface on that font.
// Of a kind without text there is none, and nothing is measured.
Baseline baselineUnder(Canvas& pic1, const EntityRecord& r, std::string_view words);

// Lays the text on a new baseline at a rotation, in degrees. A text's point as entered goes where its
// justification asks for: the start, the end or the middle. A rotation that faults keeps the old one.
void layText(EntityRecord& r, const Baseline& on, double degrees);

} // namespace mirtane
