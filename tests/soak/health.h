#pragma once

#include "stage.h"

#include <string>

namespace mirtane::soak {

// In a wild session files may be damaged, and Redo comes at any time. Numbers, kinds and layers may then be
// any; and a Redo that follows no Undo turns groups that stand as they are wanted already, which no Undo
// takes back.
enum class Manner { tame, wild };

// What is wrong with the state of the program between two events, or with what undoing everything and redoing
// everything would make of it; "" when nothing is. The session stays as it is.
std::string faultOf(const Stage& stage, Manner manner);

} // namespace mirtane::soak
