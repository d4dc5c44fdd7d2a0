#include "platform/qt/window/text_page.h"

#include <QFontDatabase>

namespace mirtane {

TextPage::TextPage(EventGate&, ControlId id, QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setToolTip(tipOf(id));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // its tables are lined up with blanks
}

void TextPage::show(const Control& now)
{
    const QString text = QString::fromStdString(now.text).remove(QLatin1Char('\r'));
    if (toPlainText() != text) setPlainText(text);
}

} // namespace mirtane
