#include "files/kept_work.h"

#include "files/drawing_file.h"
#include "files/entity_record_codec.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>

namespace mirtane {
namespace {

constexpr std::string_view mark = "Mirtane: work that was not saved"; // of the last record
constexpr std::string_view libraryMark = "Mirtane: a library in no file";
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

EntityRecord deadRecord(std::string_view t1)
{
    EntityRecord r;
    r.kind = headerKind; // in the middle of a drawing it is a dead slot
    r.t1 = t1;
    return r;
}

EntityRecord recordOf(const KeptAbout& about, std::size_t recordsOfLibraries)
{
    EntityRecord r = deadRecord(mark);
    r.t2 = escaped(about.drawingName) + " " + escaped(about.drawingFile) + " " + escaped(about.time) + " " +
           escaped(stampText(about.stamp)) + " " + escaped(about.folder) + " " +
           std::to_string(about.changes) + " " + escaped(about.since) + " " +
           std::to_string(recordsOfLibraries);
    return r;
}

// Gives the records before it that hold libraries as well.
KeptAbout aboutIn(const EntityRecord& r, std::size_t& recordsOfLibraries)
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
    std::string_view records = nextField(text);
    static_cast<void>(takeNumber(records, recordsOfLibraries)); // none where it is no number
    return about;
}

// A text of a record holds 65,535 bytes, and escaped ones are up to three times as many.
constexpr std::size_t bytesInRecord = 16'000;

// At least one record, the bytes in parts.
void addRecordsOf(const KeptLibrary& library, std::vector<EntityRecord>& records)
{
    const std::string_view all(reinterpret_cast<const char*>(library.file.data()), // its bytes
                               library.file.size());
    std::size_t at = 0;
    do {
        EntityRecord r = deadRecord(libraryMark);
        r.t2 = escaped(library.extension) + " " + escaped(library.name) + " " +
               escaped(all.substr(at, bytesInRecord));
        records.push_back(std::move(r));
        at += bytesInRecord;
    } while (at < all.size());
}

// A part that goes on with the library before it is added to that.
void takePart(const EntityRecord& r, std::vector<KeptLibrary>& libraries)
{
    std::string_view text = r.t2;
    const std::string extension = unescaped(nextField(text));
    const std::string name = unescaped(nextField(text));
    const std::string part = unescaped(nextField(text));
    const bool goesOn =
        !libraries.empty() && libraries.back().extension == extension && libraries.back().name == name;
    if (!goesOn) libraries.push_back({extension, name, {}});
    Bytes& file = libraries.back().file;
    file.insert(file.end(), part.begin(), part.end());
}

} // namespace

Bytes keptWork(const Session& s, const KeptAbout& about, const std::vector<KeptLibrary>& libraries)
{
    Bytes bytes = drawingBytes(s, SaveWhat::drawing);
    std::vector<EntityRecord> records;
    for (const KeptLibrary& library : libraries) addRecordsOf(library, records);
    records.push_back(recordOf(about, records.size()));
    ByteWriter out(bytes);
    for (const EntityRecord& record : records) writeRecord(out, record);
    return bytes;
}

std::optional<KeptWork> readKeptWork(const Bytes& bytes)
{
    ByteReader in(bytes);
    EntityRecord record;
    std::vector<std::size_t> begins; // of the records
    while (in.remaining() > 0) {
        begins.push_back(bytes.size() - in.remaining());
        if (!readRecord(in, record)) return std::nullopt;
    }
    if (begins.size() < 2 || record.kind != headerKind || record.t1 != mark) return std::nullopt;
    KeptWork work;
    std::size_t ofLibraries = 0;
    work.about = aboutIn(record, ofLibraries);
    if (ofLibraries > begins.size() - 2) return std::nullopt; // none is left for the drawing
    const std::size_t drawing = begins[begins.size() - 1 - ofLibraries];
    work.drawing.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(drawing)); // within them
    ByteReader tail(std::span<const std::uint8_t>(bytes).subspan(drawing));
    for (std::size_t i = 0; i < ofLibraries && readRecord(tail, record); ++i)
        takePart(record, work.libraries);
    return work;
}

} // namespace mirtane
