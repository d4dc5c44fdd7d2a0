#include "commands/typed_text.h"

#include "text/utf8.h"

#include <algorithm>

namespace mirtane {
namespace {

std::size_t filled(const Session& s)
{
    return std::min(static_cast<std::size_t>(std::max(s.textLength, 0)), s.textBuffer.size());
}

// Letters of a text that was loaded and is longer than the buffer. They stand in workText alone, from which
// Backspace takes them; none can be added.
std::string beyondBuffer(const Session& s)
{
    if (s.textLength <= std::ssize(s.textBuffer)) return "";
    const std::vector<std::string> shown = utf8Characters(s.controls[ids::workText].text);
    const std::size_t end =
        std::min(static_cast<std::size_t>(s.textLength), shown.size()); // above 100, as asked
    std::string text;
    for (std::size_t i = s.textBuffer.size(); i < end; ++i) text += shown[i];
    return text;
}

} // namespace

void typeCharacter(Session& s, char32_t code)
{
    if (filled(s) < s.textBuffer.size()) s.textBuffer[filled(s)] = encodeUtf8(code);
    ++s.textLength;
}

void takeBackCharacter(CanvasInput& s)
{
    if (s.textLength > 0) --s.textLength;
}

void repaintPreview(Session& s, Canvas& pic1, void (*preview)(Session&, Canvas&))
{
    if (s.textLength <= 0) return;
    preview(s, pic1);
    pic1.refresh();
}

std::string typedText(const Session& s)
{
    std::string text;
    for (std::size_t i = 0; i < filled(s); ++i) text += s.textBuffer[i];
    return text + beyondBuffer(s);
}

void loadTypedText(Session& s, const std::string& text)
{
    const std::vector<std::string> characters = utf8Characters(text);
    const std::size_t kept = std::min(characters.size(), s.textBuffer.size());
    std::copy_n(characters.begin(), kept, s.textBuffer.begin());
    s.textLength = static_cast<std::int32_t>(characters.size()); // a string of a file has at most 65,535
    setText(s.controls[ids::workText], text);
}

void clearTypedText(Session& s)
{
    s.textLength = 0;
    setText(s.controls[ids::workText], "");
}

} // namespace mirtane
