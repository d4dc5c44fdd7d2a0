#include "app/settings.h"

#include "geometry/fault.h"
#include "text/code_page.h"
#include "text/numbers.h"

#include <charconv>
#include <cmath>

namespace mirtane {
namespace {

// The whole text is one number.
bool isNumber(const std::string& text)
{
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, fault] = std::from_chars(text.data(), end, value);
    return fault == std::errc{} && stopped == end && std::isfinite(value);
}

struct SettingRow {
    std::string key;
    void (*take)(Session& s, const std::string& value);
    std::string (*give)(const Session& s);
};

template <auto member> SettingRow number(const char* key)
{
    return {key,
            [](Session& s, const std::string& value) {
                if (isNumber(value)) keep(s.*member, readNumber(value));
            },
            [](const Session& s) { return plainNumber(s.*member); }};
}

// Words go into the drawings too, and so only those that a drawing can keep are taken.
template <auto member> SettingRow word(const char* key)
{
    return {key,
            [](Session& s, const std::string& value) {
                if (!value.empty() && firstBeyondCodePage(value).empty()) s.*member = value;
            },
            [](const Session& s) { return s.*member; }};
}

template <auto pair, auto member> SettingRow folder(const char* key)
{
    return {key,
            [](Session& s, const std::string& value) {
                if (!value.empty()) (s.*pair).*member = value;
            },
            [](const Session& s) { return (s.*pair).*member; }};
}

const std::vector<SettingRow>& settingRows()
{
    static const std::vector<SettingRow> rows = {
        word<&Session::textFont>("tnam"),
        number<&Session::textSize>("tsize"),
        number<&Session::arrowSize>("asize"),
        number<&Session::dimStyle>("dstyle"),
        number<&Session::textJust>("tjust"),
        number<&Session::dimTol>("ntol"),
        number<&Session::numComma>("ncom"),
        number<&Session::angFormat>("acom"),
        word<&Session::numStyle>("nstyle"),
        folder<&Session::drawings, &FolderPair::working>("wkd"),
        folder<&Session::associates, &FolderPair::working>("wkmtad"),
        folder<&Session::hatches, &FolderPair::working>("wkmthd"),
        folder<&Session::multipleLines, &FolderPair::working>("wkmtmd"),
        folder<&Session::dxf, &FolderPair::working>("wkdxfd"),
        folder<&Session::drawings, &FolderPair::last>("wkp"),
        folder<&Session::associates, &FolderPair::last>("wkmtap"),
        folder<&Session::hatches, &FolderPair::last>("wkmthp"),
        folder<&Session::multipleLines, &FolderPair::last>("wkmtmp"),
        folder<&Session::dxf, &FolderPair::last>("wkdxfp"),
    };
    return rows;
}

} // namespace

void readSettings(Session& s, SettingsStore& store)
{
    const std::map<std::string, std::string> values = store.read();
    for (const SettingRow& row : settingRows()) {
        if (const auto found = values.find(row.key); found != values.end()) row.take(s, found->second);
    }
}

void writeSettings(const Session& s, SettingsStore& store)
{
    std::map<std::string, std::string> values;
    for (const SettingRow& row : settingRows()) values[row.key] = row.give(s);
    store.write(values);
}

} // namespace mirtane
