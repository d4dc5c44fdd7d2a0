#pragma once

#include "model/controls.h"

#include <string_view>

namespace mirtane {

// The caption of snapLabel that says that Zoom Window is on.
inline constexpr std::string_view zoomWindowOn = "Zoom Window is on:";

// The next clicks on the drawing are the corners of a window to zoom to, whatever function runs.
inline bool zoomWindowIsOn(const Controls& controls)
{
    return controls[ids::snapLabel].caption == zoomWindowOn;
}

} // namespace mirtane
