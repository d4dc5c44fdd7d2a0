// The log is one byte for the operation and then its arguments as they lie in memory; the table tells which
// they are.

#include "render/recording_canvas.h"

#include "geometry/fault.h"
#include "render/chords.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace mirtane {

namespace {

struct OpRow {
    std::string_view name;
    std::string_view args; // i 32-bit whole, f float, d double, s string
};

constexpr std::array<OpRow, 16> opRows{{
    {"clear", ""},
    {"setColor", "i"},
    {"setStyle", "i"},
    {"line", "ffff"},
    {"circle", "fff"},
    {"arc", "fffdd"},
    {"point", "ff"},
    {"setScale", "ffff"},
    {"setFontName", "s"},
    {"setFontSize", "f"},
    {"setUnderline", "i"},
    {"text", "ffis"},
    {"snapshot", ""},
    {"restoreSnapshot", ""},
    {"clearSnapshot", ""},
    {"refresh", ""},
}};

// The row of an operation, found when this is compiled.
consteval std::size_t rowOf(std::string_view name)
{
    for (std::size_t i = 0; i < opRows.size(); ++i) {
        if (opRows[i].name == name) return i;
    }
    throw "no such operation"; // ends the compilation
}

template <class Value> Value taken(const std::byte*& at)
{
    Value value;
    std::memcpy(&value, at, sizeof value);
    at += sizeof value;
    return value;
}

std::string takenText(const std::byte*& at)
{
    const auto size = taken<std::size_t>(at);
    std::string text(size, '\0');
    if (size > 0) std::memcpy(text.data(), at, size);
    at += size;
    return text;
}

CanvasOp takenOp(const std::byte*& at)
{
    const OpRow& row = opRows[static_cast<std::size_t>(*at++)]; // written by note(), a row of the table
    CanvasOp op;
    op.name = row.name;
    for (const char kind : row.args) {
        if (kind == 's') {
            op.hasText = true;
            op.text = takenText(at);
            continue;
        }
        CanvasOp::Arg& arg = op.args[op.count++];
        if (kind == 'i') arg = taken<std::int32_t>(at);
        if (kind == 'f') arg = taken<float>(at);
        if (kind == 'd') arg = taken<double>(at);
    }
    return op;
}

template <class Value> void append(std::vector<std::byte>& log, const Value& value)
{
    const std::size_t size = log.size();
    log.resize(size + sizeof value);
    std::memcpy(log.data() + size, &value, sizeof value);
}

bool beginsCharacter(char byte)
{
    return (byte & 0xC0) != 0x80;
}

} // namespace

RecordingCanvas::RecordingCanvas(Canvas* inner) : inner_(inner) {}

RecordingCanvas::RecordingCanvas(Size pixels)
    : pixels_(pixels), scale_{0, 0, static_cast<float>(pixels.width), static_cast<float>(pixels.height)}
{
    // The sizes of surfaces are small whole numbers, exact as floats.
}

std::vector<CanvasOp> RecordingCanvas::takeOps()
{
    std::vector<CanvasOp> ops;
    takeOps([&ops](const CanvasOp& op) { ops.push_back(op); });
    return ops;
}

void RecordingCanvas::takeOps(const std::function<void(const CanvasOp&)>& take)
{
    const std::byte* at = log_.data();
    const std::byte* const end = at + log_.size();
    while (at != end) take(takenOp(at));
    log_.clear();
}

void RecordingCanvas::resizePixels(Size pixels)
{
    // The scale is 32-bit; its factors aren't, so that nothing is lost between.
    keep(scale_.width, double{scale_.width} * pixels.width / pixels_.width);
    keep(scale_.height, double{scale_.height} * pixels.height / pixels_.height);
    pixels_ = pixels;
}

template <class... Args> void RecordingCanvas::note(std::size_t op, const Args&... args)
{
    if (!recording_) return;
    log_.push_back(static_cast<std::byte>(op)); // the table has fewer than 256 rows
    (put(args), ...);
}

void RecordingCanvas::put(std::int32_t value)
{
    append(log_, value);
}

void RecordingCanvas::put(float value)
{
    append(log_, value);
}

void RecordingCanvas::put(double value)
{
    append(log_, value);
}

void RecordingCanvas::put(std::string_view value)
{
    append(log_, value.size());
    for (const char c : value) log_.push_back(static_cast<std::byte>(c)); // bits of a byte
}

void RecordingCanvas::clear()
{
    note(rowOf("clear"));
    if (inner_) inner_->clear();
}

void RecordingCanvas::setColor(std::int32_t color)
{
    note(rowOf("setColor"), color);
    if (inner_) inner_->setColor(color);
}

void RecordingCanvas::setStyle(std::int16_t style)
{
    note(rowOf("setStyle"), std::int32_t{style});
    if (inner_) inner_->setStyle(style);
}

void RecordingCanvas::line(float x1, float y1, float x2, float y2)
{
    note(rowOf("line"), x1, y1, x2, y2);
    if (inner_) inner_->line(x1, y1, x2, y2);
}

void RecordingCanvas::circle(float cx, float cy, float r)
{
    note(rowOf("circle"), cx, cy, r);
    if (inner_) inner_->circle(cx, cy, r);
}

void RecordingCanvas::arc(float cx, float cy, float r, double a1, double a2)
{
    note(rowOf("arc"), cx, cy, r, a1, a2);
    if (inner_) inner_->arc(cx, cy, r, a1, a2);
}

void RecordingCanvas::point(float x, float y)
{
    note(rowOf("point"), x, y);
    if (inner_) inner_->point(x, y);
}

bool RecordingCanvas::smallEllipse(const View& view, const Chords& chords)
{
    if (!inner_ || !inner_->smallEllipse(view, chords)) return false;
    Canvas* const inner = std::exchange(inner_, nullptr); // it has drawn what is only written down here
    drawChords(*this, view, chords);
    inner_ = inner;
    return true;
}

Scale RecordingCanvas::getScale() const
{
    return inner_ ? inner_->getScale() : scale_;
}

void RecordingCanvas::setScale(const Scale& scale)
{
    note(rowOf("setScale"), scale.left, scale.top, scale.width, scale.height);
    scale_ = scale;
    if (inner_) inner_->setScale(scale);
}

Size RecordingCanvas::getPixelSize() const
{
    return inner_ ? inner_->getPixelSize() : pixels_;
}

Size RecordingCanvas::getOuterSize() const
{
    return inner_ ? inner_->getOuterSize() : Size{pixels_.width * 15, pixels_.height * 15};
}

void RecordingCanvas::setFontName(std::string_view utf8)
{
    note(rowOf("setFontName"), utf8);
    if (inner_) inner_->setFontName(utf8);
}

void RecordingCanvas::setFontSize(float size)
{
    note(rowOf("setFontSize"), size);
    fontSize_ = size;
    if (inner_) inner_->setFontSize(size);
}

void RecordingCanvas::setUnderline(bool on)
{
    note(rowOf("setUnderline"), std::int32_t{on});
    if (inner_) inner_->setUnderline(on);
}

float RecordingCanvas::textWidth(std::string_view utf8) const
{
    if (inner_) return inner_->textWidth(utf8);
    const auto characters = std::count_if(utf8.begin(), utf8.end(), beginsCharacter);
    return 0.6F * fontSize_ * static_cast<float>(characters); // a string's length
}

void RecordingCanvas::text(float x, float y, int degrees, std::string_view utf8)
{
    note(rowOf("text"), x, y, std::int32_t{degrees}, utf8);
    if (inner_) inner_->text(x, y, degrees, utf8);
}

void RecordingCanvas::snapshot()
{
    note(rowOf("snapshot"));
    if (inner_) inner_->snapshot();
}

void RecordingCanvas::restoreSnapshot()
{
    note(rowOf("restoreSnapshot"));
    if (inner_) inner_->restoreSnapshot();
}

void RecordingCanvas::clearSnapshot()
{
    note(rowOf("clearSnapshot"));
    if (inner_) inner_->clearSnapshot();
}

void RecordingCanvas::refresh()
{
    note(rowOf("refresh"));
    if (inner_) inner_->refresh();
}

} // namespace mirtane
