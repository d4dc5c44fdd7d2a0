#pragma once

// One function running in a drawing. Its clicks, moves and keys come in by the canvas input, as in the
// program; there is no shell round it. Ortho is off unless a test wants it.

#include "app/drawing/canvas_input.h"
#include "app/drawing/endings.h"
#include "app/drawing/starters.h"
#include "app/typing/typed_entry.h"
#include "drawing_desk.h"
#include "tables/functions.h"
#include "text/utf8.h"

#include <string_view>

namespace mirtane::fake {

class FunctionDesk : public DrawingDesk {
  public:
    explicit FunctionDesk(std::string_view function, const Scale& view = {0, 0, 4800, 3200})
        : DrawingDesk(view)
    {
        ortho(false);
        parkPickLast(s);
        start(function);
        pic1.takeOps();
    }

    void start(std::string_view function) { startFunction(s, pic1, functionRow(function)); }

    void ortho(bool on)
    {
        s.orthoCaption = on ? "Ortho/On" : "Ortho/Off";
        s.controls[ids::orthoToggle].caption = s.orthoCaption;
    }

    void move(Point at) { canvasMouseMove(s, pic1, at); }
    void down(int button, Point at) { canvasMouseDown(s, pic1, button, at); }
    void click(Point at) { down(1, at); }
    void cancel(Point at = {}) { down(2, at); }
    void move(float x, float y) { move(Point{x, y}); }
    void click(float x, float y) { click(Point{x, y}); }

    void hold(int key) { canvasKeyDown(s, pic1, key); }
    void letGo() { canvasKeyUp(s); }

    // Keys on the drawing.
    void key(char32_t code) { canvasKeyPress(s, pic1, code); }
    void type(std::string_view text)
    {
        for (const std::string& c : utf8Characters(text)) key(firstCharacter(c).code);
    }
    void enter() { key(13); }
    void backspace() { key(8); }

    // A number or a name, begun on the drawing as it may be, or in entry; Enter behind it.
    void typeIn(std::string_view text)
    {
        for (const std::string& c : utf8Characters(std::string(text) + "\r")) {
            const char32_t code = firstCharacter(c).code;
            if (s.controls.focus != ids::entry) {
                key(code);
            } else {
                entryKeyPress(s, pic1, code);
            }
        }
    }
};

} // namespace mirtane::fake
