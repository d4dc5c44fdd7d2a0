#include "platform/qt/paper.h"

#include <QFile>
#include <QLocale>

namespace mirtane {
namespace {

QPageSize paperOfCountry()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

// The first line that is no remark.
QString nameIn(const QString& path)
{
    constexpr qint64 longest = 4096; // it is a word or two
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    for (const QString& line : QString::fromUtf8(file.read(longest)).split(u'\n')) {
        const QString words = line.section(u'#', 0, 0).trimmed();
        if (!words.isEmpty()) return words;
    }
    return {};
}

} // namespace

std::optional<QPageSize> paperNamed(const QString& name)
{
    for (int id = 0; id < QPageSize::LastPageSize; ++id) {
        const QPageSize paper(static_cast<QPageSize::PageSizeId>(id)); // they are counted from 0
        if (paper.isValid() && paper.key().compare(name.trimmed(), Qt::CaseInsensitive) == 0) return paper;
    }
    return std::nullopt;
}

QPageSize paperOfSystem(const QString& file)
{
    for (const QString& name : {qEnvironmentVariable("PAPERSIZE"), nameIn(file)}) {
        if (const auto paper = paperNamed(name)) return *paper;
    }
    return paperOfCountry();
}

} // namespace mirtane
