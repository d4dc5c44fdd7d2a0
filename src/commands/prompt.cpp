#include "commands/prompt.h"

#include "geometry/fault.h"
#include "model/shown_prompt.h"
#include "render/redraw.h"
#include "tables/functions.h"
#include "text/measure.h"
#include "text/numbers.h"

namespace mirtane {
namespace {

constexpr double unitsPerInch = 12;

std::string sizeText(const Attributes& s, float size)
{
    return formatSize(size, {numStyleOf(s.numStyle), s.dimTol, s.numComma == 1});
}

std::string filletText(const Session& s)
{
    if (s.numStyle == "br") return sizeText(s, s.filletRadius);
    float radius = 0;
    keep(radius, s.filletRadius / unitsPerInch);
    return plainNumber(radius);
}

std::string currentNumber(const Session& s, PromptNumber number)
{
    switch (number) {
    case PromptNumber::none:
        return {};
    case PromptNumber::polygonSides:
        return plainNumber(s.polygonSides);
    case PromptNumber::hatchScale:
        return plainNumber(s.hatchScale);
    case PromptNumber::filletRadius:
        return filletText(s);
    case PromptNumber::textSize:
        return sizeText(s, s.textSize);
    case PromptNumber::arrowSize:
        return sizeText(s, s.arrowSize);
    }
    return {};
}

std::string textOf(Session& s, const Prompt& prompt)
{
    std::string text(prompt.text);
    if (prompt.number == PromptNumber::none) return text;
    setText(s.controls[ids::workText], currentNumber(s, prompt.number));
    return text + s.controls[ids::workText].text + std::string(prompt.textBehind);
}

} // namespace

void showPromptOfStep(Session& s, std::int16_t stepNo)
{
    const FunctionRow* row = findFunction(s.curFunc);
    const Prompt* prompt = row == nullptr ? nullptr : promptAt(row->prompts, stepNo);
    showPrompt(s, s.curFunc, prompt == nullptr ? s.functionPrompt.text : textOf(s, *prompt));
}

void setPrompt(Session& s, Canvas& pic1)
{
    showPromptOfStep(s, s.stepNo);
    s.liveAngle = 0;
    s.controls[ids::blankToggle].caption =
        functionRow(s.curFunc).clicks == Clicks::layConstructionLine ? "Blank/On" : "Blank/Off";
    s.controls[ids::editsForm].visible = false;
    if (s.baseFunc == s.lastFunc) return;
    s.lastFunc = s.baseFunc;
    if (isSelectionFunction(s.curFunc)) return;
    setText(s.controls[ids::entry], "");
    changeStat(s.store, Stat::sel, Stat::on);
    redrawAll(s, pic1);
}

} // namespace mirtane
