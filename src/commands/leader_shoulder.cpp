#include "commands/leader_shoulder.h"

#include "geometry/fault.h"

namespace mirtane {

Shoulder shoulderAt(Point elbow, float size)
{
    constexpr double toText = 1.2;    // sizes to the right
    constexpr double textShare = 1.6; // a size by this is how far the text begins above
    Shoulder shoulder{elbow, elbow};
    keep(shoulder.end.x, double{elbow.x} + size);
    keep(shoulder.text.x, elbow.x + size * toText);
    keep(shoulder.text.y, elbow.y - size / textShare);
    return shoulder;
}

} // namespace mirtane
