#include "commands/live_text.h"

#include "commands/kept_letters.h"
#include "commands/leader.h"
#include "commands/prompt.h"
#include "commands/text.h"
#include "commands/text_edit.h"
#include "commands/typed_text.h"
#include "render/redraw.h"
#include "tables/functions.h"

#include <algorithm>
#include <limits>

namespace mirtane {
namespace {

constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;

// A leader's text is typed first, and its points are clicked then.
void finishLeaderText(Session& s, Canvas& pic1)
{
    setText(s.controls[ids::workText], typedText(s));
    countStep(s);
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
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
const LiveTextRow* rowOf(const FunctionState& s)
{
    const auto* const found = std::ranges::find(rows, s.curFunc, &LiveTextRow::function);
    const bool takes = found != std::end(rows) && s.stepNo >= found->firstStep && s.stepNo <= found->lastStep;
    return takes ? found : nullptr;
}

bool isControlCharacter(char32_t code)
{
    return code < U' ' || (code >= 0x7F && code < 0xA0);
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
    if (code == backspace) takeBackCharacter(s);
    if (code != backspace) typeCharacter(s, code);
    setText(s.controls[ids::workText], typedText(s));
    if (s.textLength == 0) {
        resetPicture(pic1);
        s.controls.focus = ids::drawing;
        return;
    }
    restorePicture(pic1);
    row->preview(s, pic1);
}

bool isTypingText(const Session& s)
{
    return rowOf(s) != nullptr && (s.textLength > 0 || functionRow(s.curFunc).editsText);
}

void repaintTextPreview(Session& s, Canvas& pic1)
{
    const LiveTextRow* row = rowOf(s);
    if (row != nullptr) repaintPreview(s, pic1, row->preview);
}

} // namespace mirtane
