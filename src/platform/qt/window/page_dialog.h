#pragma once

#include "platform/qt/page_choice.h"

namespace mirtane {

// Asks the user for paper, its way, and the folder of PDF files, which is the given one as long as none is
// chosen. False, and the choice stays, if the user calls it off.
bool isChosen(PageChoice& choice, const QString& folderNow);

} // namespace mirtane
