#pragma once

#include "exchange/full_reading.h"

#include <string>

namespace mirtane {

// What became of a file.
struct FullReport {
    LeftOut leftOut;
    std::int64_t withoutRoom = 0;
    std::map<Kind, std::int64_t> came;
    Vec moved;                // by so much, in the file's units
    std::int64_t inexact = 0; // objects too far off to be held exactly
    bool hasUnits = true;
    bool isDxf = true;
    bool isCut = false;

    bool isWhole() const { return leftOut.empty() && withoutRoom == 0 && isDxf && !isCut; }
};

FullReport reportOf(const FullReading& reading, const TakenReading& taken);

// "12 circles", "1 circle", with a comma at the thousands; of a kind, and of a type of record.
std::string counted(std::int64_t count, Kind kind);
std::string counted(std::int64_t count, std::string_view type);

// "2 images, 322 texts": what came, and what was left out and why. Empty for nothing.
std::string sentenceOfWhatCame(const FullReport& report);
std::string sentenceOfLeftOut(const FullReport& report);

// "moved by -531000, -182000"; empty if it was not.
std::string sentenceOfMove(const FullReport& report);
// The same, and what is so far off all the same that it is not exact.
std::string sentenceOfPlace(const FullReport& report);

} // namespace mirtane
