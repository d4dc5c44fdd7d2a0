#pragma once

#include "app/app.h"

namespace mirtane {

// The events of pic1. Points are world coordinates; buttons 1 left, 2 right, 4 middle; key codes 16 Shift, 17
// Ctrl, 37 to 40 the arrows.
void canvasMouseDown(Session& s, Canvas& pic1, int button, Point at);
void canvasMouseMove(Session& s, Canvas& pic1, Point at);
void canvasKeyDown(Session& s, Canvas& pic1, int code);
void canvasKeyUp(CanvasInput& s);
// A shortcut was made with the keys that are down: until they are let go they snap no more.
void spendHeldKeys(CanvasInput& s);
// Which of the keys that snap while they are held are down, as the pointer tells it: they may have gone down
// or up where another control had the keys.
void canvasKeysHeld(CanvasInput& s, bool shift, bool ctrl);
void canvasKeyPress(Session& s, Canvas& pic1, char32_t code);

// A right click, or a click on the last point: ends the action and returns to baseFunc.
void cancel(Session& s, Canvas& pic1, Point at);

// The rubber band as the pointer would show it at a point where it has not moved to: it changes the picture
// and what is shown beside it, and nothing else.
void showBandAt(Session& s, Canvas& pic1, Point at);

} // namespace mirtane
