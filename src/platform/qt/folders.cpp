#include "platform/qt/folders.h"

#include <QDir>
#include <QStorageInfo>

#include <algorithm>
#include <array>

namespace mirtane {
namespace {

std::vector<std::string> strings(const QStringList& list)
{
    std::vector<std::string> all;
    all.reserve(static_cast<std::size_t>(list.size())); // not negative
    for (const QString& one : list) all.push_back(one.toStdString());
    return all;
}

// QDir takes an empty path for the working directory of the process, which means nothing here.
QStringList entries(const std::string& folder, QDir::Filters kind)
{
    if (folder.empty()) return {};
    const QDir dir(QString::fromStdString(folder));
    return dir.entryList(kind | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

// A volume that the system keeps for itself is none that a drawing is saved to.
bool holdsDrawings(const QStorageInfo& volume)
{
    static constexpr std::array<QLatin1StringView, 6> ofTheSystem{
        QLatin1StringView("/proc"), QLatin1StringView("/sys"),  QLatin1StringView("/dev"),
        QLatin1StringView("/run/"), QLatin1StringView("/boot"), QLatin1StringView("/etc/")};
    const QString root = volume.rootPath();
    const bool removable = root.startsWith(QLatin1StringView("/run/media/"));
    const bool kept = std::any_of(ofTheSystem.begin(), ofTheSystem.end(),
                                  [&root](QLatin1StringView start) { return root.startsWith(start); });
    return volume.isReady() && volume.isValid() && (removable || !kept) && QDir(root).exists();
}

} // namespace

std::vector<std::string> QtFolders::files(const std::string& folder, const std::string& extension)
{
    QStringList found = entries(folder, QDir::Files);
    const QString ending = QString::fromStdString(extension);
    found.removeIf([&ending](const QString& name) { return !name.endsWith(ending, Qt::CaseInsensitive); });
    return strings(found);
}

std::vector<std::string> QtFolders::subfolders(const std::string& folder)
{
    return strings(entries(folder, QDir::Dirs));
}

std::vector<std::string> QtFolders::drives()
{
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (holdsDrawings(volume)) roots.append(volume.rootPath());
    }
    roots.append(QDir::rootPath()); // also where no volume is mounted there, as in a root within another
    roots.sort();
    roots.prepend(QDir::homePath());
    roots.removeDuplicates();
    return strings(roots);
}

bool QtFolders::exists(const std::string& folder)
{
    return !folder.empty() && QDir(QString::fromStdString(folder)).exists();
}

} // namespace mirtane
