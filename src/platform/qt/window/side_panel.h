#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// Entry, fields and list, at the right of the drawing.
class SidePanel : public QWidget {
  public:
    SidePanel(const ControlMaker& maker, QWidget* parent);
};

} // namespace mirtane
