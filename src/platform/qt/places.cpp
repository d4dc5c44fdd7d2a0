#include "platform/qt/places.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace mirtane {
namespace {

bool holdsManual(const QString& folder)
{
    return QFile::exists(folder + QStringLiteral("/mirtanehelp.txt"));
}

QString documents()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).exists() ? folder : QDir::homePath();
}

} // namespace

Places placesOf(const QString& folderOfProgram)
{
    const std::string beside = folderOfProgram.toStdString();
    const QString installed =
        QDir::cleanPath(folderOfProgram + QStringLiteral("/" MIRTANE_DATA_FROM_PROGRAM));
    if (holdsManual(folderOfProgram) || !holdsManual(installed)) return {beside, beside};
    return {installed.toStdString(), documents().toStdString()};
}

} // namespace mirtane
