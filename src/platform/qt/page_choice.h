#pragma once

#include "app/ports.h"

#include <QPageLayout>

#include <string>

namespace mirtane {

// What the user has chosen for pages that become files.
struct PageChoice {
    QPageSize paper;
    QPageLayout::Orientation way = QPageLayout::Portrait;
    std::string folder; // empty: beside the drawing
};

// As it is kept among the settings; the paper is the system's until one is chosen.
PageChoice pageChoiceIn(SettingsStore& settings);
void keep(const PageChoice& choice, SettingsStore& settings);

// "A3 across"
std::string sheetOf(const PageChoice& choice);

// What there is to say of a choice while pages are still made as they were at the start of the program.
std::string told(const PageChoice& choice, const PageChoice& atStart);

} // namespace mirtane
