#pragma once

// What the user is asked for stands in three places, the title, the line below the drawing and promptText,
// and is one value: it is shown here and nowhere else.

#include "model/session.h"

#include <string_view>

namespace mirtane {

// The prompt of a function, which stays until the next one. While Zoom Window is on it waits beneath that
// one's: the next click is not the function's.
void showPrompt(Session& s, std::string_view function, std::string_view text);

// A prompt over that of the function, which waits beneath it.
void showPassingPrompt(Session& s, std::string_view doing, std::string_view text);

// The function's prompt again.
void endPassingPrompt(Session& s);

} // namespace mirtane
