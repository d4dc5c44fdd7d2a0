#pragma once

#include "app/app.h"

namespace mirtane {

// A click on a row of the list does what the heading of the list says. A mode without a rule does nothing.
void listRowClicked(App& app, int row);

} // namespace mirtane
