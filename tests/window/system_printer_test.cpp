// The printer of the machine, whose dialog also offers a file.

#include "platform/qt/window/system_printer.h"
#include "window_desk.h"

#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::WindowDesk;

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The user has chosen a file that is there already, in a folder of plots.
struct PrinterDialog : testing::Test {
    PrinterDialog()
    {
        QFile file(chosen);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("of somebody");
    }

    bool choose(QPrinter& printer) const
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(chosen);
        printer.setPageSize(QPageSize(QPageSize::A3));
        printer.setPageOrientation(QPageLayout::Landscape);
        return isAccepted;
    }

    QTemporaryDir folder;
    QString chosen = folder.filePath(QStringLiteral("chosen.pdf"));
    bool isAccepted = true;
    std::unique_ptr<Printer> printer = paperPrinter([this](QPrinter& device) { return choose(device); });
};

TEST_F(PrinterDialog, WhoseAnswerIsAFileIsNoPrinter)
{
    EXPECT_EQ(printer->setup({"/home/user/house.pdf", "house.mtd"}),
              "PDF files go to " + folder.path().toStdString() + ", A3 across");
    EXPECT_TRUE(printer->printsToFile());
    EXPECT_EQ(printer->name(), "");
    EXPECT_EQ(printer->folder(), folder.path().toStdString());
}

TEST_F(PrinterDialog, ThatIsCalledOffLeavesThePrinterAsItWas)
{
    isAccepted = false;
    EXPECT_EQ(printer->setup({"/home/user/house.pdf", "house.mtd"}), "Printer Setup left as it was");
}

// Its folder is meant: a page has a name of its own, and what stands there is nobody's to replace.
TEST_F(PrinterDialog, LeavesTheFileThatIsThereAlone)
{
    printer->setup({"/home/user/house.pdf", "house.mtd"});
    WindowDesk desk(printer.get());
    desk.folders.folders.insert(folder.path().toStdString());
    desk.disk.files[folder.path().toStdString() + "/untitled.pdf"] = {};
    desk.press(ids::drawLine);
    for (const Point at : {Point{200, 300}, Point{900, 777}}) desk.shell.mouseDown(1, at);
    desk.shell.mouseDown(2, {});
    desk.press(ids::selectLast);
    desk.press(ids::print);
    EXPECT_EQ(desk.controls()[ids::printPlace].caption,
              "Goes to the file " + folder.path().toStdString() + "/untitled-2.pdf");
    desk.press(ids::printConfirm);
    EXPECT_EQ(desk.controls()[ids::entry].text, "untitled-2.pdf");
    EXPECT_TRUE(bytesOf(folder.filePath(QStringLiteral("untitled-2.pdf"))).startsWith("%PDF"));
    EXPECT_EQ(bytesOf(chosen), "of somebody");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2);
}

} // namespace
} // namespace mirtane
