#pragma once

#include "model/session.h"
#include "render/canvas.h"

#include <optional>
#include <span>
#include <string_view>

namespace mirtane {

using FunctionRoutine = void (*)(Session& s, Canvas& pic1);
using LegRoutine = std::optional<Leg> (*)(const Session& s);

// What a function of the vocabulary does on a counted click, and on a move of the pointer.
struct DispatchRow {
    std::string_view name;
    FunctionRoutine step; // null: clicks are counted and do nothing
    FunctionRoutine band; // null: nothing follows the pointer
    LegRoutine leg =
        nullptr; // along which the band is drawn; null: it is no leg that has a length and a direction
    bool bandAtOnce = false; // shown after a typed point too: the step has drawn nothing that tells of it
};

// A row for each row of the vocabulary.
std::span<const DispatchRow> dispatchTable();

// The row of a function, or null for a name that is none.
const DispatchRow* dispatchOf(std::string_view name);

// Calls the step routine (rubber-band routine) of curFunc, if it has one.
void callStep(Session& s, Canvas& pic1);
void callBand(Session& s, Canvas& pic1);

// The leg of the rubber band that is out, if it has one.
std::optional<Leg> legOfBand(const Session& s);

} // namespace mirtane
