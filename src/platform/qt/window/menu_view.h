#pragma once

#include "platform/qt/window/control_views.h"
#include "platform/qt/window/event_gate.h"

#include <QMenuBar>

namespace mirtane {

// Fills a menu bar with all menus and entries that the control table has for a form.
void fillMenuBar(QMenuBar& bar, ControlId form, EventGate& gate, ControlViews& views);

} // namespace mirtane
