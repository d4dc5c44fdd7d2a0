#include "dxf/source.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/code_page.h"

#include <utility>

namespace mirtane {
namespace {

constexpr std::size_t longestText = 65535;    // bytes, as a drawing file counts them
constexpr std::size_t longestBlockName = 255; // bytes

} // namespace

bool DxfSource::value(std::string_view& line)
{
    const bool there = lines_.next(line);
    took_ = took_ || there;
    return there;
}

std::optional<double> DxfSource::leading()
{
    std::string_view line;
    return value(line) ? leadingNumber(line, point_) : std::nullopt;
}

void DxfSource::number(float& target)
{
    if (const std::optional<double> read = leading()) keep(target, *read);
}

void DxfSource::number(double& target)
{
    if (const std::optional<double> read = leading()) keep(target, *read);
}

void DxfSource::angle(double& target)
{
    if (const std::optional<double> read = leading()) keep(target, *read * radiansPerDegree);
}

void DxfSource::whole(std::int16_t& target)
{
    if (const std::optional<double> read = leading()) keep(target, *read);
}

void DxfSource::text(std::string& target)
{
    std::string_view line;
    if (value(line)) target = dxfWords(line);
}

void DxfSource::blockName(std::string& target)
{
    std::string_view line;
    if (value(line)) target = dxfBlockName(line);
}

bool DxfSource::tookValues()
{
    return std::exchange(took_, false);
}

std::string dxfBlockName(std::string_view bytes)
{
    return fromCodePage(bytes.substr(0, longestBlockName));
}

std::string dxfWords(std::string_view bytes)
{
    return fromCodePage(bytes.substr(0, longestText));
}

} // namespace mirtane
