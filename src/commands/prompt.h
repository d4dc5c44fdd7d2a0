#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Chooses promptText by curFunc and stepNo (a step without a prompt keeps the old one), shows it in the
// title, ends the rubber band's angle and the construction line's caption, and hides the Edits form. A prompt
// with a number in it leaves that number in Text3. When baseFunc has changed, and the new function does not
// select, the selection is dropped and all is repainted.
void setPrompt(Session& s, Canvas& pic1);

// Shows the prompt that curFunc has at a step in the title, without any of setPrompt's other work.
void showPromptOfStep(Session& s, std::int16_t stepNo);

} // namespace mirtane
