#pragma once

#include "render/canvas.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace mirtane {

// One operation as it was called: its name as in Canvas, its numbers as they were typed (so that each can be
// written in the shortest form that reads back to the same value; a flag is 0 or 1), and its string, which
// comes last.
struct CanvasOp {
    using Arg = std::variant<std::int32_t, float, double>;

    std::string_view name;
    std::array<Arg, 5> args{};
    std::size_t count = 0;
    bool hasText = false;
    std::string text;

    friend bool operator==(const CanvasOp&, const CanvasOp&) = default;
};

// Passes every call on to another surface and writes down what was called; questions aren't written down.
// A full redraw calls well over 100,000 operations, so they are kept as a row of bytes until they are asked
// for.
class RecordingCanvas : public Canvas {
  public:
    // Passes on to inner, which must outlive it and is not null.
    explicit RecordingCanvas(Canvas* inner);
    // Only writes down. It has that many pixels, one world unit to the pixel until the scale is set, and a
    // font whose every character is 0.6 of its size wide.
    explicit RecordingCanvas(Size pixels);

    RecordingCanvas(const RecordingCanvas&) = delete;
    RecordingCanvas& operator=(const RecordingCanvas&) = delete;

    // Whether calls are written down from now on; on at first. What was written down stays.
    void record(bool on) { recording_ = on; }
    // The operations since the last call, in order; they are forgotten.
    std::vector<CanvasOp> takeOps();
    // The same one by one, for many; take may not draw on this surface.
    void takeOps(const std::function<void(const CanvasOp&)>& take);
    // With no surface behind: a new size at the same left, top and units to the pixel.
    void resizePixels(Size pixels);

    void clear() override;
    void setColor(std::int32_t color) override;
    void setStyle(std::int16_t style) override;
    void line(float x1, float y1, float x2, float y2) override;
    void circle(float cx, float cy, float r) override;
    void arc(float cx, float cy, float r, double a1, double a2) override;
    void point(float x, float y) override;
    // Written down as the lines that it stands for.
    bool smallEllipse(const View& view, const Chords& chords) override;

    Scale getScale() const override;
    void setScale(const Scale& scale) override;
    Size getPixelSize() const override;
    Size getOuterSize() const override;

    void setFontName(std::string_view utf8) override;
    void setFontSize(float size) override;
    void setUnderline(bool on) override;
    float textWidth(std::string_view utf8) const override;
    void text(float x, float y, int degrees, std::string_view utf8) override;

    void snapshot() override;
    void restoreSnapshot() override;
    void clearSnapshot() override;
    void refresh() override;

  private:
    template <class... Args> void note(std::size_t op, const Args&... args);
    void put(std::int32_t value);
    void put(float value);
    void put(double value);
    void put(std::string_view value);

    Canvas* inner_ = nullptr; // not owned, null if there is none
    bool recording_ = true;
    std::vector<std::byte> log_;
    Size pixels_;
    Scale scale_;
    float fontSize_ = 0;
};

} // namespace mirtane
