#pragma once

#include <string>
#include <string_view>

namespace mirtane {

// The caption of the main window: the drawing's name and, behind "Current Function: ", what the user is
// doing.
inline std::string mainTitle(std::string_view drawingName, std::string_view doing)
{
    return "Mirtane 4.00    Drawing Name: " + std::string(drawingName) +
           "    Current Function: " + std::string(doing);
}

} // namespace mirtane
