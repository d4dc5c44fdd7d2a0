#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Shows the prompt of curFunc at stepNo (a step without one keeps the old), and in the caption of blank
// whether a construction line is on; ends the rubber band's angle and hides the Edits form. A prompt with a
// number in it leaves that number in workText. When baseFunc has changed, and the new function does not
// select, the selection is dropped and all is repainted.
void setPrompt(Session& s, Canvas& pic1);

// Shows the prompt that curFunc has at a step, without any of setPrompt's other work.
void showPromptOfStep(Session& s, std::int16_t stepNo);

} // namespace mirtane
