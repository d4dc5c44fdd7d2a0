#include "files/kept_work.h"

#include "files/drawing_file.h"
#include "files/entity_record_codec.h"

#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace mirtane {
namespace {

constexpr std::string_view mark = "Mirtane: work that was not saved"; // of the last record
constexpr std::string_view digits = "0123456789ABCDEF";

// Texts of a file have one byte a character, and a path may hold any: all but letters and digits go as their
// bytes.
std::string escaped(std::string_view text)
{
    std::string all;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c); // its bits
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (plain) {
            all += c;
        } else {
            all += {'%', digits[byte / 16U], digits[byte % 16U]};
        }
    }
    return all;
}

std::string unescaped(std::string_view text)
{
    std::string all;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%' || i + 2 >= text.size()) {
            all += text[i];
            continue;
        }
        const auto high = digits.find(text[i + 1]);
        const auto low = digits.find(text[i + 2]);
        if (high == std::string_view::npos || low == std::string_view::npos) return {};
        all += static_cast<char>(high * 16 + low); // a byte
        i += 2;
    }
    return all;
}

std::string_view nextField(std::string_view& text)
{
    const std::string_view field = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(text.size(), field.size() + 1));
    return field;
}

std::string stampText(const std::optional<FileStamp>& stamp)
{
    if (!stamp) return {};
    return std::to_string(stamp->size) + "," + std::to_string(stamp->modified) + "," +
           std::to_string(stamp->inode) + "," + std::to_string(stamp->device);
}

template <class Number> bool takeNumber(std::string_view& text, Number& number)
{
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data())); // within the text
    if (text.starts_with(',')) text.remove_prefix(1);
    return fault == std::errc();
}

std::optional<FileStamp> stampIn(std::string_view text)
{
    FileStamp stamp;
    const bool whole = takeNumber(text, stamp.size) && takeNumber(text, stamp.modified) &&
                       takeNumber(text, stamp.inode) && takeNumber(text, stamp.device);
    return whole ? std::optional(stamp) : std::nullopt;
}

EntityRecord recordOf(const KeptAbout& about)
{
    EntityRecord r;
    r.kind = headerKind; // in the middle of a drawing it is a dead slot
    r.t1 = mark;
    r.t2 = escaped(about.drawingName) + " " + escaped(about.drawingFile) + " " + escaped(about.time) + " " +
           escaped(stampText(about.stamp)) + " " + escaped(about.folder) + " " +
           std::to_string(about.changes) + " " + escaped(about.since);
    return r;
}

KeptAbout aboutIn(const EntityRecord& r)
{
    std::string_view text = r.t2;
    KeptAbout about;
    for (std::string* field : {&about.drawingName, &about.drawingFile, &about.time}) {
        *field = unescaped(nextField(text));
    }
    about.stamp = stampIn(unescaped(nextField(text)));
    about.folder = unescaped(nextField(text));
    std::string_view changes = nextField(text);
    static_cast<void>(takeNumber(changes, about.changes)); // none where it is no number
    about.since = unescaped(nextField(text));
    return about;
}

} // namespace

Bytes keptWork(const Session& s, const KeptAbout& about)
{
    Bytes bytes = drawingBytes(s, SaveWhat::drawing);
    ByteWriter out(bytes);
    writeRecord(out, recordOf(about));
    return bytes;
}

std::optional<KeptWork> readKeptWork(const Bytes& bytes)
{
    ByteReader in(bytes);
    EntityRecord record;
    std::size_t drawing = 0; // bytes before the last record
    for (std::size_t left = bytes.size(); left > 0; left = in.remaining()) {
        drawing = bytes.size() - left;
        if (!readRecord(in, record)) return std::nullopt;
    }
    if (drawing == 0 || record.kind != headerKind || record.t1 != mark) return std::nullopt;
    return KeptWork{aboutIn(record),
                    Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(drawing))};
}

} // namespace mirtane
