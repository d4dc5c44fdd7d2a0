#include "platform/posix/size_limit.h"

#include <csignal>

namespace mirtane {

void outliveSizeLimit()
{
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); // it fails for signals that don't exist
}

} // namespace mirtane
