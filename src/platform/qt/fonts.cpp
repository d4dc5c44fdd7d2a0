#include "platform/qt/fonts.h"

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

} // namespace mirtane
