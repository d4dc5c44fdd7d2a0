#include "platform/qt/room_on_screen.h"

#include <algorithm>

namespace mirtane {

QRect within(const QRect& wished, const QMargins& frame, const QRect& room)
{
    QRect whole = wished.marginsAdded(frame);
    whole.setSize(whole.size().boundedTo(room.size()));
    whole.moveLeft(std::clamp(whole.left(), room.left(), room.left() + room.width() - whole.width()));
    whole.moveTop(std::clamp(whole.top(), room.top(), room.top() + room.height() - whole.height()));
    return whole.marginsRemoved(frame);
}

} // namespace mirtane
