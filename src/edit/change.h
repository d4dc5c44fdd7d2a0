#pragma once

#include "model/session.h"
#include "render/canvas.h"

#include <optional>

namespace mirtane {

// Whether anything is selected; if not, entry says so. Every button of the Edits form but its "Cancel", and
// every row of the edit list, asks this first.
bool somethingSelected(Session& s);

// "Delete": the selected objects go out as one action. curFunc stays.
void deleteSelection(Session& s, Canvas& pic1);

// "Deselect All".
void deselect(Session& s, Canvas& pic1);

// What "Change" gives to the selected objects; what is absent stays as each object has it.
struct Changes {
    std::optional<std::int16_t> layer;
    std::optional<std::int32_t> color; // 0xBBGGRR
    std::optional<std::int16_t> style; // for lines, circles, arcs and ellipses alone
};

// The selected objects anew, with the changes, also when there are none. On a hidden layer they are shown
// until the layer is next switched. False if there is no room for all of them: then nothing was done.
bool changeSelection(Session& s, Canvas& pic1, const Changes& changes);

} // namespace mirtane
