#pragma once

// The hand of the user. Each event is first written down as a line of mirtane-play, then done, so that the
// lines end with the event that did harm.

#include "stage.h"

#include <string>
#include <vector>

namespace mirtane::soak {

class Hand {
  public:
    explicit Hand(Stage& stage) : stage_(stage) {}

    const std::vector<std::string>& lines() const { return lines_; }

    void move(Point at);
    void down(int button, Point at);
    void click(Point at);
    void cancel(Point at) { down(2, at); }
    void wheel(double steps, Point at);
    void holdKey(int code);
    void letGoKey(int code);
    void type(const std::string& text);
    void enter();
    void backspace();
    void put(ControlId box, const std::string& text);
    void press(ControlId id);
    void giveFocus(ControlId id);
    void pick(ControlId list, int row);
    void scale(const Scale& scale);
    void resize(int width, int height);
    void closeForm(ControlId form);
    void rest();

    // Whether the user can reach a control: all of the above do nothing where not.
    bool reaches(ControlId id) const;

  private:
    void note(std::string line) { lines_.push_back(std::move(line)); }
    void typeKeys(const std::string& text);

    Stage& stage_;
    std::vector<std::string> lines_;
};

} // namespace mirtane::soak
