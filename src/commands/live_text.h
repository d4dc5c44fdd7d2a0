#pragma once

// Text typed straight onto the drawing, character by character, with a preview over the clean picture.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// A key on the drawing in "Place Text" and "Text Edit" from step 1 on, and in "Leader" at step 0: a
// character's code, 13 Enter, 8 Backspace. At other steps, in other functions, and for any other control
// character nothing happens.
void liveTextKey(Session& s, Canvas& pic1, char32_t code);

// Whether there are letters on the drawing that are not yet a text, or a text is under edit.
bool isTypingText(const Session& s);

// Puts the preview back on a picture that was just redrawn. Nothing where no text is typed.
void repaintTextPreview(Session& s, Canvas& pic1);

} // namespace mirtane
