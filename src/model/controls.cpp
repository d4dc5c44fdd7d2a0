#include "model/controls.h"

#include <algorithm>

namespace mirtane {
namespace {

bool startsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; // UTF-8 continuation bytes are 10xxxxxx
}

int characterCount(const std::string& text)
{
    return static_cast<int>(std::count_if(text.begin(), text.end(), startsCharacter)); // texts are short
}

std::size_t byteOffset(const std::string& text, int position)
{
    std::size_t byte = 0;
    for (int seen = 0; byte < text.size(); ++byte) {
        if (startsCharacter(text[byte]) && seen++ == position) break;
    }
    return byte;
}

void replaceSelection(Control& control, std::string_view with)
{
    const int first = std::min(control.caret, control.anchor);
    const int last = std::max(control.caret, control.anchor);
    const std::size_t from = byteOffset(control.text, first);
    control.text.replace(from, byteOffset(control.text, last) - from, with);
    setCaret(control, first + characterCount(std::string(with)));
}

} // namespace

Controls::Controls()
{
    for (std::size_t i = 0; i < controlCount; ++i) {
        const ControlRow& row = controlTable[i];
        Control& control = controls_[i];
        control.caption = row.caption;
        setText(control, std::string(row.text));
        const bool comesLater =
            row.kind == ControlKind::strip || (row.kind == ControlKind::form && row.name != "frmMain");
        control.visible = !comesLater && row.kind != ControlKind::workingText;
    }
}

bool orthoIsOn(const Controls& controls)
{
    return controls[ids::orthoToggle].caption != "Ortho/Off";
}

void setText(Control& control, std::string text)
{
    control.text = std::move(text);
    setCaret(control, characterCount(control.text));
}

void setSelectedText(Control& control, std::string text)
{
    setText(control, std::move(text));
    control.anchor = 0;
}

void leaveForm(Controls& controls, ControlId form)
{
    controls[form].visible = false;
    controls.focus = ids::drawing;
}

void setCaret(Control& control, int position)
{
    control.caret = std::clamp(position, 0, characterCount(control.text));
    control.anchor = control.caret;
}

void typeInto(Control& control, std::string_view utf8Character)
{
    replaceSelection(control, utf8Character);
}

void backspaceIn(Control& control)
{
    if (control.caret == control.anchor) control.anchor = std::max(0, control.caret - 1);
    replaceSelection(control, {});
}

ControlId formOf(ControlId id)
{
    const std::string_view name = id.row().name;
    ControlId form = ids::mainForm;
    if (id.row().kind == ControlKind::form || id.row().kind == ControlKind::strip) return id;
    if (const auto dot = name.find('.'); dot != std::string_view::npos)
        findControl(name.substr(0, dot), form);
    return form;
}

} // namespace mirtane
