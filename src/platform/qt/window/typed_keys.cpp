#include "platform/qt/window/typed_keys.h"

#include <algorithm>
#include <array>

namespace mirtane {
namespace {

struct KeyCode {
    int key;
    int code;
};

constexpr std::array<KeyCode, 9> codes{{
    {Qt::Key_Backspace, 8},
    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
}};

// Ctrl or Alt alone makes a key a command; both together are how some keyboards reach a character.
bool isCommand(Qt::KeyboardModifiers held)
{
    const bool ctrl = held.testFlag(Qt::ControlModifier);
    const bool alt = held.testFlag(Qt::AltModifier);
    return ctrl != alt || held.testFlag(Qt::MetaModifier);
}

// A letter and its accent, where they come one by one, become the letter that a drawing can keep. The name of
// a file stays as it is spelt.
std::u32string charactersFor(ControlId id, const QString& text)
{
    const bool namesFile = id == ids::fileName;
    return (namesFile ? text : text.normalized(QString::NormalizationForm_C)).toStdU32String();
}

} // namespace

QString typedBy(const QKeyEvent& event)
{
    const int code = codeOf(event);
    if (isCommand(event.modifiers())) return {};
    if (code == key::enter || code == key::backspace) return QChar(code);
    return typeable(event.text());
}

QString typeable(const QString& text)
{
    QString line = text.section(QLatin1Char('\n'), 0, 0);
    line.removeIf([](QChar c) { return c.unicode() < 32 || c.unicode() == 127; });
    return line;
}

void typeAt(EventGate& gate, ControlId id, const QString& text)
{
    if (text.isEmpty()) return;
    if (!(gate.shell().session().controls.focus == id))
        gate.send([id](Shell& shell) { shell.giveFocus(id); });
    const std::u32string characters = charactersFor(id, text);
    gate.send([&characters](Shell& shell) { shell.type(characters); });
}

QKeySequence keysOf(const Shortcut& shortcut)
{
    const QLatin1StringView keys(shortcut.keys.data(), static_cast<qsizetype>(shortcut.keys.size())); // short
    return QKeySequence::fromString(keys, QKeySequence::PortableText);
}

const Shortcut* shortcutOnDrawing(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence pressed(
        QKeyCombination(held, static_cast<Qt::Key>(event.key()))); // as the toolkit names it
    const auto* const row =
        std::find_if(std::begin(shortcuts), std::end(shortcuts),
                     [&](const Shortcut& one) { return one.onDrawing && keysOf(one) == pressed; });
    return row == std::end(shortcuts) ? nullptr : row;
}

int codeOf(const QKeyEvent& event)
{
    const auto row = std::find_if(codes.begin(), codes.end(),
                                  [&event](const KeyCode& one) { return one.key == event.key(); });
    return row == codes.end() ? 0 : row->code;
}

} // namespace mirtane
