#pragma once

namespace mirtane {

// From now on the toolkit tells those who don't see the screen what our own widgets are. It may be called
// more than once.
void tellRoles();

} // namespace mirtane
