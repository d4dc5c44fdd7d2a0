#pragma once

#include "render/coverage.h"
#include "render/set_line.h"

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <unordered_map>

namespace mirtane {

// Where a line goes, and how large: its upper left corner, how far below it the base line runs, the em
// (all in pixels) and the angle, whole degrees counter-clockwise.
struct LinePlace {
    PixelPoint corner;
    double ascent;
    int em;
    int degrees;

    // What lies so far along the line and so far below its upper edge.
    PixelPoint at(double along, double below) const;
};

// The letters that have been written, each as the pixels that it covers, by size, angle and quarter of a
// pixel, so that writing it again only lays them down. What they take is bounded: of more, those sizes and
// angles go that have not been written for the longest.
class TypeCase {
  public:
    // A letter as it is asked for: its em in pixels, its angle from 0 to 359 degrees, and how many quarters
    // of a pixel its origin stands to the right of a pixel's edge.
    struct Order {
        std::uint32_t letter;
        int em, degrees, quarter;
        int imageWidth; // of the image that it is for
    };
    // The pixels of a letter, as seen from its origin. Asked once for each.
    using Cast = std::function<Coverage(const Order&)>;

    static constexpr std::size_t usualBytes = std::size_t{40} << 20;
    static constexpr int largestEm = 256; // pixels

    explicit TypeCase(Cast cast, std::size_t mostBytes = usualBytes);

    // Of an em of 1 to largestEm.
    void write(Raster& image, std::span<const SetLetter> line, const LinePlace& place, std::uint32_t color);

    std::size_t bytes() const { return bytes_; }
    // Forgets all letters.
    void empty();

  private:
    static constexpr int quarters = 4;
    using Sorts = std::array<std::unique_ptr<Coverage>, quarters>;

    // All letters of one size and angle.
    struct Hand {
        int em, degrees;
        double along, across; // the em turned
        std::uint64_t used = 0;
        std::size_t bytes = 0;
        std::vector<std::unique_ptr<Sorts>> letters{};

        const Coverage* found(std::uint32_t letter, int quarter) const;
    };

    Hand& handOf(int em, int degrees);
    const Coverage& sort(Hand& hand, std::uint32_t letter, int quarter);
    void makeRoom(Hand& current, std::size_t more);

    Cast cast_;
    std::size_t mostBytes_;
    std::size_t bytes_ = 0;
    std::uint64_t lines_ = 0;
    int imageWidth_ = 0;
    std::unordered_map<std::uint64_t, Hand> hands_;
};

} // namespace mirtane
