#include "disk_contents.h"

#include <filesystem>
#include <fstream>

namespace mirtane::soak {
namespace {

using Files = std::map<std::string, Bytes>;

// A file in DXF with the records that the reader knows, and some that it does not.
constexpr std::string_view smallDxf =
    "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n2\n  0\nLAYER\n  2\n0\n 70\n0\n  0\nLAYER\n  2\n"
    "walls\n 70\n0\n  0\nENDTAB\n  0\nENDSEC\n  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  2\nHC1\n  0\nLINE\n  "
    "8\n"
    "0\n 10\n1\n 20\n2\n 11\n3\n 21\n4\n  0\nENDBLK\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nINSERT\n "
    " 2\n"
    "HC1\n 10\n5\n 20\n6\n 50\n30\n  0\nPOLYLINE\n 70\n1\n  0\nVERTEX\n 10\n0\n 20\n0\n 42\n1\n  0\nVERTEX\n "
    "10\n"
    "4\n 20\n0\n  0\nSEQEND\n  0\nLINE\n  8\nwalls\n 62\n3\n 10\n1\n 20\n2\n 11\n30\n 21\n40\n  0\nCIRCLE\n "
    "10\n"
    "5\n 20\n5\n 40\n2.5\n  0\nARC\n 10\n1\n 20\n2\n 40\n3\n 50\n45\n 51\n270\n  0\nTEXT\n 10\n1\n 20\n2\n "
    "40\n"
    "0.2\n  1\nseven words\n 50\n30\n  0\nPOINT\n 10\n1\n 20\n1\n  0\nENDSEC\n  0\nEOF\n";

Bytes contentsOf(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

const Files& goodFiles()
{
    static const Files files = [] {
        Files found;
        for (const char* folder : {"/data/libraries", "/data/samples"}) {
            for (const auto& entry :
                 std::filesystem::directory_iterator(MIRTANE_SOURCE_DIR + std::string(folder)))
                if (entry.path().extension() != ".play") found[entry.path().filename()] = contentsOf(entry);
        }
        found["small.dxf"] = Bytes(smallDxf.begin(), smallDxf.end());
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
    const std::string folder = std::string(home) + "/";
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
