#include "app/files/file_preview.h"

#include "app/files/file_names.h"
#include "files/drawing_file.h"
#include "files/library_files.h"
#include "geometry/arc.h"
#include "render/text_painter.h"
#include "render/view.h"
#include "tables/kinds.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace mirtane {
namespace {

constexpr std::int64_t mostBytes = 256 * 1024; // some two thousand objects

void addObject(EntityStore& store, const EntityRecord& r)
{
    store.setRecord(store.entCount, r);
    store.setStat(store.entCount, Stat::on);
    ++store.entCount;
}

EntityRecord objectOf(const HatchRow& row)
{
    EntityRecord r;
    r.kind = row.hatchKind;
    r.p1 = row.h1;
    r.p2 = row.h2;
    r.p3 = row.h3;
    r.p4 = row.h4;
    r.rad = row.hatchRad;
    r.a1 = row.hatchA1;
    r.a2 = row.hatchA2;
    r.color = row.hatchColor;
    r.style = row.hatchStyle;
    return r;
}

void layHatch(Session& s)
{
    for (const HatchRow& row : s.hatchLibrary.used()) addObject(s.store, objectOf(row));
}

// As they would run beside a reference line from left to right.
void layMultipleLines(Session& s)
{
    const auto rows = s.multipleLinesLibrary.used();
    if (rows.empty()) return;
    const auto [least, most] = std::ranges::minmax(rows, {}, &MultipleLine::m1);
    const float length = std::max(12.0F, 2 * (most.m1 - least.m1));
    for (const MultipleLine& row : rows) {
        EntityRecord r;
        r.kind = Kind::line;
        r.p1 = {0, row.m1};
        r.p2 = {length, row.m1};
        r.color = row.colour;
        r.style = row.style;
        addObject(s.store, r);
    }
}

void layAssociate(Session& s)
{
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        EntityRecord r = s.store.record(i);
        r.kind = objectOf(r.kind);
        s.store.setRecord(i, r);
        s.store.setStat(i, Stat::on);
    }
}

void readDrawing(Session& s, const Bytes& file)
{
    replaceDrawing(s, file);
}

void readAssociate(Session& s, const Bytes& file)
{
    addAssociate(s, file, "preview");
    layAssociate(s);
}

void readHatch(Session& s, const Bytes& file)
{
    addHatch(s.hatchLibrary, file);
    layHatch(s);
}

void readMultipleLines(Session& s, const Bytes& file)
{
    addMultipleLines(s.multipleLinesLibrary, file);
    layMultipleLines(s);
}

struct Reader {
    std::string_view pattern;
    void (*read)(Session& s, const Bytes& file);
};

constexpr Reader readers[] = {
    {"*.mtd", readDrawing},
    {"*.mta", readAssociate},
    {"*.mth", readHatch},
    {"*.mtm", readMultipleLines},
};

// Letters cost more than all else, those of a new face, size or direction most: they are made first and kept.
class LettersInTime {
  public:
    // Whether there is time for these, too.
    bool take(const Lettering& text)
    {
        constexpr std::size_t mostMade = 1000;
        constexpr std::size_t mostWritten = 10'000;
        written_ += text.words.size();
        if (written_ > mostWritten) return false;
        for (const char letter : text.words)
            made_.insert({text.font, text.size, std::lrint(text.degrees), letter});
        return made_.size() <= mostMade;
    }

  private:
    std::size_t written_ = 0;
    std::set<std::tuple<std::string_view, float, long, char>> made_;
};

bool isWrittenInTime(const EntityStore& store)
{
    LettersInTime letters;
    for (std::size_t at = 1; at < EntityStore::at(store.end()); ++at) {
        if (store.t1[at].empty() || !isDrawnKind(store.kind[at])) continue;
        const bool isText = store.kind[at] == Kind::text;
        if (!letters.take(isText ? textLetteringAt(store, at) : dimLetteringAt(store, at))) return false;
    }
    return true;
}

void empty(Session& s)
{
    s.store.entCount = 1;
    s.hatchLibrary.count = 0;
    s.multipleLinesLibrary.count = 0;
}

} // namespace

bool FilePreview::isSmall(std::int64_t bytes)
{
    return bytes <= mostBytes;
}

bool FilePreview::draw(const std::string& name, const Bytes& file, Canvas& picture)
{
    const PatternRow* const pattern = patternOfFile(name);
    if (pattern == nullptr || !isSmall(static_cast<std::int64_t>(file.size())))
        return false; // far below its limit
    const auto* const reader = std::ranges::find(readers, pattern->pattern, &Reader::pattern);
    if (reader == std::end(readers)) return false;
    if (scratch_ == nullptr) scratch_ = std::make_unique<Session>();
    empty(*scratch_);
    reader->read(*scratch_, file);
    if (scratch_->store.entCount < 2 || !isWrittenInTime(scratch_->store)) return false;
    zoomAll(*scratch_, picture);
    return true;
}

} // namespace mirtane
