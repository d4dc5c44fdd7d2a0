#pragma once

// What the strip at the foot of the drawing says. It asks for no answer: a matter stands until it is settled,
// and several wait behind one another, the latest in front.

#include "model/controls.h"

#include <string>
#include <string_view>
#include <vector>

namespace mirtane {

enum class Matter : std::uint8_t {
    fileInTheWay,  // of what is to be saved
    workLeft,      // by a program that is no longer alive
    workNotKept,   // as the disk takes nothing
    leftOut,       // of a file, for want of room
    tableFull,     // an edit was refused
    fileChanged,   // by someone else, since it was opened or saved here
    openElsewhere, // the drawing, in another program of ours
    notRead,       // of a DXF file that was opened by the letter
    moved,         // a drawing from far away
    noUnits,       // in a DXF file
    notTaken       // of several files that were dropped
};

enum class Offer : std::uint8_t {
    restoreWork,
    throwWorkAway,
    saveAndOpenAgain,
    goOn,
    readAll,
    takeAsMillimetres,
    takeAsMetres
};

struct NoticeButton {
    std::string_view caption;
    Offer offer{};
};

struct Notice {
    Matter matter{};
    std::string sentence;
    std::vector<NoticeButton> buttons; // two at most
};

class Notices {
  public:
    // In front of the others. What was said of the same matter goes.
    void post(Notice notice);
    // Behind the others, as it can wait; or in its place, if the matter stands already.
    void postBehind(Notice notice);
    void settle(Matter matter);
    // What is said of the drawing goes with it.
    void settleOfDrawing();
    bool tells(Matter matter) const;
    // None where nothing is to be said.
    const Notice* shown() const;

  private:
    std::vector<Notice> standing_; // the last one is shown
};

// Copies what is to be said to the controls of the strip, which is out of sight when there is nothing.
void showNotice(Controls& controls, const Notices& notices);

} // namespace mirtane
