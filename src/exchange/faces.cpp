#include "exchange/faces.h"

#include <algorithm>

namespace mirtane {
namespace {

struct FileRow {
    std::string_view file, face;
};

constexpr FileRow files[] = {
    {"arial", "Arial"},           {"arialbd", "Arial"},           {"ariali", "Arial"},
    {"arialn", "Arial Narrow"},   {"calibri", "Calibri"},         {"cour", "Courier New"},
    {"gara", "Garamond"},         {"georgia", "Georgia"},         {"tahoma", "Tahoma"},
    {"times", "Times New Roman"}, {"timesbd", "Times New Roman"}, {"verdana", "Verdana"},
};

std::string faceOfFile(const std::string& file)
{
    constexpr std::string_view ending = ".ttf";
    if (file.size() <= ending.size()) return {};
    const std::string_view all(file);
    const std::string_view base = all.substr(0, all.size() - ending.size());
    if (!isSameName(all.substr(base.size()), ending)) return {};
    const std::string_view name = base.substr(base.find_last_of("/\\") + 1);
    const auto* const row =
        std::ranges::find_if(files, [name](const FileRow& one) { return isSameName(one.file, name); });
    return std::string(row == std::end(files) ? name : row->face);
}

} // namespace

std::string faceOfStyle(const DxfList& list, const DxfRecord& style)
{
    constexpr int ownText = 1000; // of the data that a program adds
    constexpr int fontFile = 3;
    const std::string face = list.text(style, ownText);
    return face.empty() ? faceOfFile(list.text(style, fontFile)) : face;
}

} // namespace mirtane
