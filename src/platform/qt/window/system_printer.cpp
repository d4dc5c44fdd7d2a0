#include "platform/qt/window/system_printer.h"

#include "platform/qt/page_painter.h"
#include "platform/qt/whole.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace mirtane {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

// Twips of the printable area; paper is a few thousand of them wide.
float widthOf(const QPrinter& printer)
{
    return singleOf(printer.pageLayout().paintRectPoints().width() * twipsPerPoint);
}

float heightOf(const QPrinter& printer)
{
    return singleOf(printer.pageLayout().paintRectPoints().height() * twipsPerPoint);
}

// What a default printer is made of must be there before the page's size is read.
struct DefaultPrinter {
    std::unique_ptr<QPrinter> device = std::make_unique<QPrinter>(QPrinter::HighResolution);
};

class PaperPrinter : private DefaultPrinter, public PagePainter {
  public:
    PaperPrinter() : PagePainter(widthOf(*device), heightOf(*device)) {}

    bool printsToFile() const override { return false; }
    void setup() override { QPrintDialog(device.get()).exec(); }
    bool beginPage(const PageName& name) override
    {
        wait_.emplace();
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
    std::optional<WaitPointer> wait_;
};

} // namespace

std::unique_ptr<Printer> systemPrinter()
{
    if (QPrinterInfo::defaultPrinter().isNull()) return std::make_unique<PdfPrinter>();
    return std::make_unique<PaperPrinter>();
}

} // namespace mirtane
