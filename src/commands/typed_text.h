#pragma once

// The characters that are typed onto the drawing: they stand in textBuffer and, joined, in workText.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// One more character. Past its end the buffer takes nothing, and the count goes on.
void typeCharacter(Session& s, char32_t code);
void takeBackCharacter(CanvasInput& s);

// Puts a preview of what is typed on a picture that was just redrawn. Nothing where nothing is typed.
void repaintPreview(Session& s, Canvas& pic1, void (*preview)(Session&, Canvas&));

// textBuffer, as far as it is filled, as one string.
std::string typedText(const Session& s);

// Begins with a text that stands already, in textBuffer and workText.
void loadTypedText(Session& s, const std::string& text);

// No character typed, workText empty.
void clearTypedText(Session& s);

} // namespace mirtane
