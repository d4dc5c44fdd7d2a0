#pragma once

// The whole program without a window, at its start, with everything about it in memory.

#include "app/shell.h"
#include "drawing_desk.h"
#include "memory_ports.h"
#include "memory_work.h"
#include "text/utf8.h"

namespace mirtane::fake {

inline constexpr const char* home = "/home/user";

class Desk : public DrawingDesk {
  public:
    explicit Desk(const std::map<std::string, std::string>& stored = {}, const MemoryWork& found = {},
                  Printer* printer = nullptr)
        : work(found),
          shell(*session, pic1,
                Ports{disk, folders, settings, home, printer, nullptr, {}, &work, &clock, &marks})
    {
        settings.values = stored;
        folders.folders = {"/", "/home", home};
        shell.start();
        pic1.takeOps();
    }

    void press(ControlId id) { shell.click(id); }
    void move(float x, float y) { shell.mouseMove({x, y}); }
    void down(int button, float x, float y) { shell.mouseDown(button, {x, y}); }
    void click(float x, float y)
    {
        move(x, y);
        down(1, x, y);
    }
    void cancel(float x = 0, float y = 0) { down(2, x, y); }
    void type(std::string_view text)
    {
        for (const std::string& c : utf8Characters(text)) shell.keyPress(firstCharacter(c).code);
    }
    void enter() { shell.keyPress(13); }
    void backspace() { shell.keyPress(8); }
    // Types a name over what stands in the file dialog.
    void name(const std::string& typed)
    {
        setText(s.controls["frmfile.Text1"_c], "");
        shell.giveFocus("frmfile.Text1"_c);
        type(typed);
    }
    void saveAs(const std::string& typed)
    {
        press("fil7"_c);
        name(typed);
        enter();
    }
    void open(const std::string& typed)
    {
        press("fil4"_c);
        name(typed);
        enter();
    }
    // A point by a construction line, which counts as snapped.
    void layPoint(float x, float y)
    {
        press(ids::blankToggle);
        down(1, x, y);
        press(ids::blankToggle);
    }
    void drawLine(float x1, float y1, float x2, float y2)
    {
        press("Command1"_c);
        down(1, x1, y1);
        shell.mouseMove({x2, y2});
        down(1, x2, y2);
        cancel();
    }

    std::string_view focused() const { return session->controls.focus.row().name; }
    std::string_view title() const { return caption("frmMain"_c); }

    MemoryDisk disk;
    MemoryFolders folders{disk};
    MemorySettings settings;
    MemoryWork work;
    MemoryClock clock;
    MemoryOpenMarks marks;
    Shell shell;
};

inline std::string titleOf(std::string_view doing, std::string_view drawing = "untitled.mtd")
{
    return "Mirtane 4.00    Drawing Name: " + std::string(drawing) +
           "    Current Function: " + std::string(doing);
}

} // namespace mirtane::fake
