#pragma once

// The whole program without a window, at its start, with everything about it in memory.

#include "app/shell.h"
#include "drawing_desk.h"
#include "memory_ports.h"
#include "memory_work.h"

namespace mirtane::fake {

inline constexpr const char* home = "/home/user";
inline const std::string houseFile = "/home/user/house.mtd"; // where saving as "house" goes
inline constexpr ControlId list = "List1"_c;
inline constexpr int shiftKey = 16; // as the drawing is told
inline const std::vector<std::string> editRows = {
    "Break", "Trim",   "Stretch", "Copy", "Mirror Copy", "Radial Copy", "Concentric Copy", "Move", "Rotate",
    "Scale", "Change", "Fillet",  "",     "Delete"};
inline constexpr ControlId filterBoxes[] = {"frmfilter.Text1"_c, "frmfilter.Text2"_c, "frmfilter.Text3"_c,
                                            "frmfilter.Text4"_c};

class Desk : public DrawingDesk {
  public:
    explicit Desk(const std::map<std::string, std::string>& stored = {}, const MemoryWork& found = {},
                  Printer* printer = nullptr);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void press(ControlId id);
    void move(float x, float y);
    void down(int button, float x, float y);
    void click(float x, float y);
    void cancel(float x = 0, float y = 0);
    void type(std::string_view text);
    void enter();
    void backspace();
    // Types a name over what stands in the file dialog.
    void name(const std::string& typed);
    void saveAs(const std::string& typed);
    void open(const std::string& typed);
    // A point by a construction line, which counts as snapped.
    void layPoint(float x, float y);
    void drawLine(float x1, float y1, float x2, float y2);

    std::string_view focused() const;
    std::string_view title() const;

    MemoryDisk disk;
    MemoryFolders folders{disk};
    MemorySettings settings;
    MemoryWork work;
    MemoryClock clock;
    MemoryOpenMarks marks;
    Shell shell;
};

std::string titleOf(std::string_view doing, std::string_view drawing = "untitled.mtd");

} // namespace mirtane::fake
