#pragma once

#include "app/app.h"

namespace mirtane {

// A click on a row of List1 does what the caption of Label3 says. A mode without a rule does nothing.
void listRowClicked(App& app, int row);

} // namespace mirtane
