#include "platform/qt/page_choice.h"

#include "platform/qt/paper.h"

namespace mirtane {
namespace {

constexpr const char* paperKey = "paper";
constexpr const char* wayKey = "paperway";
constexpr const char* folderKey = "pdffolder";
constexpr const char* across = "across";
constexpr const char* upright = "upright";

std::string valueOf(const std::map<std::string, std::string>& values, const char* key)
{
    const auto found = values.find(key);
    return found == values.end() ? std::string() : found->second;
}

const char* nameOf(QPageLayout::Orientation way)
{
    return way == QPageLayout::Landscape ? across : upright;
}

} // namespace

PageChoice pageChoiceIn(SettingsStore& settings)
{
    const std::map<std::string, std::string> values = settings.read();
    const auto chosen = paperNamed(QString::fromStdString(valueOf(values, paperKey)));
    const bool lies = valueOf(values, wayKey) == across;
    return {chosen ? *chosen : paperOfSystem(), lies ? QPageLayout::Landscape : QPageLayout::Portrait,
            valueOf(values, folderKey)};
}

void keep(const PageChoice& choice, SettingsStore& settings)
{
    settings.write({{paperKey, choice.paper.key().toStdString()},
                    {wayKey, nameOf(choice.way)},
                    {folderKey, choice.folder}});
}

std::string sheetOf(const PageChoice& choice)
{
    return choice.paper.name().toStdString() + " " + nameOf(choice.way);
}

std::string told(const PageChoice& choice, const PageChoice& atStart)
{
    const std::string place = choice.folder.empty() ? "beside the drawing" : "to " + choice.folder;
    const std::string sheet = sheetOf(choice);
    const std::string when = sheet == sheetOf(atStart) ? "" : " from the next start on";
    return sheet + when + "; PDF files go " + place;
}

} // namespace mirtane
