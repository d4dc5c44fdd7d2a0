#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mirtane::architecture {

// What is wrong with the includes of one file, a sentence each; empty when nothing is.
// path counts from src/ and is divided by "/": "render/view.cpp". source is what stands in the file.
std::vector<std::string> faults(std::string_view path, std::string_view source);

} // namespace mirtane::architecture
