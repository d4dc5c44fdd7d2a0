#include "platform/qt/fonts.h"

#include <QFontDatabase>

namespace mirtane {

QFont faceOf(const QString& name)
{
    constexpr qsizetype longestName = 31;
    const QString family = name.left(longestName);
    QFont font;
    font.setFamilies(family == QLatin1String("Garamond") ? QStringList{family, QStringLiteral("EB Garamond")}
                                                         : QStringList{family});
    font.setHintingPreference(QFont::PreferNoHinting); // widths in proportion at every size
    return font;
}

std::vector<std::string> QtFonts::names()
{
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) names.push_back(family.toStdString());
    return names;
}

} // namespace mirtane
