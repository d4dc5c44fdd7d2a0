#pragma once

#include "model/session.h"
#include "tables/functions.h"

#include <string>

namespace mirtane {

// How what is typed in entry is read at the moment: by what takes it, and by what tells beforehand how it
// will be taken.
enum class EntryReads : std::uint8_t { nothing, sides, hatchScale, name, editNumber, distance };

// A number that an edit function wants at one of its steps.
struct EditNumber {
    EntryKeys keys;
    std::int16_t step;
    double (*held)(double typed); // the value that is taken for what was typed
    void (*store)(Session& s, double value);
    std::string (*shown)(double value);
    std::int16_t steps; // that it counts
    bool runs;          // the function has all it needs
};

struct EntryWay {
    EntryReads reads = EntryReads::nothing;
    const EditNumber* number = nullptr; // of editNumber
};

EntryWay entryWay(const Session& s, const FunctionRow& row);

// Whether a number of sides, a scale of a hatch, is taken.
bool isSides(double sides);
bool isHatchScale(double scale);

} // namespace mirtane
