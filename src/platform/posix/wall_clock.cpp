#include "platform/posix/wall_clock.h"

namespace mirtane {

namespace {

std::string told(std::time_t time, const char* form)
{
    std::tm parts = {};
    if (::localtime_r(&time, &parts) == nullptr) return {};
    char text[32];
    return {text, std::strftime(text, sizeof text, form, &parts)};
}

} // namespace

std::string clockAt(std::time_t time)
{
    const bool today = told(time, "%F") == told(std::time(nullptr), "%F");
    return told(time, today ? "%H:%M" : "%F %H:%M");
}

std::string WallClock::now()
{
    return told(std::time(nullptr), "%Y-%m-%d %H:%M");
}

} // namespace mirtane
