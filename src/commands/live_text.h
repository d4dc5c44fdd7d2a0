#pragma once

// Text typed straight onto the drawing, character by character, with a preview over the clean picture. The
// characters stand in textBuffer and, joined, in Text3.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// A key on the drawing in "Place Text" and "Text Edit" from step 1 on, and in "Leader" at step 0: a
// character's code, 13 Enter, 8 Backspace. At other steps, in other functions, and for any other control
// character nothing happens.
void liveTextKey(Session& s, Canvas& pic1, char32_t code);

// Puts the preview back on a picture that was just redrawn. Nothing where no text is typed.
void repaintTextPreview(Session& s, Canvas& pic1);

// textBuffer, as far as it is filled, as one string.
std::string typedText(const Session& s);

// Begins with a text that stands already, in textBuffer and Text3.
void loadTypedText(Session& s, const std::string& text);

// No character typed, Text3 empty.
void clearTypedText(Session& s);

} // namespace mirtane
