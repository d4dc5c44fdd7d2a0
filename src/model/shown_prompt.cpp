#include "model/shown_prompt.h"

#include "model/zoom_window.h"

namespace mirtane {

void showPrompt(Session& s, std::string_view function, std::string_view text)
{
    s.functionPrompt = {std::string(function), std::string(text)};
    if (!zoomWindowIsOn(s.controls)) endPassingPrompt(s);
}

void showPassingPrompt(Session& s, std::string_view doing, std::string_view text)
{
    s.promptText = text;
    s.controls[ids::promptLine].caption = text;
    s.controls[ids::mainForm].caption = "Mirtane 4.00    Drawing Name: " + s.drawingName +
                                        "    Current Function: " + std::string(doing) + s.promptText;
}

void endPassingPrompt(Session& s)
{
    showPassingPrompt(s, s.functionPrompt.function, s.functionPrompt.text);
}

} // namespace mirtane
