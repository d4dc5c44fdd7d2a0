#pragma once

#include <string>
#include <utility>
#include <vector>

namespace mirtane::bench {

struct Curve {
    std::string name;
    std::vector<std::pair<double, double>> points; // objects, milliseconds
};

struct Panel {
    std::string title;
    std::vector<Curve> curves;
};

// An SVG picture of the panels beside each other, both axes by powers of ten, the curves named at the right.
std::string chartOf(const std::vector<Panel>& panels);

} // namespace mirtane::bench
