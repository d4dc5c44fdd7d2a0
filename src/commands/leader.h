#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Leader": its text is typed first, as live text; then the tip of the arrow and the elbow are clicked. A
// click while the text is typed ends the typing; that click is no tip yet.
void leaderStep(Session& s, Canvas& pic1);
void leaderBand(Session& s, Canvas& pic1);

// The text as typed so far, where the last click was, over the picture as it stands.
void leaderPreview(Session& s, Canvas& pic1);

} // namespace mirtane
