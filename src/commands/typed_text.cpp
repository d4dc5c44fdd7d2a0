#include "commands/typed_text.h"

#include "text/utf8.h"

#include <algorithm>

namespace mirtane {
namespace {

std::size_t filled(const Session& s)
{
    return std::min(static_cast<std::size_t>(std::max(s.textLength, 0)), s.textBuffer.size());
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
    return text;
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
