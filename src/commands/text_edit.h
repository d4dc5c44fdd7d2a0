#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Text Edit": a click picks a text or dimension, whose text is then hidden and typed anew over the picture.
// It has no band.
void textEditStep(Session& s, Canvas& pic1);

// The text as typed so far in the place, size and font of the picked object, over the picture as it stands.
void textEditPreview(Session& s, Canvas& pic1);

// Enter: a new object with the typed text takes the place of the picked one, in one action of undo.
void finishTextEdit(Session& s, Canvas& pic1);

} // namespace mirtane
