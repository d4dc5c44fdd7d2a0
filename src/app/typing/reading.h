#pragma once

#include "model/session.h"

#include <string>

namespace mirtane {

// What the line below the drawing says of a number or a length while it is typed.

// How the text will be taken, in the style of the drawing: "= 3'-6\""; and the key that was not taken.
std::string readingOf(const Session& s);

// Whether the keys of the control that has the focus are those of a number or a length.
bool takesNumber(const Session& s);

// "'/' is not taken: type .5 for 1/2"
std::string refusalOf(char32_t key);

// A length with its sign, in the style of the drawing; empty for one that is too long to be written so.
std::string signedLengthText(const Attributes& s, float length);

// The length and the direction of a leg, empty for one without length.
std::string legText(const Attributes& s, const Leg& leg);

} // namespace mirtane
