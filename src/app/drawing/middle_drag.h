#pragma once

#include <algorithm>
#include <cmath>

namespace mirtane {

// The middle button: a press and a release at nearly the same place are a click, everything else a hand that
// moves the drawing. Places are pixels of the window system.
class MiddleDrag {
  public:
    void press(double x, double y)
    {
        x_ = x;
        y_ = y;
        held_ = true;
        moved_ = false;
    }

    bool isHeld() const { return held_; }

    // The pointer is there; whether the hand has moved the drawing since the press.
    bool move(double x, double y)
    {
        constexpr double stillClick = 4;
        moved_ = moved_ || std::max(std::abs(x - x_), std::abs(y - y_)) > stillClick;
        return moved_;
    }

    // Whether it was a click.
    bool release()
    {
        held_ = false;
        return !moved_;
    }

  private:
    double x_ = 0, y_ = 0;
    bool held_ = false, moved_ = false;
};

} // namespace mirtane
