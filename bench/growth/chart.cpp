#include "chart.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

namespace mirtane::bench {
namespace {

constexpr double panelWidth = 250;
constexpr double panelHeight = 260;
constexpr double left = 50;
constexpr double top = 40;
constexpr double gap = 20;
constexpr double legendWidth = 150;
constexpr int leastX = 3, mostX = 5;  // powers of ten: 1,000 to 100,000 objects
constexpr int leastY = -4, mostY = 2; // 0.0001 to 100 ms

constexpr const char* colors[] = {"#c0392b", "#2471a3", "#1e8449", "#b7950b", "#7d3c98",
                                  "#148f77", "#ba4a00", "#566573", "#e91e63", "#000000"};

double across(double objects)
{
    return (std::log10(objects) - leastX) / (mostX - leastX) * panelWidth;
}

double down(double ms)
{
    const double least = std::pow(10.0, leastY);
    return panelHeight - (std::log10(std::max(ms, least)) - leastY) / (mostY - leastY) * panelHeight;
}

void text(std::ostream& out, double x, double y, const char* anchor, const std::string& words)
{
    out << "<text x='" << x << "' y='" << y << "' text-anchor='" << anchor << "'>" << words << "</text>\n";
}

void line(std::ostream& out, double x1, double y1, double x2, double y2)
{
    out << "<path stroke='#ccc' d='M" << x1 << ' ' << y1 << 'L' << x2 << ' ' << y2 << "'/>\n";
}

std::string power(int exponent)
{
    std::ostringstream out;
    out << std::pow(10.0, exponent);
    return exponent == mostX ? "100000" : out.str();
}

void grid(std::ostream& out, bool named)
{
    for (int x = leastX; x <= mostX; ++x) {
        const double at = across(std::pow(10.0, x));
        line(out, at, 0, at, panelHeight);
        text(out, at, panelHeight + 14, x == leastX ? "start" : x == mostX ? "end" : "middle", power(x));
    }
    for (int y = leastY; y <= mostY; ++y) {
        const double at = down(std::pow(10.0, y));
        line(out, 0, at, panelWidth, at);
        if (named) text(out, -4, at + 4, "end", power(y) + (y == mostY ? " ms" : ""));
    }
}

void curve(std::ostream& out, const Curve& c, const char* color)
{
    out << "<polyline fill='none' stroke-width='1.5' stroke='" << color << "' points='";
    for (const auto& [objects, ms] : c.points) out << across(objects) << ',' << down(ms) << ' ';
    out << "'/>\n";
}

} // namespace

std::string chartOf(const std::vector<Panel>& panels)
{
    std::ostringstream out;
    const double width =
        left + static_cast<double>(panels.size()) * (panelWidth + gap) + legendWidth; // a few
    out << "<svg xmlns='http://www.w3.org/2000/svg' font-family='sans-serif' font-size='11' width='" << width
        << "' height='" << top + panelHeight + 40 << "'>\n<rect width='100%' height='100%' fill='white'/>\n";
    double at = left;
    for (const Panel& panel : panels) {
        out << "<g transform='translate(" << at << ' ' << top << ")'>\n";
        text(out, panelWidth / 2, -12, "middle", panel.title);
        grid(out, at == left);
        for (std::size_t i = 0; i < panel.curves.size(); ++i)
            curve(out, panel.curves[i], colors[i % std::size(colors)]);
        out << "</g>\n";
        at += panelWidth + gap;
    }
    for (std::size_t i = 0; !panels.empty() && i < panels.front().curves.size(); ++i) {
        out << "<g fill='" << colors[i % std::size(colors)] << "'>";
        text(out, at, top + 14 + 18 * static_cast<double>(i), "start",
             panels.front().curves[i].name); // a few
        out << "</g>\n";
    }
    text(out, left + panelWidth / 2, top + panelHeight + 32, "middle", "objects in the drawing");
    out << "</svg>\n";
    return out.str();
}

} // namespace mirtane::bench
