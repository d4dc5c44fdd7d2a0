#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mirtane::convert {

// What became of a job.
struct Outcome {
    std::optional<std::string> fault; // what went wrong in a few words
    std::vector<std::string> remarks; // what else there is to say, a line each
    bool leftOut = false;             // part of the file did not come
};

} // namespace mirtane::convert
