#include "platform/qt/window/system_printer.h"

#include "platform/qt/page_choice.h"
#include "platform/qt/page_painter.h"
#include "platform/qt/whole.h"
#include "platform/qt/window/page_dialog.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <utility>

namespace mirtane {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr const char* leftAsItWas = "Printer Setup left as it was";

// Twips of the printable area; paper is a few thousand of them wide.
float widthOf(const QPrinter& printer)
{
    return singleOf(printer.pageLayout().paintRectPoints().width() * twipsPerPoint);
}

float heightOf(const QPrinter& printer)
{
    return singleOf(printer.pageLayout().paintRectPoints().height() * twipsPerPoint);
}

// The toolkit's own dialog, in which nothing is printed yet.
bool isSetUp(QPrinter& printer)
{
    QPrintDialog dialog(&printer);
    dialog.setWindowTitle(QStringLiteral("Printer Setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (const auto* const buttons = dialog.findChild<QDialogButtonBox*>()) {
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                button->setText(QStringLiteral("OK"));
        }
    }
    return dialog.exec() == QDialog::Accepted;
}

// What a default printer is made of must be there before the page's size is read.
struct DefaultPrinter {
    std::unique_ptr<QPrinter> device = std::make_unique<QPrinter>(QPrinter::HighResolution);
};

class PaperPrinter : private DefaultPrinter, public PagePainter {
  public:
    explicit PaperPrinter(PrinterSetup isSetUp)
        : PagePainter(widthOf(*device), heightOf(*device)), isSetUp_(std::move(isSetUp))
    {
    }

    // The dialog offers a file, too: its folder is taken, and a name in it that no other page has.
    bool printsToFile() const override { return device->outputFormat() == QPrinter::PdfFormat; }
    std::string name() const override { return printsToFile() ? "" : device->printerName().toStdString(); }
    std::string folder() const override
    {
        if (!printsToFile()) return {};
        return QFileInfo(device->outputFileName()).absolutePath().toStdString();
    }
    std::string setup(const PageName&) override
    {
        if (!isSetUp_(*device)) return leftAsItWas;
        const QPageLayout layout = device->pageLayout();
        return (printsToFile() ? "PDF files go to " + folder() : name()) + ", " +
               sheetOf({layout.pageSize(), layout.orientation(), {}});
    }
    bool beginPage(const PageName& name) override
    {
        wait_.emplace();
        if (printsToFile()) device->setOutputFileName(QString::fromStdString(name.file));
        device->setDocName(QString::fromStdString(name.title)); // as the printer's queue shows it
        const bool begun = beginOn(*device, device->resolution() / twipsPerInch);
        if (!begun) wait_.reset(); // no end follows
        return begun;
    }
    bool endPage() override
    {
        const bool done = PagePainter::endPage();
        wait_.reset();
        return done;
    }

  private:
    PrinterSetup isSetUp_;
    std::optional<WaitPointer> wait_;
};

// The paper and its way are those of the start until the next one; the place is taken at once.
class FilePrinter : public PdfPrinter {
  public:
    FilePrinter(const PageChoice& choice, SettingsStore& settings)
        : PdfPrinter(choice.paper, choice.way), atStart_(choice), now_(choice), settings_(settings)
    {
    }

    std::string folder() const override { return now_.folder; }
    std::string setup(const PageName& next) override
    {
        if (!isChosen(now_, QFileInfo(QString::fromStdString(next.file)).absolutePath())) return leftAsItWas;
        keep(now_, settings_);
        return told(now_, atStart_);
    }

  private:
    PageChoice atStart_, now_;
    SettingsStore& settings_;
};

} // namespace

std::unique_ptr<Printer> systemPrinter(SettingsStore& settings)
{
    if (QPrinterInfo::defaultPrinter().isNull())
        return std::make_unique<FilePrinter>(pageChoiceIn(settings), settings);
    return paperPrinter(isSetUp);
}

std::unique_ptr<Printer> paperPrinter(PrinterSetup isSetUp)
{
    return std::make_unique<PaperPrinter>(std::move(isSetUp));
}

} // namespace mirtane
