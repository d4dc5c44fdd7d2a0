#include "disk_contents.h"

#include "files/entity_record_codec.h"

#include <filesystem>
#include <fstream>

namespace mirtane::soak {
namespace {

using Files = std::map<std::string, Bytes>;

Bytes contentsOf(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

const Files& goodFiles()
{
    static const Files files = [] {
        Files found;
        for (const char* folder : {"/data/libraries", "/data/samples", "/tests/fuzz/seeds"}) {
            for (const auto& entry :
                 std::filesystem::directory_iterator(MIRTANE_SOURCE_DIR + std::string(folder)))
                if (entry.path().extension() != ".play") found[entry.path().filename()] = contentsOf(entry);
        }
        found["empty.mtd"] = {};
        return found;
    }();
    return files;
}

std::ptrdiff_t placeIn(const Bytes& file, Random& random)
{
    return static_cast<std::ptrdiff_t>(random.below(file.size() + 1)); // files are small
}

void cut(Bytes& file, Random& random)
{
    file.erase(file.begin() + placeIn(file, random), file.end());
}

void changeBytes(Bytes& file, Random& random)
{
    constexpr std::uint8_t telling[] = {0, 1, 0x7F, 0x80, 0xC0, 0xF0, 0xFF};
    for (int i = random.within(1, 12); i > 0 && !file.empty(); --i) {
        std::uint8_t& byte = file[random.below(file.size())];
        byte =
            random.oneIn(2) ? random.among(telling) : static_cast<std::uint8_t>(random.below(256)); // a byte
    }
}

void leaveOut(Bytes& file, Random& random)
{
    const auto from = placeIn(file, random);
    file.erase(file.begin() + std::min(from, placeIn(file, random)), file.begin() + from);
}

void doublePart(Bytes& file, Random& random)
{
    const auto from = placeIn(file, random);
    const Bytes part(file.begin() + std::min(from, placeIn(file, random)), file.begin() + from);
    file.insert(file.begin() + placeIn(file, random), part.begin(), part.end());
}

Bytes crowdedDrawing()
{
    constexpr std::int32_t lines = 400;
    Bytes file;
    ByteWriter out(file);
    EntityRecord r;
    r.kind = headerKind; // the first is the header, those behind it are dead
    r.t1 = "us";
    r.t2 = "Garamond";
    for (std::int32_t i = 0; i < EntityStore::slotCount - slotsLeftInCrowded - lines; ++i)
        writeRecord(out, r);
    r.kind = Kind::line;
    r.layer = 1;
    for (std::int32_t i = 0; i < lines; ++i) {
        const auto at = static_cast<float>(i); // few
        r.p1 = {at, 2 * at - 17};
        r.p2 = {800 - at, 31 + at};
        writeRecord(out, r);
    }
    return file;
}

std::string extensionOf(const std::string& name)
{
    return name.substr(name.rfind('.'));
}

} // namespace

Bytes spoiled(Bytes file, Random& random)
{
    constexpr void (*ways[])(Bytes&, Random&) = {cut, changeBytes, leaveOut, doublePart};
    for (int i = random.within(1, 3); i > 0; --i) random.among(ways)(file, random);
    return file;
}

void fillDisk(Stage& stage, Random& random, bool damage)
{
    static const Bytes crowdedFile = crowdedDrawing();
    const std::string folder = std::string(home) + "/";
    stage.disk.files[folder + crowded] = crowdedFile;
    for (const auto& [name, file] : goodFiles()) {
        stage.disk.files[folder + name] = file;
        Bytes shortened = file;
        cut(shortened, random);
        if (random.oneIn(4)) stage.disk.files[folder + "cut-" + name] = shortened;
        // Numbers in a DXF file are read with care, so that even there nothing that is no number comes in.
        const bool harmless = extensionOf(name) == ".dxf";
        if (damage || harmless) stage.disk.files[folder + "bad-" + name] = spoiled(file, random);
    }
}

} // namespace mirtane::soak
