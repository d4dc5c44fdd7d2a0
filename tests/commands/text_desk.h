#pragma once

// A function whose text is typed onto the drawing, running.

#include "function_desk.h"

namespace mirtane::fake {

class TextDesk : public FunctionDesk {
  public:
    using FunctionDesk::FunctionDesk;

    Ops texts() { return only(ops(), "text"); }
    std::string text3() const { return text(ids::workText); }
};

} // namespace mirtane::fake
