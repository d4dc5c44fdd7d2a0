#include "platform/qt/settings.h"

#include "text/ascii.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

#include <algorithm>
#include <string_view>
#include <utility>

namespace mirtane {
namespace {

using Values = std::map<std::string, std::string>;

constexpr std::string_view section = "[Mirtane]";
constexpr std::string_view blanks = " \t\r";
constexpr std::size_t largestFile = 1024 * 1024; // bytes; the settings take one or two thousand

char escaped(char letter)
{
    if (letter == 'n') return '\n';
    if (letter == 'r') return '\r';
    return letter == 't' ? '\t' : letter;
}

// Quotes hold what would be cut off or taken for a remark. Text without them is taken as it stands, with its
// commas.
std::string valueOf(std::string_view text)
{
    std::string value;
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"')
            quoted = !quoted;
        else if (text[i] == ';' && !quoted)
            return std::string(trimmed(value, blanks));
        else if (text[i] == '\\' && i + 1 < text.size())
            value += escaped(text[++i]);
        else
            value += text[i];
    }
    return value;
}

// Two at signs stand for one, as one alone begins what is no text in files of this sort.
std::string withoutMark(std::string value)
{
    if (value.starts_with("@@")) value.erase(0, 1);
    return value;
}

std::string validUtf8(const std::string& text)
{
    return QString::fromStdString(text).toStdString();
}

// The next line, which is taken from the text.
std::string_view nextLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return trimmed(line, blanks);
}

Values valuesIn(std::string_view text)
{
    Values values;
    for (bool ours = false; !text.empty();) {
        const std::string_view line = nextLine(text);
        const auto equals = line.find('=');
        if (line.starts_with('['))
            ours = line == section;
        else if (ours && !line.starts_with(';') && equals != std::string_view::npos)
            values[validUtf8(std::string(trimmed(line.substr(0, equals), blanks)))] =
                validUtf8(withoutMark(valueOf(trimmed(line.substr(equals + 1), blanks))));
    }
    return values;
}

std::string lineOf(const std::string& key, const std::string& value)
{
    std::string line = key + "=\"";
    if (value.starts_with('@')) line += '@';
    for (const char c : value) {
        if (c == '"' || c == '\\') line += '\\';
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else
            line += c;
    }
    return line + "\"\n";
}

std::string perUserFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder.toStdString() + "/Mirtane/Mirtane.conf";
}

} // namespace

QtSettings::QtSettings() : QtSettings(perUserFile()) {}

QtSettings::QtSettings(std::string iniFile, PosixDisk disk)
    : path_(std::move(iniFile)), disk_(std::move(disk))
{
}

Values QtSettings::read()
{
    const std::optional<Bytes> bytes = disk_.read(path_);
    if (!bytes || bytes->size() > largestFile) return {};
    return valuesIn(std::string(bytes->begin(), bytes->end()));
}

void QtSettings::write(const Values& values)
{
    Values all = values;
    all.merge(read()); // keys that are there keep the values given
    std::string text = std::string(section) + "\n";
    for (const auto& [key, value] : all) text += lineOf(key, value);
    QDir().mkpath(QFileInfo(QString::fromStdString(path_)).path());
    disk_.writeWhole(path_, Bytes(text.begin(), text.end()));
}

} // namespace mirtane
