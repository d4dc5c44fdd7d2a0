// Keys in the window and its forms, as the keyboard sends them.

#include "print/recording_printer.h"
#include "window_desk.h"

#include <QMouseEvent>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using fake::WindowDesk;

struct KeyDesk : private RecordingPrinter, WindowDesk {
    KeyDesk() : RecordingPrinter(12240, 15840), WindowDesk(this)
    {
        folders.folders.insert("/home/user/plans");
        draw({233, 311}, {1402, 877});
        draw({1633, 211}, {902, 1777});
        press(ids::selectLast);
    }

    void draw(Point from, Point to)
    {
        press(ids::orthoToggle);
        press(ids::drawLine);
        for (const Point at : {from, to}) shell.mouseDown(1, at);
        shell.mouseDown(2, {40, 1900});
        press(ids::orthoToggle);
    }
    void strike(int key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
        QTest::keyClick(QGuiApplication::focusWindow(), static_cast<Qt::Key>(key), held); // one of them
        settle();
    }
    // Until the drawing is drawn for the size that it got last.
    static void rest() { QTest::qWait(150); }
    void movePointer()
    {
        QWidget& drawing = *widget(ids::drawing);
        for (const QPointF at : {QPointF(211, 97), QPointF(263, 141)}) {
            QMouseEvent move(QEvent::MouseMove, at, drawing.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QApplication::sendEvent(&drawing, &move);
        }
        settle();
    }
    bool hasKeys(ControlId form) const
    {
        const QWidget* const its = form == ids::mainForm ? window.get() : widget(form);
        return QApplication::activeWindow() == its;
    }
    Stat stat(std::int32_t slot) const { return session->store.stat[EntityStore::at(slot)]; }
    std::vector<std::uint32_t> picture()
    {
        const auto pixels = surface.picture().pixels();
        return {pixels.begin(), pixels.end()};
    }
};

void openEdits(KeyDesk& desk)
{
    desk.shell.mouseDown(2, {51, 1801});
    desk.window->refresh();
    WindowDesk::settle();
}

struct FormRow {
    const char* what;
    ControlId form;
    void (*open)(KeyDesk& desk);
};

const FormRow formsBeside[] = {
    {"Edits", ids::editsForm, openEdits},
    {"Filter", ids::filterForm, [](KeyDesk& desk) { desk.press(ids::filter); }},
    {"Change", ids::filterForm,
     [](KeyDesk& desk) {
         openEdits(desk);
         desk.press(ids::editChange);
     }},
    {"Help", ids::helpForm, [](KeyDesk& desk) { desk.press(ids::displayHelp); }},
};

const FormRow modalForms[] = {
    {"Save", ids::fileForm, [](KeyDesk& desk) { desk.press(ids::saveDrawing); }},
    {"Open", ids::fileForm, [](KeyDesk& desk) { desk.press(ids::openDxf); }},
    {"Print", ids::printForm, [](KeyDesk& desk) { desk.press(ids::print); }},
};

// The pointer on its way over the drawing takes no keys from a form.
TEST(Shortcuts, StayWithAFormThatCameUpWhereverThePointerIsMoved)
{
    for (const auto& rows : {std::span<const FormRow>(formsBeside), std::span<const FormRow>(modalForms)}) {
        for (const FormRow& row : rows) {
            KeyDesk desk;
            row.open(desk);
            EXPECT_TRUE(desk.hasKeys(row.form)) << row.what;
            desk.movePointer();
            EXPECT_TRUE(desk.hasKeys(row.form)) << row.what << ", the pointer moved";
            desk.strike(Qt::Key_Escape);
            EXPECT_FALSE(desk.controls()[row.form].visible) << row.what;
            EXPECT_TRUE(desk.hasKeys(ids::mainForm)) << row.what << " gives them back";
            EXPECT_FALSE(desk.shell.ended());
        }
    }
}

TEST(Shortcuts, EscapeDoesInAFormWhatItsCancelDoes)
{
    struct Row {
        const FormRow& form;
        Stat after;
    };
    const Row rows[] = {{formsBeside[0], Stat::sel}, {formsBeside[1], Stat::sel}, {formsBeside[2], Stat::on},
                        {formsBeside[3], Stat::sel}, {modalForms[0], Stat::sel},  {modalForms[2], Stat::on}};
    for (const auto& [form, after] : rows) {
        KeyDesk desk;
        form.open(desk);
        desk.strike(Qt::Key_Escape);
        EXPECT_EQ(desk.stat(2), after) << form.what;
    }
}

TEST(Shortcuts, ThatActOnTheDrawingDoSoFromTheFormsBesideIt)
{
    for (const FormRow& row : formsBeside) {
        const auto struck = [&row](int key, Qt::KeyboardModifiers held, ControlId opened) {
            KeyDesk desk;
            row.open(desk);
            desk.movePointer();
            desk.strike(key, held);
            EXPECT_TRUE(desk.controls()[opened].visible) << row.what << " " << key;
            EXPECT_TRUE(desk.hasKeys(opened)) << row.what << " " << key;
        };
        struck(Qt::Key_F1, Qt::NoModifier, ids::helpForm);
        struck(Qt::Key_O, Qt::ControlModifier, ids::fileForm);
        struck(Qt::Key_S, Qt::ControlModifier, ids::fileForm);
        if (std::string_view(row.what) != "Change") struck(Qt::Key_P, Qt::ControlModifier, ids::printForm);
        KeyDesk desk;
        row.open(desk);
        const auto whole = desk.picture();
        desk.surface.clear();
        EXPECT_TRUE(desk.picture() != whole);
        desk.strike(Qt::Key_F5);
        EXPECT_TRUE(desk.picture() == whole) << row.what;
        desk.strike(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(desk.stat(2), Stat::out) << row.what;
        desk.strike(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_NE(desk.stat(2), Stat::out) << row.what;
    }
}

TEST(Shortcuts, SelectAllOnTheDrawingAndFromTheEditsAlone)
{
    for (const FormRow& row : formsBeside) {
        KeyDesk desk;
        row.open(desk);
        const Stat before = desk.stat(1);
        desk.strike(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(desk.stat(1), row.form == ids::editsForm ? Stat::sel : before) << row.what;
    }
    KeyDesk desk;
    desk.strike(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(desk.stat(1), Stat::sel);
}

TEST(Shortcuts, AreAModalFormsOwn)
{
    for (const FormRow& row : modalForms) {
        KeyDesk desk;
        row.open(desk);
        desk.movePointer();
        const std::string title = desk.controls()[row.form].caption;
        KeyDesk::rest();
        const auto whole = desk.picture();
        desk.surface.clear();
        const auto bare = desk.picture();
        for (const int key : {Qt::Key_F1, Qt::Key_F5, Qt::Key_Home}) desk.strike(key);
        for (const int key : {Qt::Key_O, Qt::Key_P, Qt::Key_S, Qt::Key_A, Qt::Key_Z})
            desk.strike(key, Qt::ControlModifier);
        EXPECT_FALSE(desk.controls()[ids::helpForm].visible) << row.what;
        EXPECT_EQ(desk.controls()[row.form].caption, title);
        EXPECT_TRUE(desk.picture() == bare) << row.what;
        EXPECT_EQ(desk.stat(2), Stat::sel) << row.what;
        EXPECT_TRUE(whole != bare);
    }
}

TEST(Shortcuts, EscapeDoesNothingOnTheDrawing)
{
    KeyDesk desk;
    desk.press(ids::drawCurve);
    desk.shell.mouseDown(1, {317, 408});
    desk.strike(Qt::Key_Escape);
    EXPECT_EQ(desk.session->stepNo, 1);
    EXPECT_EQ(desk.session->curFunc, "Curve");
}

TEST(Shortcuts, HomeShowsAllButInATextThatIsTyped)
{
    KeyDesk desk;
    desk.press(ids::placeText);
    desk.shell.mouseDown(1, {317, 408});
    const float left = desk.surface.getScale().left;
    for (const int key : {Qt::Key_A, Qt::Key_B, Qt::Key_Home}) desk.strike(key);
    EXPECT_EQ(desk.surface.getScale().left, left);
    EXPECT_EQ(desk.session->textLength, 2);
    for (const int key : {Qt::Key_Return, Qt::Key_Home}) desk.strike(key);
    EXPECT_NE(desk.surface.getScale().left, left);
}

} // namespace
} // namespace mirtane
