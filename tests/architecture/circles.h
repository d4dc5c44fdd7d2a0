#pragma once

#include <map>
#include <string>
#include <vector>

namespace mirtane::architecture {

// The circles in which files include one another, a sentence each. A header and its source file
// are one place: "app/fields". sources holds what stands in each file, by its path from src/ on.
std::vector<std::string> circles(const std::map<std::string, std::string>& sources);

} // namespace mirtane::architecture
