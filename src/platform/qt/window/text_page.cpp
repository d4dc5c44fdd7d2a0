#include "platform/qt/window/text_page.h"

#include "platform/qt/whole.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace mirtane {
namespace {

// The page ends its lines with one character, the control with two.
int positionOf(const QString& text, int character)
{
    return character - countOf(text.left(character).count(u'\r'));
}

int characterOf(const QString& text, int position)
{
    int character = 0;
    for (int seen = 0; character < text.size(); ++character) {
        if (text.at(character) == u'\r') continue;
        if (seen++ == position) break;
    }
    return character;
}

} // namespace

TextPage::TextPage(EventGate& gate, ControlId id, QWidget* parent)
    : QPlainTextEdit(parent), gate_(gate), id_(id)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setCursorWidth(0); // nothing is typed here
    setToolTip(tipOf(id));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // its tables are lined up with blanks
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { scrolled(); });
}

void TextPage::show(const Control& now)
{
    const QString text = QString::fromStdString(now.text).remove(QLatin1Char('\r'));
    if (toPlainText() != text) setPlainText(text);
    openAt(now);
}

// A place that is jumped to comes to the top; a word that is marked only has to be seen.
void TextPage::openAt(const Control& now)
{
    const QString text = QString::fromStdString(now.text); // of one 16-bit unit each: a Western code page
    QTextCursor cursor = textCursor();
    cursor.setPosition(positionOf(text, now.anchor));
    const int top = cursor.block().firstLineNumber();
    cursor.setPosition(positionOf(text, now.caret), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    if (now.caret == now.anchor) verticalScrollBar()->setValue(top);
}

void TextPage::scrolled()
{
    const int first = cursorForPosition(QPoint(0, 0)).position();
    gate_.send([this, first](Shell& shell) {
        Control& control = shell.session().controls[id_];
        control.caret = characterOf(QString::fromStdString(control.text), first);
        control.anchor = control.caret;
    });
}

void TextPage::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

} // namespace mirtane
