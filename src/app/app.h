#pragma once

#include "app/ports.h"
#include "dxf/scratch.h"
#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// What a routine of the shell works on.
struct App {
    Session& s;
    Canvas& pic1;
    Ports& ports;
    DxfScratch& dxfScratch; // of all DXF files that this run writes
};

} // namespace mirtane
