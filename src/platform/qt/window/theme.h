#pragma once

#include <QApplication>

namespace mirtane {

// The colours, fonts and spacing of all windows: dark and quiet, so that the drawing is what one sees.
void applyTheme(QApplication& application);

} // namespace mirtane
