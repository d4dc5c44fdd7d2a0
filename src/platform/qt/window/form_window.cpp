#include "platform/qt/window/form_window.h"

#include "platform/qt/window/child.h"
#include "platform/qt/window/edit_form.h"
#include "platform/qt/window/file_form.h"
#include "platform/qt/window/filter_form.h"
#include "platform/qt/window/help_form.h"
#include "platform/qt/window/print_form.h"

#include <QCloseEvent>
#include <QShortcut>

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

} // namespace

FormWindow::FormWindow(EventGate& gate, ControlId form, QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint),
      gate_(gate), form_(form)
{
    if (form == ids::printForm || form == ids::fileForm) setWindowModality(Qt::WindowModal);
    auto& escape = childOf<QShortcut>(*this, QKeySequence(Qt::Key_Escape));
    connect(&escape, &QShortcut::activated, this, &QWidget::close); // as by the frame
}

void FormWindow::show(const Control& now)
{
    setWindowTitle(QString::fromStdString(now.caption));
    if (now.visible && isHidden()) moveOverParent();
    // Whoever had the keys gives them back, also where no window manager sees to it.
    if (!now.visible && isActiveWindow()) parentWidget()->activateWindow();
    setVisible(now.visible);
}

void FormWindow::moveOverParent()
{
    const QRect below = parentWidget()->geometry();
    if (!testAttribute(Qt::WA_Resized))
        adjustSize(); // before it is first shown a form has no size of its own
    if (form_ == ids::helpForm) resize(below.size() - helpSmallerBy);
    move(below.center() - rect().center());
}

// Whether the form goes is for the shell to say.
void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    gate_.send([this](Shell& shell) { shell.closeForm(form_); });
}

void makeForms(const ControlMaker& maker, QWidget& parent)
{
    for (const FormRow& row : forms) {
        FormWindow& form = childOf<FormWindow>(parent, maker.gate(), row.form);
        row.lay(maker, form);
        maker.views().add(row.form, form);
    }
}

} // namespace mirtane
