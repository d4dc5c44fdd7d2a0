// Measures what a user waits for, beside the plain work beneath it, in one run. Takes the options of Google
// Benchmark.

#include "dxf_bench.h"
#include "edit_bench.h"
#include "hatch_bench.h"
#include "kinds_bench.h"
#include "measures.h"
#include "plan_bench.h"
#include "preview_bench.h"
#include "print_bench.h"
#include "snap_bench.h"
#include "table.h"
#include "text_bench.h"

#include <QGuiApplication>

#include <iostream>
#include <memory>

namespace {

// The repetitions of all measures are shuffled, so that what else the machine does meets all alike.
std::vector<std::string> withDefaults(std::span<char*> given)
{
    std::vector<std::string> args(given.begin(), given.begin() + 1);
    args.insert(args.end(), {"--benchmark_repetitions=7", "--benchmark_enable_random_interleaving=true",
                             "--benchmark_min_time=0.1"});
    args.insert(args.end(), given.begin() + 1, given.end());
    return args;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    std::vector<std::string> args = withDefaults({argv, static_cast<std::size_t>(argc)}); // at least 1
    std::vector<char*> raw;
    for (std::string& arg : args) raw.push_back(arg.data());
    int count = static_cast<int>(raw.size()); // as many as there were, and three
    benchmark::Initialize(&count, raw.data());
    if (benchmark::ReportUnrecognizedArguments(count, raw.data())) return 1;

    using namespace mirtane::bench;
    Bench bench;
    registerMeasures(bench);
    registerKindMeasures();
    const auto snaps = std::make_unique<SnapBench>();
    registerSnapMeasures(*snaps);
    registerEditMeasures();
    const auto dxf = std::make_unique<DxfBench>();
    registerDxfMeasures(*dxf);
    registerTextMeasures();
    registerPlanMeasures();
    registerPrintMeasures();
    registerPreviewMeasures();
    const auto hatches = std::make_unique<HatchBench>();
    registerHatchMeasures(*hatches);
    Collector collector;
    std::cout << "60,000 lines on 1600 x 1000 pixels; medians. This takes a quarter of a minute or more.\n"
              << std::flush;
    benchmark::RunSpecifiedBenchmarks(&collector);
    for (const auto rows : {comparisons(), kindComparisons(), snapComparisons(), editComparisons(),
                            dxfComparisons(), textComparisons(), planComparisons(), hatchComparisons(),
                            printComparisons(), previewComparisons()}) {
        collector.print(std::cout, rows);
    }
    return 0;
}
