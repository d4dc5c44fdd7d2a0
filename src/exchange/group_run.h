#pragma once

#include "exchange/dxf_list.h"

namespace mirtane {

// Groups one after the other, where what they mean depends on what came before.
class GroupRun {
  public:
    explicit GroupRun(DxfGroups groups) : rest_(groups) {}

    bool isAt(int code) const { return !rest_.empty() && rest_[0].code == code; }
    bool isEnd() const { return rest_.empty(); }
    DxfGroups rest() const { return rest_; }
    const DxfGroup& next()
    {
        const DxfGroup& group = rest_[0];
        rest_ = rest_.subspan(1);
        return group;
    }
    // Goes on to the next group of a code; false, at the end, if there is none.
    bool find(int code)
    {
        while (!isEnd() && !isAt(code)) rest_ = rest_.subspan(1);
        return !isEnd();
    }
    // The value of the group here if it has that code, and goes on.
    double number(int code, double fallback = 0)
    {
        return isAt(code) ? dxfNumber(next().value, fallback) : fallback;
    }
    int whole(int code, int fallback = 0) { return isAt(code) ? dxfWhole(next().value, fallback) : fallback; }
    Vec point(int code)
    {
        const double x = number(code);
        return {x, number(code + 10)};
    }
    // As many as a file can hold, however many it says.
    std::size_t count(int code)
    {
        const int said = whole(code);
        return said > 0 && static_cast<std::size_t>(said) <= rest_.size() ? static_cast<std::size_t>(said)
                                                                          : 0;
    }

  private:
    DxfGroups rest_;
};

// All points of a code, in their order.
std::vector<Vec3> pointsOf(DxfGroups groups, int code);
std::vector<double> numbersOf(DxfGroups groups, int code);

// The groups before the first of that code and value, all if there is none; and those from there on.
struct DividedGroups {
    DxfGroups before, from;
};
DividedGroups dividedAt(DxfGroups groups, int code, std::string_view value);

} // namespace mirtane
