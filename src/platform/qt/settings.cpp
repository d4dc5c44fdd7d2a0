#include "platform/qt/settings.h"

#include <QString>
#include <QStringList>

namespace mirtane {
namespace {

const QString section = QStringLiteral("Mirtane");

// A hand-written ini file may hold a list where a value with commas was meant.
QString textOf(const QVariant& value)
{
    return value.toStringList().join(QStringLiteral(", "));
}

} // namespace

QtSettings::QtSettings() : store_(QStringLiteral("Mirtane"), QStringLiteral("Mirtane")) {}

QtSettings::QtSettings(const std::string& iniFile)
    : store_(QString::fromStdString(iniFile), QSettings::IniFormat)
{
}

std::map<std::string, std::string> QtSettings::read()
{
    std::map<std::string, std::string> values;
    store_.sync();
    store_.beginGroup(section);
    for (const QString& key : store_.childKeys()) {
        values[key.toStdString()] = textOf(store_.value(key)).toStdString();
    }
    store_.endGroup();
    return values;
}

void QtSettings::write(const std::map<std::string, std::string>& values)
{
    store_.beginGroup(section);
    for (const auto& [key, value] : values) {
        store_.setValue(QString::fromStdString(key), QString::fromStdString(value));
    }
    store_.endGroup();
    store_.sync();
}

} // namespace mirtane
