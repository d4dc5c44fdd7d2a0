#pragma once

#include "platform/qt/window/event_gate.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QString>

namespace mirtane {

namespace key {
inline constexpr char32_t backspace = 8;
inline constexpr char32_t enter = 13;
inline constexpr char32_t tab = 9;
} // namespace key

// The characters that a key types: its text, Enter or Backspace; nothing for a key that types none, or that a
// held Ctrl or Alt makes a command.
QString typedBy(const QKeyEvent& event);

// The first line of a text as it can be typed: without control characters.
QString typeable(const QString& text);

// Gives the focus to the control unless it has it, and sends the characters, each as a key press of its own,
// to the control that has the focus at that moment: the first may move it.
void typeAt(EventGate& gate, ControlId id, const QString& text);

QKeySequence keysOf(const Shortcut& shortcut);

// The shortcut of the drawing alone that the keys are; null for none.
const Shortcut* shortcutOnDrawing(const QKeyEvent& event);

// The key's code as the shell wants it; 0 for a key that has none.
int codeOf(const QKeyEvent& event);

} // namespace mirtane
