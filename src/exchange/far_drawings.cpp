#include "exchange/far_drawings.h"

#include "exchange/bounds.h"
#include "geometry/fault.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace mirtane {
namespace {

// In units of the drawing: from here on neighbouring numbers are more than a hundredth apart.
constexpr double farthest = 131072;

// A multiple of step that takes low close to 0, so that a user can tell the old coordinates from the new.
double roundMove(double low, double step)
{
    return -std::floor(low / step) * step;
}

double stepFor(const Bounds& bounds)
{
    const double size = std::max(bounds.size(), 1e-9 * bounds.reach());
    return std::pow(10, std::ceil(std::log10(size)) - 1);
}

// Whether numbers of 32 bits hold it better once it is moved.
bool isFiner(const Bounds& bounds, Vec move, double worldPerFile)
{
    const Bounds moved{bounds.low + move, bounds.high + move, true};
    return std::ilogb(moved.reach() * worldPerFile) < std::ilogb(bounds.reach() * worldPerFile);
}

Vec moveOfAll(const Bounds& bounds, double worldPerFile)
{
    const double step = stepFor(bounds);
    for (const double one : {step, step / 10}) {
        const Vec move{roundMove(bounds.low.x, one), roundMove(bounds.low.y, one)};
        if (isFiner(bounds, move, worldPerFile)) return move;
    }
    return {};
}

bool isHeld(double world)
{
    constexpr double hundredth = 0.01;
    constexpr double lastDigit = 1e-9; // of the ten that we write
    float held = 0;
    keep(held, world);
    return std::abs(held - world) <= std::max(hundredth, lastDigit * std::abs(world));
}

bool isHeld(Vec place, const Placing& placing)
{
    const Vec world = placing.worldPerFile * (place + placing.move);
    return isHeld(world.x) && isHeld(world.y);
}

// The corners of each object, which for a point are one.
std::vector<Vec> placesOf(std::span<const Made> objects)
{
    std::vector<Vec> places;
    for (const Made& one : objects) {
        Bounds bounds;
        feed(bounds, one);
        places.push_back(bounds.low);
        if (bounds.high != bounds.low) places.push_back(bounds.high);
    }
    return places;
}

std::int64_t countOfInexact(std::span<const Vec> places, const Placing& placing)
{
    return std::ranges::count_if(places, [&placing](Vec place) { return !isHeld(place, placing); });
}

// Those in the square of a grid that has most of them.
std::vector<Vec> densestOf(std::span<const Vec> places, double side)
{
    std::map<std::pair<double, double>, std::vector<Vec>> squares;
    for (const Vec p : places) squares[{std::floor(p.x / side), std::floor(p.y / side)}].push_back(p);
    const auto size = [](const auto& square) { return square.second.size(); };
    return std::ranges::max_element(squares, {}, size)->second;
}

Vec medianOf(std::vector<Vec> places)
{
    const auto middle = places.begin() + std::ssize(places) / 2;
    std::ranges::nth_element(places, middle, {}, &Vec::x);
    const double x = middle->x;
    std::ranges::nth_element(places, middle, {}, &Vec::y);
    return {x, middle->y};
}

// What lies round the median of the densest square, which is in the heap wherever the grid cuts that.
Bounds heapOf(std::span<const Vec> places, double reach)
{
    const Vec middle = medianOf(densestOf(places, reach));
    Bounds heap;
    for (const Vec p : places) {
        if (std::abs(p.x - middle.x) <= reach && std::abs(p.y - middle.y) <= reach) heap.feed(p);
    }
    return heap;
}

// By the corner of the heap, or by its middle if it is too large for that.
Vec moveOfHeap(const Bounds& heap, double reach)
{
    if (heap.reach() == 0) return {};
    const Vec size = heap.high - heap.low;
    const Vec at = std::max(size.x, size.y) > reach ? 0.5 * (heap.low + heap.high) : heap.low;
    const double step = stepFor(heap);
    return {roundMove(at.x, step), roundMove(at.y, step)};
}

// A drawing that is large all over has a densest place as well; to move it there would gain little.
bool isWorthIt(std::int64_t inexactBefore, std::int64_t inexactThen, std::size_t places)
{
    constexpr std::int64_t share = 4;
    return share * (inexactBefore - inexactThen) >= static_cast<std::int64_t>(places); // of a drawing
}

} // namespace

bool isFar(std::span<const Made> objects, double worldPerFile)
{
    return boundsOf(objects).reach() * worldPerFile >= farthest;
}

Vec moveToOrigin(std::span<const Made> objects, double worldPerFile)
{
    const Vec ofAll = moveOfAll(boundsOf(objects), worldPerFile);
    const std::vector<Vec> places = placesOf(objects);
    const std::int64_t inexact = countOfInexact(places, {worldPerFile, ofAll});
    if (inexact == 0) return ofAll;
    const double reach = farthest / worldPerFile;
    const Vec ofHeap = moveOfHeap(heapOf(places, reach), reach);
    const std::int64_t inexactThen = countOfInexact(places, {worldPerFile, ofHeap});
    return isWorthIt(inexact, inexactThen, places.size()) ? ofHeap : ofAll;
}

std::int64_t countOfInexact(std::span<const Made> objects, const Placing& placing)
{
    return std::ranges::count_if(objects, [&placing](const Made& one) {
        Bounds bounds;
        feed(bounds, one);
        return !isHeld(bounds.low, placing) || !isHeld(bounds.high, placing);
    });
}

} // namespace mirtane
