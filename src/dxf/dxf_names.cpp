#include "dxf/dxf_names.h"

#include "text/utf8.h"

namespace mirtane {
namespace {

std::string withExtension(std::string_view name, std::string_view extension)
{
    constexpr std::size_t dropped = 4;
    const std::vector<std::string> characters = utf8Characters(name);
    std::string stem;
    for (std::size_t i = 0; i + dropped < characters.size(); ++i) stem += characters[i];
    return stem.append(extension);
}

} // namespace

std::string dxfNameOf(std::string_view drawingName)
{
    return withExtension(drawingName, ".dxf");
}

std::string drawingNameOf(std::string_view dxfName)
{
    return withExtension(dxfName, ".mtd");
}

} // namespace mirtane
