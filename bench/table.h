#pragma once

#include "measures.h"

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace mirtane::bench {

// Collects what was measured and says nothing meanwhile but faults.
class Collector : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    // Each comparison in one line, of medians. One that was not measured whole has gaps.
    void print(std::ostream& out, std::span<const Comparison> comparisons) const;

  private:
    // In milliseconds; NaN if there is none.
    double median(const std::string& name) const;

    std::map<std::string, std::vector<double>> times_; // milliseconds of each repetition
};

} // namespace mirtane::bench
