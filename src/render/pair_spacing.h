#pragma once

#include "render/set_line.h"

#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace mirtane {

// Sets a text of one face by the distances of the letters that stand side by side in it, each pair of which
// is asked for once: to set a whole text takes the toolkit longer than to draw it.
class PairSpacing {
  public:
    // How the toolkit sets a text of one or two letters.
    using Setter = std::function<SetLine(std::u16string_view)>;

    explicit PairSpacing(Setter set) : set_(std::move(set)) {}

    // Nothing where two letters do more to each other than to change their distance, as those that grow into
    // one do, where a letter is none of a plain Latin alphabet, and where a space stands at either end.
    std::optional<SetLine> line(std::u16string_view text);

  private:
    struct Alone {
        SetLetter letter{};
        double width = 0; // ems
        bool plain = false;
    };

    const Alone& alone(char16_t letter);
    // From one letter to the next, ems; NaN where there is no saying.
    double step(char16_t letter, char16_t next);
    double askedStep(char16_t letter, char16_t next);

    Setter set_;
    std::unordered_map<char16_t, Alone> alone_;
    std::unordered_map<std::uint32_t, double> steps_;
};

} // namespace mirtane
