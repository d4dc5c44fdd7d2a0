// How the window shows what the controls hold, and how it takes the room that it is given.

#include "files/library_files.h"
#include "seen.h"
#include "tables/pens.h"
#include "window_desk.h"

#include <QKeyEvent>
#include <QListView>
#include <QMenu>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using fake::WindowDesk;

QRect placeOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

// A screen of 1920 by 1080 enlarged by two, with a frame and a bar of the desktop; others have more room.
TEST(Window, HasAllOfItsControlsWithinItOnALowScreen)
{
    for (const QSize room : {QSize(948, 500), QSize(1012, 728), QSize(1280, 800)}) {
        WindowDesk desk(nullptr, room);
        desk.controls()[ids::notice].visible = true;
        desk.controls()[ids::notice].caption = "The file was changed by someone else at 14:32";
        desk.window->refresh();
        WindowDesk::settle();
        EXPECT_EQ(desk.window->size(), room) << "it can be made as small as " << room.height();
        for (const ControlRow& row : controlTable) {
            const bool onMain = formOf(row.id) == ids::mainForm;
            QWidget* const widget = onMain ? WindowDesk::widget(row.id) : nullptr;
            if (widget == nullptr || widget == desk.window.get() || !desk.controls()[row.id].visible)
                continue;
            EXPECT_TRUE(desk.window->rect().contains(placeOf(*widget)))
                << row.name << " at " << room.height();
            EXPECT_FALSE(widget->visibleRegion().isEmpty()) << row.name << " at " << room.height();
        }
    }
}

TEST(Window, HasTheNamesOfTheGroupsWhereThereIsRoomForThem)
{
    for (const auto& [height, shown] : {std::pair(464, false), std::pair(500, true), std::pair(700, true)}) {
        const WindowDesk desk(nullptr, {1000, height});
        const auto names = desk.window->findChildren<QWidget*>(QStringLiteral("heading"));
        ASSERT_EQ(names.size(), 5);
        for (const QWidget* name : names) EXPECT_EQ(name->isVisible(), shown) << height;
    }
}

TEST(Window, ShowsThatTheMenuBarGoesOn)
{
    const WindowDesk desk(nullptr, {700, 600});
    auto* const more =
        desk.window->menuBar()->findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
    ASSERT_NE(more, nullptr);
    ASSERT_TRUE(more->isVisible());
    EXPECT_GE(more->width(), 16);
    const QImage picture = more->grab().toImage().convertToFormat(QImage::Format_RGB32);
    int bright = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) bright += qGray(picture.pixel(x, y)) > 200 ? 1 : 0;
    }
    EXPECT_GE(bright, 60);
}

QImage pictureOf(const QIcon& icon, QIcon::State state)
{
    return icon.pixmap(QSize(64, 64), qApp->devicePixelRatio(), QIcon::Normal, state).toImage();
}

int pixelsOf(const QImage& picture, QRgb color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == color ? 1 : 0;
    }
    return count;
}

TEST(Swatches, StandBeforeEachPenInItsColorAndWidth)
{
    const WindowDesk desk;
    int before = 0;
    for (const Pen& pen : pens) {
        const QIcon icon = desk.entry(pen.entry)->icon();
        const QRgb color = qRgb(pen.color & 0xFF, (pen.color >> 8) & 0xFF, (pen.color >> 16) & 0xFF);
        const int pixels = pixelsOf(pictureOf(icon, QIcon::Off), color);
        EXPECT_GT(pixels, before) << pen.entry.row().caption << " is no wider than the one before";
        before = pixels;
    }
}

// As the menu paints them: a stroke of 24 pixels, in entries no higher than others.
TEST(Swatches, AreSeenInTheMenuAtTheirWidth)
{
    const WindowDesk desk;
    const QList<QMenu*> menus = desk.window->findChildren<QMenu*>();
    const auto menu = std::ranges::find_if(
        menus, [&](const QMenu* one) { return one->actions().contains(desk.entry(ids::redPen)); });
    ASSERT_NE(menu, menus.end());
    (*menu)->popup(QPoint(0, 0));
    WindowDesk::settle();
    const QImage picture = (*menu)->grab().toImage().convertToFormat(QImage::Format_RGB32);
    int widest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        int red = 0;
        for (int x = 0; x < picture.width(); ++x) red += picture.pixel(x, y) == qRgb(255, 0, 0) ? 1 : 0;
        widest = std::max(widest, red);
    }
    EXPECT_EQ(widest, 24 * 2) << "each on two of the screen's";
    EXPECT_LT((*menu)->actionGeometry(desk.entry(ids::redPen)).height(), 32);
    (*menu)->hide();
}

TEST(Swatches, OfLineStylesDiffer)
{
    const WindowDesk desk;
    QList<QImage> seen;
    for (const LineStyle& style : lineStyles) {
        const QImage picture = pictureOf(desk.entry(style.entry)->icon(), QIcon::Off);
        EXPECT_GT(pixelsOf(picture, 0xFFFFFFFF), 0) << style.entry.row().caption;
        EXPECT_FALSE(seen.contains(picture)) << style.entry.row().caption;
        seen.append(picture);
    }
}

TEST(Swatches, AreTickedWhereTheEntryIsChecked)
{
    const WindowDesk desk;
    for (const ids::Id entry : {ids::bluePen, ids::whitePen, ids::solidLine, ids::dashDotDotLine}) {
        const QIcon icon = desk.entry(entry)->icon();
        EXPECT_NE(pictureOf(icon, QIcon::On), pictureOf(icon, QIcon::Off)) << entry;
    }
    EXPECT_TRUE(desk.entry(ids::saveDrawing)->icon().isNull());
}

TEST(Swatches, OfThePenInUseIsTheOneThatIsTicked)
{
    const WindowDesk desk;
    for (const Pen& chosen : pens) {
        desk.press(chosen.entry);
        for (const Pen& pen : pens) {
            const QAction& entry = *desk.entry(pen.entry);
            EXPECT_EQ(entry.isCheckable() && entry.isChecked(), pen.color == chosen.color)
                << chosen.entry.row().caption << " and " << pen.entry.row().caption;
        }
    }
}

TEST(Buttons, OfTheRunningFunctionLooksOn)
{
    WindowDesk desk;
    for (const ids::Id button : {ids::drawEllipse, ids::selectWindow, ids::drawLine, ids::zoomWindow}) {
        desk.shell.click(button);
        desk.window->refresh();
        EXPECT_TRUE(dynamic_cast<QToolButton&>(*WindowDesk::widget(button)).isChecked()) << button;
    }
    desk.shell.mouseDown(2, {});
    desk.window->refresh();
    EXPECT_FALSE(dynamic_cast<QToolButton&>(*WindowDesk::widget(ids::zoomWindow)).isChecked())
        << "it has ended";
}

TEST(Buttons, LookOtherWhileTheyAreOn)
{
    WindowDesk desk;
    for (const ids::Id button : {ids::drawLine, ids::drawCurve, ids::snapToPoint, ids::orthoToggle}) {
        QWidget& widget = *WindowDesk::widget(button);
        const auto look = [&](bool on) {
            desk.controls()[button].checked = on;
            desk.window->refresh();
            return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        const QImage off = look(false);
        EXPECT_GE(fake::plainlyDifferent(look(true), off), 60) << button;
    }
}

// What a set of multiple lines has in its file.
Bytes someLines()
{
    MultipleLinesLibrary library;
    for (const float offset : {-36.0F, 0.0F, 36.0F}) {
        MultipleLine row;
        row.m1 = offset;
        row.name = "wall";
        library.add(row);
    }
    return multipleLinesBytes(library, "wall");
}

// The picture of a file takes its room from the list, and comes and goes from one file to the next.
TEST(FileList, KeepsTheLitFileInSightWhileItIsWalkedByKeys)
{
    WindowDesk desk;
    for (int i = 10; i < 60; ++i)
        desk.disk.files["/home/user/h" + std::to_string(i) + ".mtm"] = i % 3 == 0 ? someLines() : Bytes{};
    desk.press(ids::openMultipleLines);
    auto& list = dynamic_cast<QListView&>(*WindowDesk::widget(ids::fileList));
    list.setFocus();
    bool pictureCame = false;
    for (const int key : {Qt::Key_Down, Qt::Key_Up}) {
        for (int i = 0; i < 49; ++i) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(&list, &press);
            WindowDesk::settle();
            pictureCame = pictureCame || WindowDesk::widget(ids::filePicture)->isVisible();
            ASSERT_TRUE(list.currentIndex().isValid());
            EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())))
                << list.currentIndex().row();
        }
    }
    EXPECT_TRUE(pictureCame);
}

} // namespace
} // namespace mirtane
