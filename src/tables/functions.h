#pragma once

// The functions of the program as data: one row each, from which every floor above learns what starts a
// function, what it prompts, where ortho applies and which keys it takes.

#include "tables/controls.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace mirtane {

enum class Starts : std::uint8_t {
    atOnce,     // its button or menu entry starts it
    fromList,   // its button or menu entry shows a list of names, and a name starts it
    fromEdits,  // a row of the edit list or a button of the Edits form
    byMatchKey, // m or M in its field
};

// Where the pointer is turned onto the ortho axes.
enum class Ortho : std::uint8_t {
    confined,
    unlessSnapped, // no leg of the function's own leads to the click, so a snap gives the point itself
    free,
    onlyAtStep3,
    notAtStep3
};

// What a left click on the drawing does while the function runs.
enum class Clicks : std::uint8_t {
    countSteps,         // counts a step and calls the function's routine
    pickObjects,        // turns the mark of what lies under the pointer
    takeWindow,         // two corners, which are no steps
    takeFilteredWindow, // the same; what lies within is filtered
    layConstructionLine,
};

// What a snap gives above step 1 while ortho is on.
enum class SnapGives : std::uint8_t { itself, onLeg, itselfBeforeStep4 };

// The legs of the boundary under way that a snap takes, beside the objects.
enum class OwnLegs : std::uint8_t { none, ends, endsAndMiddles };

struct Snaps {
    SnapGives atPoints;  // what is found is a point
    SnapGives onObjects; // what is found is the nearest point of an object
    OwnLegs ownLegs;
    bool fromFirstClick; // perpendicular and tangent, which want a line from the first click
};

// What the drawing does with a key while the function runs.
enum class CanvasKeys : std::uint8_t {
    numberOnceBegun,    // digits, ".", "-", "'" go to entry above step 0
    numberOnceBlankLeg, // the same, once the construction line has begun
    numberAlways,       // the same at every step
    sidesAtStart,       // digits go to entry at step 0, a number above it
    name,               // every character goes to entry
    liveText,           // typed straight onto the drawing
};

// How entry reads what is typed there.
enum class EntryKeys : std::uint8_t {
    distanceOnceBegun, // a distance above step 0
    distanceOnceBlankLeg,
    distanceAlways,
    sidesAtStart, // a count at step 0, a distance above it
    hatchScale,
    name,
    radialCopy, // degrees, then copies
    rotate,
    scale,
};

// What becomes of a typed distance.
enum class TypedDistance : std::uint8_t {
    discarded, // the step is counted all the same
    laysPoint,
    laysBlankLeg,
    setsFilletRadius,
    setsTextSize,
    setsArrowSize,
    offsetsCopy,
};

// The current number that a prompt shows between its two halves.
enum class PromptNumber : std::uint8_t { none, polygonSides, hatchScale, filletRadius, textSize, arrowSize };

struct Prompt {
    std::int16_t step;
    std::string_view text;
    PromptNumber number = PromptNumber::none;
    std::string_view textBehind = "";
    bool andOn = false; // also at every later step up to the next row's
};

// Where the manual tells of it: a chapter, and the line that heads its paragraph.
struct InManual {
    int chapter = 0;
    std::string_view heading = "";
};

struct FunctionRow {
    std::string_view name;
    ControlId starter;
    Starts starts;
    bool setsBase;
    Ortho orthoOnMove;
    Ortho orthoOnClick;
    CanvasKeys canvasKeys;
    EntryKeys entryKeys;
    TypedDistance typedDistance;
    Clicks clicks;
    Snaps snaps;
    bool editsText;        // it picks texts and dimensions alone, and hides the words that are typed anew
    bool samePointCancels; // a click on the last point ends the action
    std::int16_t firstStep;
    std::span<const Prompt> prompts;
    InManual inManual = {};
};

std::span<const FunctionRow> vocabulary();

// The row of a function, or null for a name that is none.
const FunctionRow* findFunction(std::string_view name);

// The row that a control starts, or null.
const FunctionRow* functionStartedBy(ControlId control);

bool applies(Ortho rule, std::int16_t stepNo);

// What is made needs its name first: else its points would go to whatever was named last.
bool waitsForName(const FunctionRow& row, std::int16_t stepNo);

// The row of a function that runs; of a name that is none, a row that takes nothing.
const FunctionRow& functionRow(std::string_view name);

// The functions that select: a change to one of them keeps the selection.
bool isSelectionFunction(std::string_view name);

// Selection by a window: two corners, which are no steps.
bool isWindowFunction(std::string_view name);

// The prompt of a step, or null where the step has none of its own.
const Prompt* promptAt(std::span<const Prompt> prompts, std::int16_t stepNo);

} // namespace mirtane
