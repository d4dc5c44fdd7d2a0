#include "app/settings.h"

#include "model/attribute_rows.h"

namespace mirtane {
namespace {

struct FolderRow {
    std::string key;
    FolderPair FileState::*pair;
    std::string FolderPair::*folder;
};

const std::vector<FolderRow>& folderRows()
{
    static const std::vector<FolderRow> rows = {
        {"wkd", &FileState::drawings, &FolderPair::working},
        {"wkmtad", &FileState::associates, &FolderPair::working},
        {"wkmthd", &FileState::hatches, &FolderPair::working},
        {"wkmtmd", &FileState::multipleLines, &FolderPair::working},
        {"wkdxfd", &FileState::dxf, &FolderPair::working},
        {"wkp", &FileState::drawings, &FolderPair::last},
        {"wkmtap", &FileState::associates, &FolderPair::last},
        {"wkmthp", &FileState::hatches, &FolderPair::last},
        {"wkmtmp", &FileState::multipleLines, &FolderPair::last},
        {"wkdxfp", &FileState::dxf, &FolderPair::last},
    };
    return rows;
}

} // namespace

void readSettings(Session& s, SettingsStore& store)
{
    const std::map<std::string, std::string> values = store.read();
    for (const AttributeRow& row : attributeRows()) {
        const auto found = values.find(std::string(row.key));
        if (!row.key.empty() && found != values.end()) row.takeText(s, found->second);
    }
    for (const FolderRow& row : folderRows()) {
        const auto found = values.find(row.key);
        if (found != values.end() && !found->second.empty()) (s.*row.pair).*row.folder = found->second;
    }
}

void writeSettings(const Session& s, SettingsStore& store)
{
    std::map<std::string, std::string> values;
    for (const AttributeRow& row : attributeRows()) {
        if (!row.key.empty()) values[std::string(row.key)] = row.text(s);
    }
    for (const FolderRow& row : folderRows()) values[row.key] = (s.*row.pair).*row.folder;
    store.write(values);
}

} // namespace mirtane
