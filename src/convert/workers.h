#pragma once

#include "convert/arguments.h"
#include "convert/outcome.h"

#include <functional>
#include <vector>

namespace mirtane::convert {

// What became of a job, and how long it took.
struct Finished {
    Outcome outcome;
    double seconds = 0;
};

// What a worker does, in a process of its own: begin once, then a job each time.
struct Work {
    std::function<void()> begin;
    std::function<Outcome(const Job&)> convert;
};

// Does the jobs, so many at a time, and gives what became of each, in their order. A job that ends its worker
// has failed; the others go on. done is told of each one when it is finished. To be called before there is
// any thread beside this one.
std::vector<Finished> convertWithWorkers(const std::vector<Job>& jobs, int workers, const Work& work,
                                         const std::function<void(std::size_t count)>& done);

// The jobs as a table, a line each, and a line that sums them up.
std::string tableOf(const std::vector<Job>& jobs, const std::vector<Finished>& finished, double seconds);

} // namespace mirtane::convert
