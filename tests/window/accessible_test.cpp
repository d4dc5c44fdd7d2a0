// What someone who does not see the window, or has no pointer, is told of it.

#include "platform/qt/window/control_view.h"
#include "seen.h"
#include "window_desk.h"

#include <QAccessible>

#include <gtest/gtest.h>

#include <set>

namespace mirtane {
namespace {

using fake::WindowDesk;

constexpr ids::Id forms[] = {ids::fileForm, ids::filterForm, ids::editsForm, ids::printForm, ids::helpForm};

// With every form on the screen.
struct WholeWindow : WindowDesk {
    WholeWindow()
    {
        for (const ControlId form : forms) controls()[form].visible = true;
        shell.giveFocus(ids::drawing);
        controls()[ids::notice].visible = true;
        controls()[ids::notice].caption = "Something to say";
        controls()[ids::noticeFirst].caption = "Do it";
        controls()[ids::noticeSecond].caption = "Leave it";
        for (ids::Id list : {ids::selectionList, ids::fileList, ids::folderList, ids::driveList,
                             ids::filterLayerList, ids::helpContents})
            controls()[list].rows = {"first", "second"};
        setText(controls()[ids::helpPage], "one\r\ntwo");
        window->refresh();
        settle();
    }

    // A form that has to be answered would take the keys from the others.
    void showAlone(ControlId shown)
    {
        for (const ControlId form : forms) controls()[form].visible = form == shown;
        window->refresh();
        settle();
    }
};

bool isWidget(const ControlRow& row)
{
    switch (row.kind) {
    case ControlKind::form:
    case ControlKind::menu:
    case ControlKind::entry:
    case ControlKind::checkedEntry:
    case ControlKind::workingText:
    case ControlKind::strip:
        return false;
    default:
        return true;
    }
}

bool takesKeys(ControlKind kind)
{
    return kind == ControlKind::button || kind == ControlKind::toggle || kind == ControlKind::field ||
           kind == ControlKind::combo || kind == ControlKind::list || kind == ControlKind::page;
}

std::set<QAccessible::Role> rolesOf(ControlKind kind)
{
    switch (kind) {
    case ControlKind::surface:
    case ControlKind::picture:
        return {QAccessible::Graphic};
    case ControlKind::button:
    case ControlKind::toggle:
        return {QAccessible::Button, QAccessible::CheckBox};
    case ControlKind::label:
        return {QAccessible::StaticText};
    case ControlKind::list:
        return {QAccessible::List};
    default:
        return {QAccessible::EditableText};
    }
}

TEST(Accessible, EachControlHasANameARoleAndAState)
{
    const WholeWindow desk;
    for (const ControlRow& row : controlTable) {
        if (!isWidget(row)) continue;
        const std::string name(row.name);
        QWidget* const widget = WindowDesk::widget(row.id);
        ASSERT_NE(widget, nullptr) << name;
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(told, nullptr) << name;
        const bool saysNothingNow = row.kind != ControlKind::field &&
                                    desk.session->controls[row.id].caption.empty() && row.caption.empty() &&
                                    (row.kind == ControlKind::label || row.name.starts_with("notice"));
        EXPECT_TRUE(saysNothingNow || !told->text(QAccessible::Name).isEmpty()) << name;
        EXPECT_EQ(rolesOf(row.kind).count(told->role()), 1U) << name << " is " << told->role();
        EXPECT_EQ(told->state().disabled == 0, desk.session->controls[row.id].enabled) << name;
        EXPECT_TRUE(!takesKeys(row.kind) || told->state().focusable == 1U) << name;
    }
}

TEST(Accessible, NamesOfOneFormDiffer)
{
    const WholeWindow desk;
    std::set<std::pair<const QWidget*, QString>> seen;
    for (const ControlRow& row : controlTable) {
        if (!isWidget(row) || !takesKeys(row.kind) || row.name.starts_with("notice")) continue;
        QWidget* const widget = WindowDesk::widget(row.id);
        ASSERT_NE(widget, nullptr) << row.name;
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        EXPECT_TRUE(seen.insert({widget->window(), name}).second) << row.name << ": " << name.toStdString();
    }
}

TEST(Accessible, WhatIsOnIsTold)
{
    WindowDesk desk;
    for (const ids::Id button : {ids::drawCurve, ids::snapTangent, ids::orthoToggle, ids::selectWindow}) {
        for (const bool on : {true, false}) {
            desk.controls()[button].checked = on;
            desk.window->refresh();
            const QAccessibleInterface* const told =
                QAccessible::queryAccessibleInterface(WindowDesk::widget(button));
            EXPECT_EQ(told->role(), QAccessible::CheckBox) << tipOf(button).toStdString();
            EXPECT_EQ(told->state().checked == 1, on) << tipOf(button).toStdString();
        }
    }
    const QAccessibleInterface* const zoom =
        QAccessible::queryAccessibleInterface(WindowDesk::widget(ids::zoomAll));
    EXPECT_EQ(zoom->role(), QAccessible::Button) << "it can't be on";
}

TEST(Accessible, AToggleGoesByWhatItsCaptionSays)
{
    WindowDesk desk;
    desk.shell.click(ids::orthoToggle);
    desk.window->refresh();
    const QAccessibleInterface* const told =
        QAccessible::queryAccessibleInterface(WindowDesk::widget(ids::orthoToggle));
    EXPECT_EQ(told->text(QAccessible::Name), "Ortho/Off");
    EXPECT_EQ(told->text(QAccessible::Description), "Toggle ortho confine on/off.");
}

TEST(Accessible, AListGoesByTheLabelOverIt)
{
    WindowDesk desk;
    desk.controls()[ids::listMode].caption = "Select Hatch";
    desk.window->refresh();
    const QAccessibleInterface* const told =
        QAccessible::queryAccessibleInterface(WindowDesk::widget(ids::selectionList));
    EXPECT_EQ(told->text(QAccessible::Name), "Select Hatch");
}

TEST(Accessible, MenusAndTheirEntriesAreTold)
{
    const WindowDesk desk;
    QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(desk.window->menuBar());
    std::set<QString> names;
    for (int i = 0; i < bar->childCount(); ++i) {
        names.insert(bar->child(i)->text(QAccessible::Name));
        EXPECT_EQ(bar->child(i)->role(), QAccessible::MenuItem);
    }
    for (const char* name : {"File", "Undo", "Utilities", "Line Width", "Help"})
        EXPECT_EQ(names.count(QLatin1String(name)), 1U) << name;
}

// Round by Tab, one comes past everything of a form that takes keys.
TEST(Keys, TabLeadsToEachControlAndBack)
{
    WholeWindow desk;
    for (const ControlRow& row : controlTable) {
        if (!isWidget(row) || !takesKeys(row.kind)) continue;
        const QWidget* const widget = WindowDesk::widget(row.id);
        EXPECT_TRUE((widget->focusPolicy() & Qt::TabFocus) != 0) << row.name;
        const QWidget* next = widget;
        bool comesPast = false;
        for (int i = 0; i < 500 && !comesPast; ++i) {
            next = next->nextInFocusChain();
            comesPast = next == widget;
        }
        EXPECT_TRUE(comesPast) << row.name;
    }
}

// As it stands on the screen, with what is close by.
QImage looks(const QWidget& widget)
{
    constexpr int close = 3;
    const QRect place = QRect(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size())
                            .adjusted(-close, -close, close, close)
                            .intersected(widget.window()->rect());
    return widget.window()->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
}

void giveKeys(QWidget& widget)
{
    widget.window()->activateWindow();
    widget.setFocus(Qt::TabFocusReason);
    WindowDesk::settle();
}

// Another control of the same form.
ids::Id besides(const ControlRow& row)
{
    const ControlId form = formOf(row.id);
    for (const ControlRow& other : controlTable) {
        const bool takes = isWidget(other) && takesKeys(other.kind) && !other.name.starts_with("notice");
        if (takes && other.id != row.id && formOf(other.id) == form) return other.id;
    }
    return row.id;
}

// Who goes through the window by Tab sees where it is, whatever it is that has the keys.
TEST(Keys, TheFocusIsSeen)
{
    WholeWindow desk;
    constexpr int plainly = 60; // pixels: a line along one side
    ControlId form = ids::mainForm;
    desk.showAlone(form);
    for (const ControlRow& row : controlTable) {
        const bool has = isWidget(row) && (takesKeys(row.kind) || row.kind == ControlKind::surface);
        if (!has || !desk.controls()[row.id].enabled || row.name.starts_with("notice")) continue;
        if (!(formOf(row.id) == form)) desk.showAlone(form = formOf(row.id));
        QWidget& widget = *WindowDesk::widget(row.id);
        giveKeys(widget);
        ASSERT_TRUE(widget.hasFocus()) << row.name;
        const QImage with = looks(widget);
        giveKeys(*WindowDesk::widget(besides(row)));
        ASSERT_FALSE(widget.hasFocus()) << row.name;
        EXPECT_GE(fake::plainlyDifferent(with, looks(widget)), plainly) << row.name;
    }
}

TEST(Contrast, OfAllTextsIsEnoughToBeRead)
{
    WholeWindow desk;
    constexpr double enough = 4.5;
    for (const ControlRow& row : controlTable) {
        const bool isText = row.kind == ControlKind::label || row.kind == ControlKind::toggle ||
                            row.kind == ControlKind::list || row.kind == ControlKind::field ||
                            row.kind == ControlKind::display || row.kind == ControlKind::page ||
                            (row.kind == ControlKind::button && row.parent.empty());
        if (!isText || !desk.controls()[row.id].enabled) continue;
        const bool isEmpty = desk.controls()[row.id].caption.empty() && row.kind != ControlKind::list;
        if (isEmpty) {
            desk.controls()[row.id].caption = "Words";
            setText(desk.controls()[row.id], "Words");
        }
    }
    desk.window->refresh();
    WindowDesk::settle();
    for (QWidget* const one : QApplication::allWidgets()) {
        ControlId id;
        if (!findControl(one->objectName().toStdString(), id) || !one->isVisible() || !one->isEnabled())
            continue;
        if (!isWidget(id.row()) || id.row().kind == ControlKind::surface) continue;
        if (id.row().kind == ControlKind::picture) continue;
        const QImage picture = looks(*one);
        EXPECT_GE(fake::strongestContrast(picture), enough) << id.row().name;
    }
}

// The line of the pen, in eight colours, and two of a ground: none of them is what its words are written in.
TEST(Contrast, OfTheWordsForThePenIsEnoughInEachColor)
{
    WindowDesk desk;
    for (const std::int32_t color : {0xFF0000, 0x00FF00, 0x0000FF, 0x000000, 0xFFFFFF}) {
        desk.controls()[ids::lineSettings].color = color;
        desk.window->refresh();
        WindowDesk::settle();
        QWidget& box = *WindowDesk::widget(ids::lineSettings);
        const QImage words =
            box.grab().toImage().convertToFormat(QImage::Format_RGB32).copy(60, 0, 200, box.height() * 2);
        EXPECT_GE(fake::strongestContrast(words), 4.5) << std::hex << color;
    }
}

} // namespace
} // namespace mirtane
