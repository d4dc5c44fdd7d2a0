#include "platform/qt/disk.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

namespace mirtane {
namespace {

// QIODevice counts bytes of char.
char* charsOf(Bytes& bytes)
{
    return reinterpret_cast<char*>(bytes.data());
}

const char* charsOf(const Bytes& bytes)
{
    return reinterpret_cast<const char*>(bytes.data());
}

// Reads on until the end, since what a file gives may differ from the size it told.
bool readAll(QFile& file, Bytes& bytes)
{
    std::int64_t filled = 0;
    while (filled < std::ssize(bytes)) {
        const std::int64_t got = file.read(charsOf(bytes) + filled, std::ssize(bytes) - filled);
        if (got < 0) return false;
        if (got == 0) break;
        filled += got;
    }
    bytes.resize(static_cast<std::size_t>(filled)); // not negative
    return true;
}

} // namespace

std::optional<Bytes> QtDisk::read(const std::string& path)
{
    const QString name = QString::fromStdString(path);
    // Opening a pipe would wait for whoever writes into it.
    if (!QFileInfo(name).isFile()) return std::nullopt;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return std::nullopt;
    const std::int64_t size = file.size();
    if (size < 0 || size > largestRead) return std::nullopt;
    Bytes bytes(static_cast<std::size_t>(size)); // within the limit just tested
    if (!readAll(file, bytes)) return std::nullopt;
    return bytes;
}

bool QtDisk::writeWhole(const std::string& path, const Bytes& bytes)
{
    QSaveFile file(QString::fromStdString(path));
    file.setDirectWriteFallback(false); // writing into the old file itself could leave half of one
    if (!file.open(QIODevice::WriteOnly)) return false;
    if (file.write(charsOf(bytes), std::ssize(bytes)) != std::ssize(bytes)) return false;
    // commit() does not tell of a flush that failed, and would put an empty file in the old one's place.
    if (!file.flush()) return false;
    return file.commit();
}

} // namespace mirtane
