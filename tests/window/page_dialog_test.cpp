// The dialog for pages that become files.

#include "platform/qt/window/page_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace mirtane {
namespace {

// What is done in the dialog once it is up.
bool chosen(PageChoice& choice, const std::function<void(QDialog&)>& act,
            const QString& folderNow = QStringLiteral("/plans"))
{
    QTimer::singleShot(0, [&act] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
    return isChosen(choice, folderNow);
}

TEST(PageDialog, ShowsWhatIsChosenNowAndAsksForNothingElse)
{
    PageChoice choice{QPageSize(QPageSize::A3), QPageLayout::Landscape, "/plots"};
    EXPECT_TRUE(chosen(choice, [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("pageSizeCombo"))->currentText(), "A3");
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(QStringLiteral("landscape"))->isChecked());
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("folder"))->text(), "/plans");
        EXPECT_FALSE(dialog.findChild<QWidget*>(QStringLiteral("groupBox"))->isVisible());
        dialog.accept();
    }));
    EXPECT_EQ(choice.paper.id(), QPageSize::A3);
    EXPECT_EQ(choice.way, QPageLayout::Landscape);
    EXPECT_EQ(choice.folder, "/plots") << "no other folder was given";
}

TEST(PageDialog, TakesPaperWayAndFolder)
{
    PageChoice choice{QPageSize(QPageSize::A4), QPageLayout::Portrait, ""};
    EXPECT_TRUE(chosen(choice, [](QDialog& dialog) {
        auto* const papers = dialog.findChild<QComboBox*>(QStringLiteral("pageSizeCombo"));
        papers->setCurrentIndex(papers->findText(QStringLiteral("A1")));
        emit papers->activated(papers->currentIndex());
        dialog.findChild<QRadioButton*>(QStringLiteral("landscape"))->click();
        dialog.findChild<QLineEdit*>(QStringLiteral("folder"))->setText(QStringLiteral("/usr/../tmp"));
        dialog.accept();
    }));
    EXPECT_EQ(choice.paper.id(), QPageSize::A1);
    EXPECT_EQ(choice.way, QPageLayout::Landscape);
    EXPECT_EQ(choice.folder, "/tmp");
}

TEST(PageDialog, ThatIsCalledOffChangesNothing)
{
    PageChoice choice{QPageSize(QPageSize::A4), QPageLayout::Portrait, "/plots"};
    EXPECT_FALSE(chosen(choice, [](QDialog& dialog) {
        dialog.findChild<QRadioButton*>(QStringLiteral("landscape"))->click();
        dialog.findChild<QLineEdit*>(QStringLiteral("folder"))->setText(QStringLiteral("/elsewhere"));
        dialog.reject();
    }));
    EXPECT_EQ(choice.way, QPageLayout::Portrait);
    EXPECT_EQ(choice.folder, "/plots");
}

TEST(PageDialog, TakesAFolderAsItIsTyped)
{
    const QTemporaryDir folder;
    const QDir plans(folder.path());
    ASSERT_TRUE(plans.mkpath(QStringLiteral("2026/plots")));
    struct Row {
        QString typed;
        QString taken;
    };
    const Row rows[] = {
        {QStringLiteral("plots"), plans.filePath(QStringLiteral("2026/plots"))},
        {QStringLiteral(" ./plots/ "), plans.filePath(QStringLiteral("2026/plots"))},
        {QStringLiteral(".."), folder.path()},
        {QStringLiteral("../2026//plots/.."), plans.filePath(QStringLiteral("2026"))},
        {plans.filePath(QStringLiteral("2026/plots")), plans.filePath(QStringLiteral("2026/plots"))},
        {QStringLiteral("~"), QDir::homePath()},
        {QStringLiteral("~/"), QDir::homePath()},
        {QStringLiteral("/"), QStringLiteral("/")},
        {QStringLiteral("no such place"), QStringLiteral("/plots")},
        {QStringLiteral("~nobody"), QStringLiteral("/plots")},
        {QStringLiteral("  "), {}},
        {{}, {}},
    };
    for (const Row& row : rows) {
        PageChoice choice{QPageSize(QPageSize::A4), QPageLayout::Portrait, "/plots"};
        const auto type = [&](QDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("folder"))->setText(row.typed);
            dialog.accept();
        };
        EXPECT_TRUE(chosen(choice, type, plans.filePath(QStringLiteral("2026"))));
        EXPECT_EQ(choice.folder, row.taken.toStdString()) << row.typed.toStdString();
    }
}

} // namespace
} // namespace mirtane
