#pragma once

#include "app/ports.h"
#include "model/session.h"

namespace mirtane {

// The nineteen values that outlive a run. Reading takes each key that is there and makes sense, and leaves
// the default of every other.
void readSettings(Session& s, SettingsStore& store);
void writeSettings(const Session& s, SettingsStore& store);

} // namespace mirtane
