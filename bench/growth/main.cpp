// mirtane-growth PLOT.svg: how the cost of a redraw, a pick, a window and each snap grows with the drawing
// and with the zoom. Prints a table of milliseconds, medians, and writes a plot of it.

#include "../sample.h"
#include "chart.h"
#include "platform/qt/surface.h"
#include "render/redraw.h"
#include "snap/pick.h"
#include "snap/snap.h"
#include "snap/window_selection.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>

namespace mirtane::bench {
namespace {

constexpr std::int32_t counts[] = {1000, 10000, lineCount};
constexpr float zooms[] = {1, 10, 1000};

struct Desk {
    Desk() { fillWithLines(s); }

    // The first so many lines, and the middle of the drawing so much enlarged.
    void show(std::int32_t count, float zoom)
    {
        s.store.entCount = count + 1;
        view = {width / 2.0F - width / 2.0F / zoom, height / 2.0F - height / 2.0F / zoom, width / zoom,
                height / zoom};
        surface.setScale(view);
        readViewLimits(s, surface);
        redrawAll(s, surface);
    }

    // Clicks go round in the view.
    void click(int step)
    {
        const double angle = step * 0.7;
        s.curFunc = "Line";
        s.stepNo = 2;
        s.pickFirst = {view.left + view.width / 2, view.top + view.height / 2};
        s.mousePos =
            s.pickLast = {static_cast<float>(s.pickFirst.x + view.width / 3 * std::cos(angle)),
                          static_cast<float>(s.pickFirst.y + view.height / 3 * std::sin(angle))}; // 32 bits
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    Surface surface{width, height};
    Scale view;
};

void redraw(Desk& desk, int)
{
    redrawAll(desk.s, desk.surface);
}

void pick(Desk& desk, int step)
{
    desk.click(step);
    pickObject(desk.s, desk.surface);
}

// Round a quarter of the view. What it marks is the same each time.
void window(Desk& desk, int)
{
    const Scale& v = desk.view;
    desk.s.window1 = {v.left + v.width / 4, v.top + v.height / 4};
    desk.s.window2 = {v.left + v.width * 3 / 4, v.top + v.height * 3 / 4};
    selectInWindow(desk.s, false);
    changeStat(desk.s.store, Stat::sel, Stat::on);
}

template <char kind> void snap(Desk& desk, int step)
{
    desk.click(step);
    desk.s.controls["snapbox"_c].text = {'s', kind};
    oneShotSnap(desk.s, desk.surface);
}

struct Deed {
    const char* name;
    void (*run)(Desk&, int step);
};

constexpr Deed deeds[] = {
    {"redraw", redraw},
    {"pick", pick},
    {"window", window},
    {"Snap Point", snap<'p'>},
    {"Snap Object", snap<'o'>},
    {"Snap Intersection", snap<'i'>},
    {"Snap Percentage", snap<'f'>},
    {"Snap Perpendicular", snap<'n'>},
    {"Snap Tangent", snap<'t'>},
    {"Snap Midpoint", snap<'m'>},
};

double millisecondsOf(const Deed& deed, Desk& desk)
{
    constexpr int runs = 41;
    std::vector<double> times;
    for (int step = 0; step < runs; ++step) {
        const auto began = std::chrono::steady_clock::now();
        deed.run(desk, step);
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began).count());
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[runs / 2];
}

std::vector<Panel> measured()
{
    const auto desk = std::make_unique<Desk>();
    std::vector<Panel> panels;
    for (const float zoom : zooms) {
        Panel panel{"zoomed in " + std::to_string(static_cast<int>(zoom)) + " times", {}}; // whole numbers
        for (const Deed& deed : deeds) panel.curves.push_back({deed.name, {}});
        for (const std::int32_t count : counts) {
            desk->show(count, zoom);
            for (std::size_t i = 0; i < std::size(deeds); ++i)
                panel.curves[i].points.push_back({1.0 * count, millisecondsOf(deeds[i], *desk)});
        }
        panels.push_back(panel);
    }
    return panels;
}

void print(const std::vector<Panel>& panels)
{
    std::cout << "| ms |";
    for (const Panel& panel : panels) {
        for (const std::int32_t count : counts) std::cout << ' ' << count << ", " << panel.title << " |";
    }
    std::cout << "\n|---|";
    for (std::size_t i = 0; i < panels.size() * std::size(counts); ++i) std::cout << "---:|";
    std::cout << '\n';
    for (std::size_t i = 0; i < std::size(deeds); ++i) {
        std::cout << "| " << deeds[i].name << " |";
        for (const Panel& panel : panels) {
            for (const auto& [count, ms] : panel.curves[i].points) {
                char text[32];
                std::snprintf(text, sizeof text, " %.3f |", ms);
                std::cout << text;
            }
        }
        std::cout << '\n';
    }
}

} // namespace
} // namespace mirtane::bench

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: mirtane-growth PLOT.svg\n";
        return 2;
    }
    const auto panels = mirtane::bench::measured();
    mirtane::bench::print(panels);
    std::ofstream plot(argv[1]);
    plot << mirtane::bench::chartOf(panels);
    return plot.flush() ? 0 : 1;
}
