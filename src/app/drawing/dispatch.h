#pragma once

#include "model/session.h"
#include "render/canvas.h"

#include <span>
#include <string_view>

namespace mirtane {

using FunctionRoutine = void (*)(Session& s, Canvas& pic1);

// What a function of the vocabulary does on a counted click, and on a move of the pointer.
struct DispatchRow {
    std::string_view name;
    FunctionRoutine step; // null: clicks are counted and do nothing
    FunctionRoutine band; // null: nothing follows the pointer
};

// A row for each row of the vocabulary.
std::span<const DispatchRow> dispatchTable();

// The row of a function, or null for a name that is none.
const DispatchRow* dispatchOf(std::string_view name);

// Calls the step routine (rubber-band routine) of curFunc, if it has one.
void callStep(Session& s, Canvas& pic1);
void callBand(Session& s, Canvas& pic1);

} // namespace mirtane
