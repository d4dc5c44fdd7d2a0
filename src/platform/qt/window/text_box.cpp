#include "platform/qt/window/text_box.h"

#include "platform/qt/fonts.h"
#include "platform/qt/whole.h"
#include "platform/qt/window/swatches.h"
#include "platform/qt/window/typed_keys.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>

namespace mirtane {
namespace {

// The toolkit counts 16-bit units, a Control characters; beyond the first plane the two differ.
int charactersBefore(const QString& text, int unit)
{
    return countOf(text.left(unit).toUcs4().size());
}

int unitsBefore(const QString& text, int character)
{
    int unit = 0;
    for (int i = 0; i < character && unit < text.size(); ++i) unit += text.at(unit).isHighSurrogate() ? 2 : 1;
    return unit;
}

bool isUndoKey(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

bool movesCaret(const QKeyEvent& event)
{
    const int key = event.key();
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End ||
           event.matches(QKeySequence::SelectAll) || event.matches(QKeySequence::Copy);
}

QFont sampleOf(const std::string& name)
{
    constexpr int pixels = 15;
    QFont font = faceOf(QString::fromStdString(name));
    font.setPixelSize(pixels);
    return font;
}

} // namespace

TextBox::TextBox(EventGate& gate, ControlId id, QWidget* parent) : QLineEdit(parent), gate_(gate), id_(id)
{
    setToolTip(tipOf(id));
    setContextMenuPolicy(Qt::NoContextMenu);
    setDragEnabled(false);
    setAcceptDrops(false);
    // What only shows something is no stop on the way of the Tab key.
    if (id.row().kind == ControlKind::display) setFocusPolicy(Qt::ClickFocus);
    // A word in blue on black can't be read, a patch of blue is seen.
    if (id == ids::lineSettings) {
        swatch_ = addAction(QIcon(), LeadingPosition);
        ensurePolished();
        setFixedHeight(sizeHint().height()); // whatever the face that it shows
    }
    connect(this, &QLineEdit::cursorPositionChanged, this, &TextBox::caretMoved);
    connect(this, &QLineEdit::selectionChanged, this, &TextBox::caretMoved);
}

void TextBox::show(const Control& now)
{
    const QString shown = QString::fromStdString(now.text);
    if (text() != shown) setText(shown);
    const int caret = unitsBefore(shown, now.caret);
    const int anchor = unitsBefore(shown, now.anchor);
    if (caret == anchor) {
        deselect();
        setCursorPosition(caret);
    } else {
        setSelection(anchor, caret - anchor);
    }
    showColor(now.color);
    if (!now.font.empty()) setFont(sampleOf(now.font));
    setEnabled(now.enabled);
    setVisible(now.visible);
}

void TextBox::showColor(std::int32_t bgr)
{
    if (bgr == color_ || swatch_ == nullptr) return;
    color_ = bgr;
    swatch_->setIcon(patchOf(bgr));
}

bool TextBox::event(QEvent* event)
{
    // A line edit drops its selection a moment after its window came in front, unless it has the keys by
    // then. Where another window gave way just before, it hasn't, and the name that is proposed would no
    // longer be typed over.
    if (event->type() == QEvent::WindowActivate)
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call): that is what is passed over
    // The box's own undo would be a second history; the keys are the drawing's.
    if (event->type() == QEvent::ShortcutOverride &&
        isUndoKey(*static_cast<QKeyEvent*>(event))) { // told by its type
        event->ignore();
        return false;
    }
    if (event->type() == QEvent::KeyPress && completes(*static_cast<QKeyEvent*>(event)))
        return true; // the same
    return QLineEdit::event(event);
}

// Tab completes the name of a file; where there is nothing to complete it leads on.
bool TextBox::completes(const QKeyEvent& event)
{
    if (id_ != ControlId(ids::fileName) || event.key() != Qt::Key_Tab || event.modifiers() != Qt::NoModifier)
        return false;
    const QString before = text();
    gate_.send([](Shell& shell) { shell.keyPress(key::tab); });
    return text() != before;
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (movesCaret(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    edit(*event);
    event->accept();
}

void TextBox::edit(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste)) {
        type(typeable(QApplication::clipboard()->text()));
    } else if (event.matches(QKeySequence::Cut)) {
        copy();
        if (hasSelectedText()) type(QChar(key::backspace));
    } else if (event.key() == Qt::Key_Delete) {
        deleteForward();
    } else {
        type(typedBy(event));
    }
}

// Taking away what lies behind the caret is stepping over it and taking away what lies before.
void TextBox::deleteForward()
{
    if (!hasSelectedText()) {
        if (cursorPosition() == text().size()) return;
        cursorForward(false);
    }
    type(QChar(key::backspace));
}

void TextBox::inputMethodEvent(QInputMethodEvent* event)
{
    type(typeable(event->commitString()));
    event->accept();
}

void TextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (byUser(*event)) gate_.send([this](Shell& shell) { shell.giveFocus(id_); });
}

void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        type(typeable(QApplication::clipboard()->text(QClipboard::Selection)));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    // Who selects text in a field goes on there; what only shows something gives the focus back at once.
    const bool isDisplay = id_.row().kind == ControlKind::display;
    if (event->button() == Qt::LeftButton && (isDisplay || !hasSelectedText()) &&
        rect().contains(wholePoint(event->position()))) {
        gate_.send([this](Shell& shell) { shell.click(id_); });
    }
}

void TextBox::type(const QString& characters)
{
    typeAt(gate_, id_, characters);
}

void TextBox::caretMoved()
{
    if (gate_.closed()) return;
    const int caret = cursorPosition();
    const int start = selectionStart();
    const int anchor = start < 0 ? caret : (start == caret ? selectionEnd() : start);
    Control& control = gate_.shell().session().controls[id_];
    control.caret = charactersBefore(text(), caret);
    control.anchor = charactersBefore(text(), anchor);
}

} // namespace mirtane
