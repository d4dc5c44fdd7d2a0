#pragma once

#include "app/files/file_preview.h"
#include "app/ports.h"
#include "dxf/scratch.h"
#include "model/session.h"
#include "render/canvas.h"
#include "tables/shortcuts.h"

#include <cstddef>
#include <string_view>

namespace mirtane {

// The main object of the program without its window. Every event of the user comes in here, one at a time,
// and is routed; what the user then sees is in session().controls and on the surface. An event for a control
// that is greyed, that stands on a form that is not shown, or behind one that has to be answered first, does
// nothing.
class Shell {
  public:
    // The surface, its scale set, and the ports must outlive the shell.
    Shell(Session& session, Canvas& pic1, Ports ports);

    // The start of the program: defaults, settings, function "Line", an empty drawing.
    void start();
    // The drawing that the program was asked for at its start, by its absolute path: opens it as Open Drawing
    // does. Where that can't be done the dialog stays up with the name.
    void openDrawing(const std::string& path);
    bool ended() const { return s_.ended; }

    // On pic1. Buttons: 1 left, 2 right, 4 middle. Points are world coordinates.
    void mouseDown(int button, Point at);
    void mouseMove(Point at);
    // The pointer has left the drawing.
    void pointerLeft();
    // Zooms about a point; steps above 0 zoom in.
    void wheel(double steps, Point at);
    // The same by a factor, above 1 in.
    void zoom(double factor, Point at);
    // A hand moves the drawing so that what was at one point of the picture comes to lie at another.
    void drag(Point from, Point to);
    // Key codes: 16 Shift, 17 Ctrl, 37 left, 38 up, 39 right, 40 down.
    void keyDown(int code);
    void keyUp(int code);
    // Which of the two keys that snap are down while the pointer is over pic1. Moves no focus.
    void keysHeld(bool shift, bool ctrl);
    // The surface has a new size in pixels; its scale width and height follow at the same units to the pixel.
    void resized();
    // Repaints; the window asks for it when a resize has come to rest.
    void redraw();

    // A key press, to the control that has the focus: a character's code, 13 Enter, 8 Backspace.
    void keyPress(char32_t code);
    // Characters that come in one go, pasted or composed: a key press each, after which it is still said if
    // one of them was refused.
    void type(std::u32string_view characters);

    // A click on a button, toggle, menu entry, label or text box.
    void click(ControlId id);
    void clickRow(ControlId list, int row);
    // An arrow key moved to the row of a list.
    void moveToRow(ControlId list, int row);
    void doubleClickRow(ControlId list, int row);
    // An entry of the menus, by the pointer or its keys: a key that was held for a snap was held for this.
    void choose(ControlId entry);
    void shortcut(const Shortcut& keys);
    // A file dropped on the window, by its absolute path, with so many others: opens as it would from the
    // menus. The others don't.
    void dropFile(const std::string& path, std::ptrdiff_t others = 0);
    // The control got the focus; the one that had it gets its lost-focus event.
    void giveFocus(ControlId id);
    // The close button of a form's frame.
    void closeForm(ControlId form);

    // Nobody has touched the program for a moment, or it is about to be ended from outside: work that is not
    // saved is kept. Gives whether that is to be seen to again soon, though nobody touches the program.
    bool rest();

    // Draws on a surface of its own what the file holds that is lit in the file dialog; false where that is
    // left out.
    bool previewFile(Canvas& picture);

    // Whether an event of the control would do anything.
    bool takesInput(ControlId id) const;

    Session& session() { return s_; }
    const Session& session() const { return s_; }

  private:
    // Carries out act(app) as one event; of a control, only while that can be used.
    template <class Act> void event(Act act);
    template <class Act> void eventOf(ControlId id, Act act);

    void takePointer(Point at);
    // The pointer is there: what follows it does.
    void follow(Point at);
    // After each event: the lost-focus event of the control that had the focus before, and the prompt line.
    void settle(ControlId focusBefore);

    Session& s_;
    Canvas& pic1_;
    Ports ports_;
    DxfScratch dxfScratch_;
    FilePreview preview_;
    bool pointerCame_ = false; // with the event
};

} // namespace mirtane
