// The manual as a window that one works beside.

#include "window_desk.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using fake::WindowDesk;

struct Reader : WindowDesk {
    Reader()
    {
        std::string text =
            "MIRTANE\n     1  First things\n     2  Second things\n\n1  FIRST THINGS\n----------\n";
        for (int i = 0; i < 200; ++i) text += "Line of the first chapter\n";
        text += "2  SECOND THINGS\n----------\nLine\n    of a kind\n";
        for (int i = 0; i < 200; ++i) text += "All the rest, and a w\xF6rd\n";
        disk.files["/home/user/mirtanehelp.txt"] = Bytes(text.begin(), text.end());
        press(ids::displayHelp);
    }

    static QWidget& form() { return *widget(ids::helpForm); }
    static QPlainTextEdit& page() { return dynamic_cast<QPlainTextEdit&>(*widget(ids::helpPage)); }
    static std::string firstLine()
    {
        return page().cursorForPosition(QPoint(4, 4)).block().text().toStdString();
    }
    void chapter(int row)
    {
        shell.clickRow(ids::helpContents, row);
        window->refresh();
        settle();
    }
};

TEST(HelpForm, CanGoBehindTheDrawing)
{
    const Reader reader;
    ASSERT_TRUE(Reader::form().isVisible());
    EXPECT_EQ(Reader::form().parentWidget(), nullptr);
    EXPECT_EQ(Reader::form().windowHandle()->transientParent(), nullptr);
    EXPECT_EQ(Reader::form().windowModality(), Qt::NonModal);
}

// Who brings the drawing to the front while the manual has the keys does not get the manual back in front by
// the next move of the pointer.
TEST(HelpForm, StaysBehindTheDrawingThatWasBroughtToTheFront)
{
    Reader reader;
    ASSERT_TRUE(reader.controls().focus == ids::helpPage);
    reader.window->activateWindow();
    WindowDesk::settle();
    reader.shell.mouseMove({100, 100});
    reader.window->refresh();
    WindowDesk::settle();
    EXPECT_TRUE(reader.window->isActiveWindow());
    reader.press(ids::displayHelp);
    EXPECT_TRUE(Reader::form().isActiveWindow()) << "when it is asked for again";
}

// As far as the contents can give way; where there is room they are read whole.
TEST(HelpForm, BreaksNoLineOfThePageWhereTheContentsCanGiveWay)
{
    const Reader reader;
    for (const int width : {820, 885, 957, 1300}) {
        Reader::form().resize(width, 420);
        WindowDesk::settle();
        const QPlainTextEdit& page = Reader::page();
        const int line = page.fontMetrics().horizontalAdvance(QString(79, u'm'));
        EXPECT_GE(page.viewport()->width() - 2 * page.document()->documentMargin(), line) << width;
        const int contents = WindowDesk::widget(ids::helpContents)->width();
        EXPECT_GE(contents, 130) << width;
        EXPECT_TRUE(width < 1300 || contents == 320) << contents;
    }
    Reader::form().resize(480, 420);
    WindowDesk::settle();
    EXPECT_EQ(WindowDesk::widget(ids::helpContents)->width(), 130);
    EXPECT_EQ(Reader::form().width(), 480);
}

TEST(HelpForm, KeepsTheSizeAndThePlaceThatItWasGiven)
{
    Reader reader;
    EXPECT_EQ(Reader::form().size(), QSize(1024 - 67, 700 - 47)) << "at first";
    const QRect wished(40, 60, 501, 422);
    Reader::form().setGeometry(wished);
    WindowDesk::settle();
    reader.window->resize(900, 640);
    Reader::form().close();
    WindowDesk::settle();
    ASSERT_FALSE(Reader::form().isVisible());
    reader.press(ids::displayHelp);
    EXPECT_EQ(Reader::form().geometry(), wished);
}

TEST(HelpForm, GoesWhereItsContentsLead)
{
    Reader reader;
    reader.chapter(1);
    EXPECT_EQ(Reader::firstLine(), "2  SECOND THINGS");
    reader.chapter(0);
    EXPECT_EQ(Reader::firstLine(), "1  FIRST THINGS");
}

// The same row leads there again after the reader has gone elsewhere.
TEST(HelpForm, GoesWhereItsContentsLeadAfterItWasScrolled)
{
    Reader reader;
    reader.chapter(1);
    Reader::page().verticalScrollBar()->setValue(3);
    WindowDesk::settle();
    ASSERT_NE(Reader::firstLine(), "2  SECOND THINGS");
    reader.chapter(1);
    EXPECT_EQ(Reader::firstLine(), "2  SECOND THINGS");
}

TEST(HelpForm, MarksTheWordThatIsFound)
{
    Reader reader;
    const auto shortcuts = Reader::form().findChildren<QShortcut*>();
    const auto toFind = std::ranges::find(shortcuts, QKeySequence(Qt::CTRL | Qt::Key_F), &QShortcut::key);
    ASSERT_NE(toFind, shortcuts.end());
    emit(*toFind)->activated();
    EXPECT_TRUE(reader.controls().focus == ids::helpFind);
    reader.shell.type(U"w\u00f6r");
    reader.window->refresh();
    EXPECT_EQ(Reader::page().textCursor().selectedText(), QString::fromUtf8("w\u00f6r"));
    EXPECT_TRUE(Reader::page().viewport()->rect().contains(Reader::page().cursorRect()));
}

} // namespace
} // namespace mirtane
