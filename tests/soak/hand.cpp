#include "hand.h"

#include <charconv>
#include <concepts>

namespace mirtane::soak {
namespace {

constexpr char32_t enterKey = 13;
constexpr char32_t backspaceKey = 8;

template <std::floating_point Number> std::string shown(Number value)
{
    char digits[64];
    return {digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr};
}

std::string shown(const Point& at)
{
    return shown(at.x) + " " + shown(at.y);
}

std::string shown(const Scale& scale)
{
    return shown(Point{scale.left, scale.top}) + " " + shown(Point{scale.width, scale.height});
}

std::string nameOf(ControlId id)
{
    return std::string(id.row().name);
}

// An empty text has to be written as a JSON string; no other text here begins with a quote or a blank.
std::string shownText(const std::string& text)
{
    return text.empty() ? "\"\"" : text;
}

} // namespace

bool Hand::reaches(ControlId id) const
{
    return stage_.shell.takesInput(id);
}

void Hand::move(Point at)
{
    note("move " + shown(at));
    stage_.shell.mouseMove(at);
}

void Hand::down(int button, Point at)
{
    note("down " + std::to_string(button) + " " + shown(at));
    stage_.shell.mouseDown(button, at);
}

void Hand::click(Point at)
{
    note("click " + shown(at));
    stage_.shell.mouseMove(at);
    stage_.shell.mouseDown(1, at);
}

// mirtane-play has no wheel: the lines leave the same world window and the same rubber band.
void Hand::wheel(double steps, Point at)
{
    note("# wheel " + shown(steps) + " " + shown(at));
    stage_.shell.wheel(steps, at);
    note("scale " + shown(stage_.pic1.getScale()));
    note("move " + shown(at));
}

void Hand::holdKey(int code)
{
    note("keydown " + std::to_string(code));
    stage_.shell.keyDown(code);
}

void Hand::letGoKey(int code)
{
    note("keyup " + std::to_string(code));
    stage_.shell.keyUp(code);
}

void Hand::typeKeys(const std::string& text)
{
    for (const std::string& c : utf8Characters(text)) stage_.shell.keyPress(firstCharacter(c).code);
}

void Hand::type(const std::string& text)
{
    note("type " + shownText(text));
    typeKeys(text);
}

void Hand::enter()
{
    note("enter");
    stage_.shell.keyPress(enterKey);
}

void Hand::backspace()
{
    note("backspace");
    stage_.shell.keyPress(backspaceKey);
}

void Hand::put(ControlId box, const std::string& text)
{
    if (!reaches(box)) return;
    note("put " + nameOf(box) + " " + shownText(text));
    stage_.shell.giveFocus(box);
    Control& control = stage_.s.controls[box];
    setCaret(control, static_cast<int>(control.text.size())); // no more characters than bytes
    control.anchor = 0;
    typeKeys(text);
}

void Hand::press(ControlId id)
{
    if (!reaches(id)) return;
    note("press " + nameOf(id));
    stage_.shell.click(id);
}

void Hand::giveFocus(ControlId id)
{
    if (!reaches(id)) return;
    note("focus " + nameOf(id));
    stage_.shell.giveFocus(id);
}

void Hand::pick(ControlId list, int row)
{
    if (!reaches(list) || row < 0 || row >= std::ssize(stage_.s.controls[list].rows)) return;
    note("pick " + nameOf(list) + " " + std::to_string(row));
    stage_.shell.clickRow(list, row);
}

void Hand::scale(const Scale& scale)
{
    note("scale " + shown(scale));
    stage_.pic1.setScale(scale);
    stage_.shell.resized();
}

void Hand::resize(int width, int height)
{
    note("resize " + std::to_string(width) + " " + std::to_string(height));
    stage_.pic1.resizePixels(width, height, 1);
    stage_.shell.resized();
}

void Hand::rest()
{
    note("idle");
    stage_.shell.rest();
}

void Hand::closeForm(ControlId form)
{
    note(form == "frmMain"_c ? "close" : "# the close button of " + nameOf(form));
    stage_.shell.closeForm(form);
}

} // namespace mirtane::soak
