#include "commands/live_text.h"

#include "commands/kept_letters.h"
#include "commands/leader.h"
#include "commands/prompt.h"
#include "commands/text.h"
#include "commands/text_edit.h"
#include "render/redraw.h"
#include "text/utf8.h"

#include <algorithm>
#include <limits>

namespace mirtane {
namespace {

constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;

// A leader's text is typed first, and its points are clicked then.
void finishLeaderText(Session& s, Canvas& pic1)
{
    setText(s.controls["Text3"_c], typedText(s));
    countStep(s);
    setPrompt(s, pic1);
    s.controls.focus = "pic1"_c;
}

struct LiveTextRow {
    std::string_view function;
    std::int16_t firstStep, lastStep; // where keys are taken
    void (*preview)(Session&, Canvas&);
    void (*finish)(Session&, Canvas&);
};

constexpr std::int16_t anyStep = std::numeric_limits<std::int16_t>::max();

constexpr LiveTextRow rows[] = {
    {"Place Text", 1, anyStep, placeTextPreview, placeTextLine},
    {"Leader", 0, 0, leaderPreview, finishLeaderText},
    {"Text Edit", 1, anyStep, textEditPreview, finishTextEdit},
};

// The row of the function that takes text at this step, or null.
const LiveTextRow* rowOf(const Session& s)
{
    const auto* const found = std::ranges::find(rows, s.curFunc, &LiveTextRow::function);
    const bool takes = found != std::end(rows) && s.stepNo >= found->firstStep && s.stepNo <= found->lastStep;
    return takes ? found : nullptr;
}

bool isControlCharacter(char32_t code)
{
    return code < U' ' || (code >= 0x7F && code < 0xA0);
}

std::size_t filled(const Session& s)
{
    return std::min(static_cast<std::size_t>(std::max(s.textLength, 0)), s.textBuffer.size());
}

// Past its end the buffer takes nothing, and the count goes on.
void typeCharacter(Session& s, char32_t code)
{
    if (filled(s) < s.textBuffer.size()) s.textBuffer[filled(s)] = encodeUtf8(code);
    ++s.textLength;
}

void takeBack(Session& s)
{
    if (s.textLength > 0) --s.textLength;
}

} // namespace

void liveTextKey(Session& s, Canvas& pic1, char32_t code)
{
    const LiveTextRow* row = rowOf(s);
    if (row == nullptr) return;
    if (code == enter) {
        restorePicture(pic1);
        return row->finish(s, pic1);
    }
    if (isControlCharacter(code) && code != backspace) return;
    if (refusesLetter(s.controls, code)) return;
    if (code == backspace) takeBack(s);
    if (code != backspace) typeCharacter(s, code);
    setText(s.controls["Text3"_c], typedText(s));
    if (s.textLength == 0) {
        resetPicture(pic1);
        s.controls.focus = "pic1"_c;
        return;
    }
    restorePicture(pic1);
    row->preview(s, pic1);
}

void repaintTextPreview(Session& s, Canvas& pic1)
{
    const LiveTextRow* row = rowOf(s);
    if (row == nullptr || s.textLength <= 0) return;
    row->preview(s, pic1);
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
    setText(s.controls["Text3"_c], text);
}

void clearTypedText(Session& s)
{
    s.textLength = 0;
    setText(s.controls["Text3"_c], "");
}

} // namespace mirtane
