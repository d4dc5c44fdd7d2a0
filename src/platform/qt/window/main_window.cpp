#include "platform/qt/window/main_window.h"

#include "platform/qt/room_on_screen.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/form_window.h"
#include "platform/qt/window/menu_view.h"
#include "platform/qt/window/notice_strip.h"
#include "platform/qt/window/side_panel.h"
#include "platform/qt/window/spoken_roles.h"
#include "platform/qt/window/surface_widget.h"
#include "platform/qt/window/tool_strip.h"
#include "platform/qt/window/typed_keys.h"
#include "snap/snap.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace mirtane {
namespace {

// Who believed that it was moved would delete it.
void takeAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

// How long nothing may happen before work that is not saved is kept, and how long it may go on happening; in
// milliseconds.
constexpr int restBegins = 1000;
constexpr qint64 longestWithoutRest = 1900;

// Until a rest follows in which nobody has touched anything, where it is not sure yet that the work is kept.
constexpr int untilRestAgain = 2000;

constexpr QSize wishedSize(1280, 800);

// The line under the drawing: the prompt, which may need all of the width, and the pointer's position.
QWidget& statusLine(const ControlMaker& maker, QWidget& parent)
{
    QWidget& line = childOf<QWidget>(parent);
    line.setObjectName(QStringLiteral("status"));
    QHBoxLayout& row = childOf<QHBoxLayout>(line);
    row.setContentsMargins(12, 5, 12, 5);
    row.setSpacing(16);
    row.addWidget(&maker.make(ids::promptLine, line), 3);
    for (const ControlId id : {ControlId(ids::readingLine), ControlId(ids::countLine)}) {
        QWidget& said = maker.make(id, line);
        said.setSizePolicy(QSizePolicy::Preferred,
                           QSizePolicy::Fixed); // as much as it needs, nothing while empty
        said.setMinimumWidth(1);                // and it never widens the window
        row.addWidget(&said);
    }
    row.addWidget(&maker.make(ids::pointerLine, line), 2);
    return line;
}

// The first file of those that are dragged; empty where there is none.
std::string firstFileOf(const QDropEvent& event)
{
    for (const QUrl& url : event.mimeData()->urls()) {
        if (url.isLocalFile()) return QDir::cleanPath(url.toLocalFile()).toStdString();
    }
    return {};
}

} // namespace

MainWindow::MainWindow(Shell& shell, Surface& surface) : gate_(shell), surface_(surface)
{
    tellRoles();
    setWindowIcon(QIcon(QStringLiteral(":/icons/mirtane.svg")));
    fillMenuBar(*menuBar(), ids::mainForm, gate_, views_);
    lay(surface);
    help_ = makeForms(ControlMaker(gate_, views_), *this);
    views_.add(ids::mainForm, *this);
    takeShortcuts();
    setAcceptDrops(true);
    rest_.setSingleShot(true);
    rest_.setInterval(restBegins);
    rest_.callOnTimeout(this, [this] { rest(); });
    restAgain_.setSingleShot(true);
    restAgain_.setInterval(untilRestAgain);
    restAgain_.callOnTimeout(this, [this] { rest(); });
    sinceRest_.start();
    gate_.setCopying([this] {
        copyControls();
        waitForRest();
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { showWhetherDrawingHasKeys(now); });
    // Asked for again, the manual comes to the front, wherever it is.
    if (const auto* const entry = findChild<QAction*>(nameOf(ids::displayHelp)))
        connect(entry, &QAction::triggered, help_.get(), [this] {
            help_->raise();
            help_->activateWindow();
        });
    refresh();
}

// Its parts lose the focus while they go.
MainWindow::~MainWindow()
{
    disconnect(qApp, nullptr, this, nullptr);
}

// Nothing happens but the copying.
void MainWindow::refresh()
{
    gate_.send([](Shell&) {});
}

void MainWindow::lay(Surface& surface)
{
    const ControlMaker maker(gate_, views_);
    QWidget& whole = childOf<QWidget>(*this);
    setCentralWidget(&whole);
    QGridLayout& grid = childOf<QGridLayout>(whole);
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setSpacing(0);
    grid.setColumnStretch(1, 1);
    grid.setRowStretch(0, 1);
    SurfaceWidget& drawing = childOf<SurfaceWidget>(whole, gate_, ids::drawing, surface);
    drawing_ = &drawing;
    views_.add(ids::drawing, drawing);
    grid.addWidget(&childOf<ToolStrip>(whole, gate_, views_), 0, 0);
    grid.addWidget(&drawing, 0, 1);
    grid.addWidget(&childOf<SidePanel>(whole, maker), 0, 2);
    grid.addWidget(&childOf<NoticeStrip>(whole, maker), 1, 0, 1, 3);
    status_ = &statusLine(maker, whole);
    grid.addWidget(status_, 2, 0, 1, 3);
}

void MainWindow::show(const Control& now)
{
    setWindowTitle(QString::fromStdString(now.caption));
}

void MainWindow::copyControls()
{
    const Shell& shell = gate_.shell();
    views_.copy(shell.session().controls);
    surface_.refresh();
    showSnapMark();
    if (shell.ended()) QApplication::exit();
}

void MainWindow::showSnapMark()
{
    const Session& s = gate_.shell().session();
    const std::string_view what = s.snapMark ? nameOf(s.store, s.snapMark->hit) : std::string_view();
    drawing_->showMark(s.snapMark,
                       QString::fromUtf8(what.data(), static_cast<qsizetype>(what.size()))); // a short word
}

// Keys that stand in no menu.
void MainWindow::takeShortcuts()
{
    for (const Shortcut& row : shortcuts) {
        if (row.deed == Deed::press || row.onDrawing) continue;
        auto& keys = childOf<QShortcut>(*this, keysOf(row));
        keys.setContext(Qt::ApplicationShortcut);
        connect(&keys, &QShortcut::activated, this,
                [this, &row] { gate_.send([&row](Shell& shell) { shell.shortcut(row); }); });
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!firstFileOf(*event).empty()) takeAsCopy(*event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const std::string file = firstFileOf(*event);
    if (file.empty()) return;
    takeAsCopy(*event);
    activateWindow();
    const qsizetype others = event->mimeData()->urls().size() - 1;
    gate_.send([&](Shell& shell) { shell.dropFile(file, others); });
}

// Whoever draws without a pause is not to lose all of it.
void MainWindow::waitForRest()
{
    if (!rest_.isActive()) sinceRest_.restart();
    rest_.start();
    if (sinceRest_.elapsed() > longestWithoutRest) rest();
}

void MainWindow::rest()
{
    rest_.stop();
    restAgain_.stop();
    if (gate_.shell().rest()) restAgain_.start();
    copyControls(); // not by the gate, whose events begin the wait anew
}

void MainWindow::openWhenShown(const std::string& path)
{
    toOpen_ = path;
}

void MainWindow::takeFirstSize()
{
    const QRect room = screen()->availableGeometry();
    resize(within({room.topLeft(), wishedSize}, usualFrame, room).size());
}

// The first one comes when the window is on the screen. What is opened is painted in its turn, so it has to
// wait.
void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    if (std::exchange(isBegun_, true)) return;
    QTimer::singleShot(0, this, [this, path = std::exchange(toOpen_, {})] { begin(path); });
}

// With nobody to see to it, or with one who does as he is told, the toolkit hands the keys to the window
// below a form that has to be answered, when such a form comes up over another.
void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    QWidget* const form = QApplication::activeModalWidget();
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && form != nullptr)
        form->activateWindow();
}

void MainWindow::begin(const std::string& path)
{
    fitScreen();
    if (path.empty()) return;
    gate_.send([&path](Shell& shell) { shell.openDrawing(path); });
}

// By now the desktop has put its frame round the window, which may be larger than others.
void MainWindow::fitScreen()
{
    if (isMaximized() || isFullScreen()) return;
    const QRect fitting = within(geometry(), windowHandle()->frameMargins(), screen()->availableGeometry());
    if (fitting != geometry()) setGeometry(fitting);
}

// The drawing itself shows nothing but the drawing: that it has the keys is seen at its foot.
void MainWindow::showWhetherDrawingHasKeys(const QWidget* focused)
{
    const bool hasKeys = focused != nullptr && focused->objectName() == QLatin1String("pic1");
    if (status_->property("keys").toBool() == hasKeys) return;
    status_->setProperty("keys", hasKeys);
    status_->style()->unpolish(status_);
    status_->style()->polish(status_);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    gate_.send([](Shell& shell) { shell.closeForm(ids::mainForm); });
    event->setAccepted(gate_.shell().ended());
}

} // namespace mirtane
