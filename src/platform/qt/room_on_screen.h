#pragma once

#include <QMargins>
#include <QRect>

namespace mirtane {

// What a desktop puts round a window, as long as it has not told what it really does.
inline constexpr QMargins usualFrame(6, 34, 6, 6);

// Where a window comes to stand that is wished for at a place, without its frame: with all of the frame
// within the room that the screen has, and only as large as that.
QRect within(const QRect& wished, const QMargins& frame, const QRect& room);

} // namespace mirtane
