#pragma once

#include "app/app.h"

namespace mirtane {

// The menus that show the layers in the list and wait for a click on one; what the click does follows the
// heading of the list, and lasts until another menu changes it.
void showLayerList(App& app, ControlId menu);
void addLayerMenu(App& app, ControlId);
void hideAllLayers(App& app, ControlId);
void displayAllLayers(App& app, ControlId);

// A click on row r of the list.
void setWorkingLayer(App& app, int r);
void hideOrDisplayLayer(App& app, int r);
void chooseLayerToName(App& app, int r);
void unnameLayer(App& app, int r);
void loadLayer(App& app, int r);
void saveLayer(App& app, int r);

// A key in the box of the layers; Enter names the chosen layer or adds one.
void layerNameKeyPress(App& app, char32_t code);

} // namespace mirtane
