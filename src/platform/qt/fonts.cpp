#include "platform/qt/fonts.h"

#include <QFontDatabase>
#include <QSet>

namespace mirtane {
namespace {

const QSet<QString>& installedFamilies()
{
    static const QStringList families = QFontDatabase::families();
    static const QSet<QString> found(families.begin(), families.end());
    return found;
}

// The machine searches all its fonts for what stands in for one that is not there, each time it meets a new
// name. A file may hold a new name for each text; no drawing has that many.
bool isLookedFor(const QString& family)
{
    constexpr qsizetype mostMissing = 200;
    static QSet<QString> missing;
    if (installedFamilies().contains(family) || missing.contains(family)) return true;
    if (missing.size() == mostMissing) return false;
    missing.insert(family);
    return true;
}

} // namespace

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); // texts are short
}

QString drawnText(std::string_view utf8)
{
    constexpr std::size_t longest = 2000;
    constexpr std::size_t bytesOfALetter = 4;
    return textOf(utf8.substr(0, longest * bytesOfALetter)).left(longest);
}

QStringList familiesFor(const QString& family, const QSet<QString>& installed)
{
    if (family != QLatin1String("Garamond") || installed.contains(family)) return {family};
    return {family, QStringLiteral("Junicode Two Beta"), QStringLiteral("Junicode")};
}

QFont faceOf(const QString& name)
{
    constexpr qsizetype longestName = 31;
    const QString family = name.left(longestName);
    QFont font;
    font.setHintingPreference(QFont::PreferNoHinting); // widths in proportion at every size
    if (!isLookedFor(family)) return font;
    const QStringList families = familiesFor(family, installedFamilies());
    font.setFamilies(families);
    if (families.size() > 1) font.setWeight(QFont::Medium); // the strokes of what stands in are finer
    return font;
}

std::vector<std::string> QtFonts::names()
{
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) names.push_back(family.toStdString());
    return names;
}

} // namespace mirtane
