#pragma once

#include "tables/controls.h"

#include <QIcon>
#include <QSize>

namespace mirtane {

inline constexpr QSize swatchSize(48, 16);

// What stands before a menu entry that chooses a pen or a line style: a stroke as it will be drawn, and a
// tick while the entry is checked. None for other entries.
QIcon swatchOf(ControlId entry);

// A patch of a pen's colour with its number in the menu of pens on it.
QIcon patchOf(std::int32_t bgr);

QColor colorOf(std::int32_t bgr);

} // namespace mirtane
