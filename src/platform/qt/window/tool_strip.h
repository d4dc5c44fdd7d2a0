#pragma once

#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"

namespace mirtane {

// The buttons of the control table, in the groups that it gives them, each group under its name.
class ToolStrip : public QWidget {
  public:
    ToolStrip(EventGate& gate, ControlViews& views, QWidget* parent);
};

} // namespace mirtane
