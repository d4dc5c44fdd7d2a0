#pragma once

// Numbers by chance that are the same on every machine: the distributions of the standard library are not.

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace mirtane::soak {

class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31);
    }

    // From 0 to limit - 1; limit is above 0.
    std::size_t below(std::size_t limit) { return next() % limit; }
    int within(int least, int most)
    {
        return least + static_cast<int>(below(static_cast<std::size_t>(most - least + 1))); // small numbers
    }
    // From 0 up to, and without, 1.
    double part() { return static_cast<double>(next() >> 11) * 0x1p-53; } // 53 bits fit a double
    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    template <class Range> decltype(auto) among(const Range& range)
    {
        return *std::next(std::begin(range),
                          static_cast<std::ptrdiff_t>(below(std::size(range)))); // in range
    }

    // A row of a table, each as often as its weight says.
    template <class Row, std::size_t count> const Row& weighted(const Row (&rows)[count])
    {
        std::size_t sum = 0;
        for (const Row& row : rows) sum += row.weight;
        std::size_t left = below(sum);
        for (const Row& row : rows) {
            if (left < row.weight) return row;
            left -= row.weight;
        }
        return rows[count - 1];
    }

  private:
    std::uint64_t state_;
};

} // namespace mirtane::soak
