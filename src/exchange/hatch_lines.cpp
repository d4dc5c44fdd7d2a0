// exchange/hatch_lines.cpp: each edge of the loops tells the lines of a row that cross it where they do;
// between an odd crossing and the next a line is inside.

#include "exchange/hatch_lines.h"

#include <algorithm>
#include <limits>

namespace mirtane {
namespace {

// More than any hatch that can be looked at needs: together with few lines these are as many edges.
constexpr std::size_t mostCrossings = 400'000;
// Edges and dashes that are looked at, of all rows of a hatch together.
constexpr std::size_t mostLooks = 2'000'000;
// A crossing has to be kept and put in order.
constexpr std::size_t looksOfCrossing = 4;

// What is left of both for a hatch.
struct Budget {
    std::size_t crossings = mostCrossings;
    std::size_t looks = mostLooks;

    bool takes(std::size_t more)
    {
        const bool isThere = more <= looks;
        looks -= std::min(more, looks);
        return isThere;
    }
    bool takesCrossing() { return crossings != 0 && crossings-- != 0 && takes(looksOfCrossing); }
};

// Part of the work for all hatches of a drawing; what is not used goes back.
class Share {
  public:
    explicit Share(PatternWork& work) : work_(work)
    {
        budget.looks = std::min(mostLooks, work.left);
        work_.left -= budget.looks;
    }
    ~Share() { work_.left += budget.looks; }
    Share(const Share&) = delete;
    Share(Share&&) = delete;
    Share& operator=(const Share&) = delete;
    Share& operator=(Share&&) = delete;

    Budget budget;

  private:
    PatternWork& work_;
};

class RowCutter {
  public:
    RowCutter(const PatternRow& row, std::size_t most, Budget& budget, std::vector<PatternLine>& lines)
        : row_(row), most_(most), budget_(budget), lines_(lines), apart_(dot(row.offset, turnedLeft(row.way)))
    {
        for (const double dash : row.dashes) period_ += std::abs(dash);
    }

    bool run(std::span<const Loop> loops); // false: too many

  private:
    double lineNumber(Vec p) const { return dot(p - row_.base, turnedLeft(row_.way)) / apart_; }
    Vec start(double number) const { return row_.base + number * row_.offset; }
    bool findRange(std::span<const Loop> loops);
    bool cross(Vec a, Vec b);
    bool inside(double number, double from, double to);
    bool dashed(Vec start, double from, double to);
    bool add(Vec start, double from, double to);

    const PatternRow& row_;
    std::size_t most_;
    Budget& budget_;
    std::vector<PatternLine>& lines_;
    double apart_; // of two lines, below 0 to the right
    double period_ = 0;
    double first_ = 0;                       // of the lines that can cross a loop
    std::vector<std::vector<double>> along_; // of each of them, where it is crossed
};

bool RowCutter::findRange(std::span<const Loop> loops)
{
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const Loop& loop : loops) {
        for (const Vec p : loop) {
            const double number = lineNumber(p);
            if (!std::isfinite(number)) return false;
            low = std::min(low, number);
            high = std::max(high, number);
        }
    }
    if (low > high) return true;
    constexpr double countable = 1e12; // beyond, one line more would make no difference
    if (!(std::max(-low, high) < countable)) return false;
    first_ = std::ceil(low);
    const double count = std::floor(high) - first_ + 1;
    if (!(count <= static_cast<double>(most_))) return false;
    along_.resize(static_cast<std::size_t>(std::max(count, 0.0))); // at most most_
    return true;
}

// An edge has its lower end and not its upper one, so that a line through a corner crosses once or twice, as
// it should.
bool RowCutter::cross(Vec a, Vec b)
{
    double numberA = lineNumber(a);
    double numberB = lineNumber(b);
    if (numberA > numberB) {
        std::swap(a, b);
        std::swap(numberA, numberB);
    }
    for (double n = std::ceil(numberA); n < numberB; ++n) {
        const Vec p = a + (n - numberA) / (numberB - numberA) * (b - a);
        const double line = n - first_;
        if (line < 0 || line >= static_cast<double>(along_.size())) continue;
        along_[static_cast<std::size_t>(line)].push_back(
            dot(p - start(n), row_.way)); // within the range, seen above
        if (!budget_.takesCrossing()) return false;
    }
    return true;
}

bool RowCutter::add(Vec start, double from, double to)
{
    lines_.push_back({start + from * row_.way, start + to * row_.way});
    return lines_.size() <= most_;
}

bool RowCutter::dashed(Vec start, double from, double to)
{
    const double first = std::floor(from / period_);
    if (!((to - from) / period_ <= static_cast<double>(most_))) return false;
    for (double period = first; period * period_ < to; ++period) {
        double at = period * period_;
        for (const double dash : row_.dashes) {
            if (!budget_.takes(1)) return false;
            const double end = at + std::abs(dash);
            const bool isSeen = dash == 0 ? at >= from && at <= to : end > from && at < to;
            if (dash >= 0 && isSeen && !add(start, std::max(at, from), std::min(end, to))) return false;
            at = end;
        }
    }
    return true;
}

bool RowCutter::inside(double number, double from, double to)
{
    const double least = 1e-9 * (std::abs(from) + std::abs(to));
    if (to - from <= least) return true;
    return period_ > 0 ? dashed(start(number), from, to) : add(start(number), from, to);
}

bool RowCutter::run(std::span<const Loop> loops)
{
    if (apart_ == 0 || budget_.looks == 0 || !findRange(loops)) return false;
    for (const Loop& loop : loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
            if (!budget_.takes(1)) return false;
            if (!cross(loop[i], loop[(i + 1) % loop.size()])) return false;
        }
    }
    double number = first_;
    for (std::vector<double>& cuts : along_) {
        std::ranges::sort(cuts);
        for (std::size_t i = 0; i + 1 < cuts.size(); i += 2) {
            if (!inside(number, cuts[i], cuts[i + 1])) return false;
        }
        ++number;
    }
    return true;
}

bool isInside(const Loop& loop, Vec p)
{
    bool inside = false;
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const Vec a = loop[i];
        const Vec b = loop[(i + 1) % loop.size()];
        if ((a.y <= p.y) == (b.y <= p.y)) continue;
        if (p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) inside = !inside;
    }
    return inside;
}

// Most of its corners: loops that touch have one or two in common.
bool liesIn(const Loop& inner, const Loop& outer)
{
    constexpr std::size_t looks = 9;
    const std::size_t step = std::max<std::size_t>(1, inner.size() / looks);
    int votes = 0;
    for (std::size_t i = 0; i < inner.size(); i += step) votes += isInside(outer, inner[i]) ? 1 : -1;
    return votes > 0;
}

double areaOf(const Loop& loop)
{
    double twice = 0;
    for (std::size_t i = 0; i < loop.size(); ++i)
        twice += mirtane::cross(loop[i] - loop[0], loop[(i + 1) % loop.size()] - loop[0]);
    return std::abs(twice) / 2;
}

} // namespace

std::optional<std::vector<PatternLine>> patternLines(std::span<const Loop> loops,
                                                     std::span<const PatternRow> rows, std::size_t most,
                                                     PatternWork& work)
{
    std::vector<PatternLine> lines;
    Share share(work);
    for (const PatternRow& row : rows) {
        if (!RowCutter(row, most, share.budget, lines).run(loops)) return std::nullopt;
    }
    return lines;
}

std::vector<int> depthsOf(std::span<const Loop> loops, PatternWork& work)
{
    std::vector<double> areas;
    std::size_t corners = 0;
    for (const Loop& loop : loops) {
        areas.push_back(areaOf(loop));
        corners += loop.size();
    }
    std::vector<int> depths(loops.size(), 0);
    constexpr std::size_t mostCompared = 500; // of one hatch; more are not nested by anyone
    const std::size_t looks = loops.size() * corners;
    if (loops.size() > mostCompared || looks > std::min(mostLooks, work.left)) return depths;
    work.left -= looks;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        for (std::size_t j = 0; j < loops.size(); ++j) {
            if (areas[j] > areas[i] && liesIn(loops[i], loops[j])) ++depths[i];
        }
    }
    return depths;
}

} // namespace mirtane
