#pragma once

#include "app/app.h"

namespace mirtane {

// One form, by its title: "Filter Settings", the criteria of Window Select Filtered, or "Change Properties",
// the new properties of the selection.
void showFilterDialog(App& app, ControlId);
void showChangeDialog(App& app);

// The dialog of a change goes with its function; the criteria keep nothing of it.
void closeChangeDialog(Session& s);

void takeFilterKind(App& app, ControlId menu);
void takeFilterColor(App& app, ControlId menu);
void takeFilterStyle(App& app, ControlId menu);
void chooseFilterLayer(App& app, int row);
void showAllInBox(App& app, ControlId box);
void resetFilter(App& app, ControlId);
void acceptFilter(App& app, ControlId);
void cancelFilter(App& app, ControlId);

} // namespace mirtane
