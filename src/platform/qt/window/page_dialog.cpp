#include "platform/qt/window/page_dialog.h"

#include "platform/qt/window/child.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QPushButton>

namespace mirtane {
namespace {

// What the toolkit's dialog asks beside paper and its way means nothing for a page of ours.
constexpr const char* notAsked[] = {"groupBox", "pagesPerSheetButtonGroup", "preview"};

class PageDialog : public QPageSetupDialog {
  public:
    PageDialog(QPrinter& printer, const QString& folder)
        : QPageSetupDialog(&printer), folder_(childOf<QLineEdit>(*this))
    {
        setWindowTitle(QStringLiteral("Printer Setup"));
        for (const char* name : notAsked) {
            if (auto* const part = findChild<QWidget*>(QLatin1String(name))) part->hide();
        }
        folder_.setObjectName(QStringLiteral("folder"));
        folder_.setText(folder);
        if (auto* const column = qobject_cast<QVBoxLayout*>(layout())) column->insertWidget(1, &folderLine());
    }

    QString folder() const { return folder_.text(); }

  private:
    QWidget& folderLine()
    {
        QWidget& line = childOf<QWidget>(*this);
        QHBoxLayout& row = childOf<QHBoxLayout>(line);
        row.setContentsMargins(0, 0, 0, 0);
        QLabel& label = childOf<QLabel>(line);
        label.setText(QStringLiteral("PDF files go to"));
        label.setBuddy(&folder_);
        QPushButton& look = childOf<QPushButton>(line);
        look.setText(QStringLiteral("Folders"));
        look.setAutoDefault(false);
        connect(&look, &QPushButton::clicked, this, [this] { chooseFolder(); });
        row.addWidget(&label);
        row.addWidget(&folder_, 1);
        row.addWidget(&look);
        return line;
    }

    void chooseFolder()
    {
        const QString chosen =
            QFileDialog::getExistingDirectory(this, QStringLiteral("PDF files go to"), folder_.text());
        if (!chosen.isEmpty()) folder_.setText(chosen);
    }

    QLineEdit& folder_; // belongs to this
};

// Where it was named from; none is beside the drawing, and one that is not there leaves what was.
std::string folderMeant(const QString& typed, const QString& folderNow, const std::string& before)
{
    QString path = typed.trimmed();
    if (path.isEmpty()) return {};
    if (path == "~" || path.startsWith("~/")) path.replace(0, 1, QDir::homePath());
    path = QDir::cleanPath(QDir(folderNow).absoluteFilePath(path));
    return QDir(path).exists() ? path.toStdString() : before;
}

} // namespace

bool isChosen(PageChoice& choice, const QString& folderNow)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageLayout(QPageLayout(choice.paper, choice.way, {}));
    PageDialog dialog(printer, folderNow);
    if (dialog.exec() != QDialog::Accepted) return false;
    choice.paper = printer.pageLayout().pageSize();
    choice.way = printer.pageLayout().orientation();
    if (dialog.folder() != folderNow) choice.folder = folderMeant(dialog.folder(), folderNow, choice.folder);
    return true;
}

} // namespace mirtane
