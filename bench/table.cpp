#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace mirtane::bench {
namespace {

std::string number(double value, int places)
{
    if (!std::isfinite(value)) return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", places, value);
    return text;
}

std::string aimText(const Comparison& c)
{
    const std::string ratio = c.aim > 0 ? "<= " + number(c.aim, 1) : "";
    if (c.within == 0) return ratio;
    return ratio + (ratio.empty() ? "<= " : ", ") + number(c.within, 0) + " ms";
}

struct Line {
    std::string what, ms, plain, plainMs, ratio, aim;
};

void put(std::ostream& out, const Line& l)
{
    char text[160];
    std::snprintf(text, sizeof text, "%-28s %9s   %-32s %9s %7s   %s\n", l.what.c_str(), l.ms.c_str(),
                  l.plain.c_str(), l.plainMs.c_str(), l.ratio.c_str(), l.aim.c_str());
    out << text;
}

} // namespace

bool Collector::ReportContext(const Context&)
{
    return true;
}

void Collector::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred) {
            GetErrorStream() << name << ": " << run.error_message << '\n';
        } else if (run.run_type == Run::RT_Iteration) {
            const bool waits = !run.run_name.time_type.empty(); // "real_time"
            times_[name].push_back(waits ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
        }
    }
}

double Collector::median(const std::string& name) const
{
    const auto found = times_.find(name);
    if (found == times_.end()) return std::numeric_limits<double>::quiet_NaN();
    std::vector<double> times = found->second;
    const auto middle = times.begin() + std::ssize(times) / 2;
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void Collector::print(std::ostream& out, std::span<const Comparison> comparisons) const
{
    put(out, {"what", "ms", "the plain work beneath it", "ms", "ratio", "aim"});
    for (const Comparison& c : comparisons) {
        const double ours = median(c.what);
        const double plain = median(c.plain);
        put(out, {c.what, number(ours, 3), c.plain, number(plain, 3),
                  number(ours / plain, ours < plain / 10 ? 4 : 2), aimText(c)});
    }
}

} // namespace mirtane::bench
