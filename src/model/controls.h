#pragma once

#include "tables/controls.h"

#include <array>
#include <string>
#include <vector>

namespace mirtane {

// What a control shows. Routines read and write these values; the window copies them to the screen after each
// event. Text positions (caret, anchor) count characters; what lies between them is selected.
struct Control {
    std::string text;
    std::string caption;
    std::vector<std::string> rows;
    int row = -1; // current row of a list, -1 none
    int caret = 0;
    int anchor = 0;
    bool visible = true;
    bool enabled = true;
    bool checked = false;
    std::int32_t color = 0xFFFFFF; // foreground, 0xBBGGRR
    std::string font;              // of a box that shows a font's sample, else empty

    friend bool operator==(const Control&, const Control&) = default;
};

class Controls {
  public:
    // Every control with its caption and first text; forms but the main one, the strip and working strings,
    // not visible.
    Controls();

    Control& operator[](ControlId id) { return controls_[id.index]; }
    const Control& operator[](ControlId id) const { return controls_[id.index]; }

    ControlId focus = ids::drawing;

  private:
    std::array<Control, controlCount> controls_;
};

// Whether ortho confines points: its button says so.
bool orthoIsOn(const Controls& controls);

// Replaces the text and puts the caret behind its last character.
void setText(Control& control, std::string text);

// Replaces the text and selects all of it, with the caret behind its last character: the next key types over
// it.
void setSelectedText(Control& control, std::string text);

// Hides the form and gives the focus back to the drawing.
void leaveForm(Controls& controls, ControlId form);

// Puts the caret at position (characters, clipped to the text) with nothing selected.
void setCaret(Control& control, int position);

// What an edit field does with a key that its filter let through: UTF-8 text replaces the selection;
// Backspace removes the selection or the character before the caret.
void typeInto(Control& control, std::string_view utf8Character);
void backspaceIn(Control& control);

// What a control stands on: fileForm for fileName, mainForm for entry, notice for the buttons of the strip.
ControlId formOf(ControlId id);

} // namespace mirtane
