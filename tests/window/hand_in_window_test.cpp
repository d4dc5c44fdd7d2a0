// What the pointer does on the window, beyond a click.

#include "platform/qt/window/surface_widget.h"
#include "window_desk.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::WindowDesk;

// A file manager that proposes a move deletes the file that was moved.
TEST(Drop, IsACopyWhateverWasProposed)
{
    for (const Qt::DropAction proposed : {Qt::CopyAction, Qt::MoveAction, Qt::LinkAction}) {
        WindowDesk desk;
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/user/house.mtd"))});
        QDropEvent drop({300, 300}, Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, &file, Qt::LeftButton,
                        Qt::NoModifier);
        drop.setDropAction(proposed);
        static_cast<QObject&>(*desk.window).event(&drop); // the toolkit delivers only what was dragged
        EXPECT_TRUE(drop.isAccepted());
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    }
}

// What is no file of this machine is none that could have been opened.
TEST(Drop, OfSeveralFilesSaysHowManyAreNotTaken)
{
    WindowDesk desk;
    desk.disk.files["/home/user/house.mta"] = {};
    QMimeData files;
    files.setUrls({QUrl(QStringLiteral("https://house.example/plan.dxf")),
                   QUrl::fromLocalFile(QStringLiteral("/home/user/house.mta")),
                   QUrl::fromLocalFile(QStringLiteral("/home/user/barn.mtd")),
                   QUrl::fromLocalFile(QStringLiteral("/home/user/notes.txt"))});
    QDropEvent drop({300, 300}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject&>(*desk.window).event(&drop); // as above
    EXPECT_EQ(desk.controls()[ids::notice].caption,
              "3 other files that were dropped with house.mta were not taken.");
}

struct MiddleDrag : testing::Test {
    void send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, at, drawing->mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(drawing, &event);
        WindowDesk::settle();
    }

    WindowDesk desk;
    QWidget* drawing = WindowDesk::widget(ids::drawing);
};

TEST_F(MiddleDrag, LeavesWhatIsTypedWhereItIs)
{
    desk.press(ids::drawLine);
    send(QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton, Qt::LeftButton);
    desk.shell.giveFocus(ids::entry);
    for (const char32_t c : {U'1', U'2'}) desk.shell.keyPress(c);
    send(QEvent::MouseButtonPress, {200, 200}, Qt::MiddleButton, Qt::MiddleButton);
    for (int x = 210; x <= 260; x += 10)
        send(QEvent::MouseMove, QPointF(x, 233), Qt::NoButton, Qt::MiddleButton);
    send(QEvent::MouseButtonRelease, {260, 233}, Qt::MiddleButton, Qt::NoButton);
    EXPECT_EQ(desk.controls().focus, ControlId(ids::entry));
    desk.shell.keyPress(U'6');
    EXPECT_EQ(desk.controls()[ids::entry].text, "126");
}

// A form that comes up while the button is held takes its release.
TEST_F(MiddleDrag, EndsWhereTheButtonIsSeenToBeUp)
{
    send(QEvent::MouseButtonPress, {200, 200}, Qt::MiddleButton, Qt::MiddleButton);
    send(QEvent::MouseMove, {240, 200}, Qt::NoButton, Qt::MiddleButton);
    const float dragged = desk.surface.getScale().left;
    send(QEvent::MouseMove, {300, 260}, Qt::NoButton, Qt::NoButton);
    send(QEvent::MouseMove, {350, 290}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(desk.surface.getScale().left, dragged);
}

} // namespace
} // namespace mirtane
