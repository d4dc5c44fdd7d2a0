#pragma once

#include "model/session.h"

namespace mirtane {

// Takes back, at its end, what a routine does to the function under way, its points, and what was picked: so
// that what an event would do can be found out by the very routines that do it. The drawing itself is not
// covered.
class Rehearsal {
  public:
    explicit Rehearsal(Session& s)
        : s_(s), function_(s), points_(s), input_(s), picks_(s), armedSnap_(s.controls[ids::armedSnap])
    {
    }

    ~Rehearsal()
    {
        static_cast<FunctionState&>(s_) = function_; // the base alone, as all four
        static_cast<ScratchPoints&>(s_) = points_;
        static_cast<CanvasInput&>(s_) = input_;
        static_cast<PickResults&>(s_) = picks_;
        s_.controls[ids::armedSnap] = armedSnap_;
    }

    Rehearsal(const Rehearsal&) = delete;
    Rehearsal& operator=(const Rehearsal&) = delete;

  private:
    Session& s_;
    FunctionState function_;
    ScratchPoints points_;
    CanvasInput input_;
    PickResults picks_;
    Control armedSnap_;
};

} // namespace mirtane
