#include "platform/qt/window/form_window.h"

#include "platform/qt/room_on_screen.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/edit_form.h"
#include "platform/qt/window/file_form.h"
#include "platform/qt/window/filter_form.h"
#include "platform/qt/window/help_form.h"
#include "platform/qt/window/print_form.h"
#include "platform/qt/window/typed_keys.h"

#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <array>

namespace mirtane {
namespace {

struct FormRow {
    ControlId form;
    void (*lay)(const ControlMaker& maker, QWidget& form); // puts the form's controls on it
};

constexpr std::array<FormRow, 5> forms{{
    {ids::editsForm, layEditForm},
    {ids::fileForm, layFileForm},
    {ids::filterForm, layFilterForm},
    {ids::helpForm, layHelpForm},
    {ids::printForm, layPrintForm},
}};

// How much smaller than the main window the form with the manual is: 1000 and 700 twips, 15 to the pixel.
constexpr QSize helpSmallerBy(67, 47);

// Nothing is known of it before the window has been on the screen.
QMargins frameOf(const QWidget& window)
{
    return window.windowHandle() == nullptr ? QMargins() : window.windowHandle()->frameMargins();
}

// A window of its own: it may stand beside the drawing or go behind it.
constexpr Qt::WindowFlags ofManual = Qt::Window;
// Over the main window for as long as it is up.
constexpr Qt::WindowFlags ofForm = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

bool standsAlone(ControlId form)
{
    return form == ids::helpForm;
}

} // namespace

FormWindow::FormWindow(EventGate& gate, ControlId form, QWidget& mainWindow)
    : QWidget(standsAlone(form) ? nullptr : &mainWindow, standsAlone(form) ? ofManual : ofForm), gate_(gate),
      form_(form), main_(mainWindow)
{
    setObjectName(nameOf(form));
    setWindowIcon(mainWindow.windowIcon());
    if (form == ids::printForm || form == ids::fileForm) setWindowModality(Qt::WindowModal);
    auto& escape = childOf<QShortcut>(*this, QKeySequence(Qt::Key_Escape));
    connect(&escape, &QShortcut::activated, this, &QWidget::close); // as by the frame
}

void FormWindow::show(const Control& now)
{
    setWindowTitle(QString::fromStdString(now.caption));
    // One that stands alone keeps the place and the size that the user gave it.
    const bool comesUp = now.visible && isHidden();
    if (comesUp && !(placed_ && standsAlone(form_))) moveOverMain();
    // Who had the keys, or was about to get them, gives them back, also where no window manager sees to it.
    if (!now.visible && isVisible()) main_.activateWindow();
    setVisible(now.visible);
    placed_ = placed_ || now.visible;
    if (now.visible && standsAlone(form_)) raise();
    if (comesUp) activateWindow(); // for whoever closes it by a key, whatever the focus is on
}

void FormWindow::moveOverMain()
{
    const QRect below = main_.geometry();
    if (!testAttribute(Qt::WA_Resized))
        adjustSize(); // before it is first shown a form has no size of its own
    if (form_ == ids::helpForm) resize(below.size() - helpSmallerBy);
    QRect wished = rect();
    wished.moveCenter(below.center());
    setGeometry(within(wished, frameOf(main_), main_.screen()->availableGeometry()));
}

// What no control on it takes is a key of the drawing, where the form is one of those that the shell lets.
void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (const Shortcut* const shortcut = shortcutOnDrawing(*event))
        gate_.send([shortcut](Shell& shell) { shell.shortcut(*shortcut); });
    else
        QWidget::keyPressEvent(event);
}

// Whether the form goes is for the shell to say.
void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    gate_.send([this](Shell& shell) { shell.closeForm(form_); });
}

std::unique_ptr<QWidget> makeForms(const ControlMaker& maker, QWidget& mainWindow)
{
    std::unique_ptr<QWidget> alone;
    for (const FormRow& row : forms) {
        auto form = std::make_unique<FormWindow>(maker.gate(), row.form, mainWindow);
        row.lay(maker, *form);
        maker.views().add(row.form, *form);
        if (standsAlone(row.form))
            alone = std::move(form);
        else
            static_cast<void>(form.release()); // its parent has it
    }
    return alone;
}

} // namespace mirtane
