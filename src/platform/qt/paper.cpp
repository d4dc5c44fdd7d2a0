#include "platform/qt/paper.h"

#include <QFile>
#include <QLocale>

#include <algorithm>

namespace mirtane {
namespace {

// Where letter is what lies in the printer; all others have A4.
constexpr QLocale::Territory withLetter[] = {
    QLocale::Belize,      QLocale::Canada,     QLocale::Chile,     QLocale::Colombia,     QLocale::CostaRica,
    QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,    QLocale::Nicaragua,    QLocale::Panama,
    QLocale::Philippines, QLocale::PuertoRico, QLocale::Venezuela, QLocale::UnitedStates,
};

// The locale of papers, which may be another than that of the words.
QString localeOfPaper()
{
    for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"}) {
        if (QString name = qEnvironmentVariable(variable); !name.isEmpty()) return name;
    }
    return {};
}

QPageSize paperOfCountry()
{
    const QLocale::Territory country = QLocale(localeOfPaper()).territory();
    const bool hasLetter = std::ranges::find(withLetter, country) != std::end(withLetter);
    return QPageSize(hasLetter ? QPageSize::Letter : QPageSize::A4);
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
