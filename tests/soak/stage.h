#pragma once

// The whole program in memory, with a surface that really paints, as a session plays on it.

#include "app/shell.h"
#include "memory_ports.h"
#include "memory_work.h"
#include "print/recording_printer.h"
#include "render/raster_canvas.h"
#include "text/utf8.h"

#include <algorithm>
#include <memory>

namespace mirtane::soak {

inline constexpr const char* home = "/home/user";
inline constexpr int surfaceWidth = 300;
inline constexpr int surfaceHeight = 200;

// Each character is a box of 0.6 of its size, which is enough to touch all that a text touches.
class BoxTextCanvas : public RasterCanvas {
  public:
    using RasterCanvas::RasterCanvas;

    void setFontName(std::string_view) override {}
    void setFontSize(float size) override { size_ = size; }
    void setUnderline(bool) override {}
    float textWidth(std::string_view utf8) const override
    {
        return 0.6F * size_ * static_cast<float>(utf8Length(utf8)); // texts are below 16 million characters
    }
    void text(float x, float y, int, std::string_view utf8) override
    {
        line(x, y, x + textWidth(utf8), y + size_);
    }

  private:
    float size_ = 0;
};

class FewFonts : public Fonts {
  public:
    std::vector<std::string> names() override { return {"DejaVu Sans", "Garamond", "Liberation Mono"}; }
};

struct Stage {
    // The world window is four units to the pixel, as mirtane-play has it at its start.
    Stage()
    {
        folders.folders = {"/", "/home", home, std::string(home) + "/sub"};
        pic1.setScale({0, 0, 4 * surfaceWidth, 4 * surfaceHeight});
    }

    fake::MemoryDisk disk;
    fake::MemoryFolders folders{disk};
    fake::MemorySettings settings;
    RecordingPrinter printer;
    FewFonts fonts;
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    BoxTextCanvas pic1{surfaceWidth, surfaceHeight};
    fake::MemoryWork work;
    fake::MemoryClock clock;
    fake::MemoryOpenMarks marks;
    Shell shell{*session, pic1,
                Ports{disk, folders, settings, home, &printer, &fonts, {}, &work, &clock, &marks}};
};

} // namespace mirtane::soak
