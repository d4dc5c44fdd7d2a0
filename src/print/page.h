#pragma once

// The selected objects on one page: centred, at the largest scale that fits with half an inch to spare, or
// smaller by a factor of the user's choosing.

#include "model/session.h"
#include "print/printer.h"

namespace mirtane {

// Where the world lies on the page: a world point (x, y) at (scale x - originX, scale y - originY), twips.
struct PageMapping {
    double scale = 1; // twips to the world unit
    double originX = 0, originY = 0;

    double x(double world) const { return scale * world - originX; }
    double y(double world) const { return scale * world - originY; }
};

// The value at which the selection fits the page: drawing units (of twelve world units) to the inch of paper.
// Also sets the bounds of the selection in page. The fit is reckoned on the page less half an inch each way.
float fittedScale(PrintState& page, const EntityStore& store);

// Sets printFactor so that so many drawing units come to the inch of paper, whatever the fit. The bounds of
// the selection must be set. False, and nothing is set, if the selection with half an inch to spare is larger
// than the page.
bool scaleTo(PrintState& page, const EntityStore& store, double drawingUnits);

// The mapping of the selection's bounds at printFactor. A selection without any extent keeps the scale that
// was last used, times the factor once more. Its shape is compared with that of the whole page.
PageMapping pageMapping(PrintState& page, const EntityStore& store);

// All selected objects, texts first, and the program's name at the corner. Begins and ends no page.
void drawPage(const EntityStore& store, const PageMapping& mapping, double pageHeight, Printer& printer);

} // namespace mirtane
