#pragma once

namespace mirtane {

// A limit on the size of files (ulimit -f) ends a program that writes beyond it, and with it all that is not
// saved. From now on such a write fails instead, as on a full disk. To be called before the first file is
// written.
void outliveSizeLimit();

} // namespace mirtane
