#pragma once

#include "app/app.h"

namespace mirtane {

// A click on a button of the strip: carries out what it offers.
void takeOffer(App& app, ControlId button);

} // namespace mirtane
