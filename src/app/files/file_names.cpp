#include "app/files/file_names.h"

#include "text/ascii.h"
#include "text/utf8.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr PatternRow patternRows[] = {
    {"*.mtd", ".mtd", "Mirtane Drawing    *.mtd", "Open Drawing", &FileState::drawings},
    {"*.dxf", ".dxf", "DXF Format    *.dxf", "Open DXF", &FileState::dxf},
    {"*.mta", ".mta", "Mirtane Associate    *.mta", "Open Associate", &FileState::associates},
    {"*.mth", ".mth", "Mirtane Hatch    *.mth", "Open Hatch", &FileState::hatches},
    {"*.mtm", ".mtm", "Multiple Lines    *.mtm", "Open Multiple Lines", &FileState::multipleLines},
};

const std::vector<std::string>& namesListed(const Controls& controls)
{
    return controls[ids::fileList].rows;
}

// All after the first "." is dropped and the pattern's extension added; nothing of a name without a base.
std::string normalisedName(const Session& s, const std::string& typed)
{
    const std::string base = typed.substr(0, typed.find('.'));
    return base.empty() ? base : base + std::string(patternOf(s).extension);
}

// The folder with the steps of a path taken one by one.
std::string walked(std::string folder, std::string_view steps)
{
    while (!steps.empty()) {
        const auto slash = std::min(steps.find('/'), steps.size());
        const std::string_view step = steps.substr(0, slash);
        steps.remove_prefix(std::min(slash + 1, steps.size()));
        if (step == "..") {
            folder = parentOf(folder);
        } else if (!step.empty() && step != ".") {
            folder += (folder.ends_with('/') ? "" : "/") + std::string(step);
        }
    }
    return folder;
}

bool leadsToFolder(std::string_view typed)
{
    return typed == "~" || typed == "." || typed == ".." || typed.ends_with('/') || typed.ends_with("/.") ||
           typed.ends_with("/..");
}

// Where a typed path begins; its first sign is taken off.
std::string beginningOf(const App& app, std::string_view& typed)
{
    if (typed.starts_with('/')) return "/";
    if (typed != "~" && !typed.starts_with("~/")) return app.s.controls[ids::folderList].text;
    typed.remove_prefix(1);
    return app.ports.homeFolder.empty() ? app.ports.programFolder : app.ports.homeFolder;
}

struct Halves {
    std::string_view folder; // with the "/" at its end
    std::string_view name;
};

Halves halvesOf(std::string_view typed)
{
    const auto slash = typed.rfind('/');
    const std::size_t split = slash == std::string_view::npos ? 0 : slash + 1;
    return {typed.substr(0, split), typed.substr(split)};
}

std::string folderOf(const App& app, std::string_view typed)
{
    const std::string from = beginningOf(app, typed);
    return walked(from, typed);
}

void narrow(std::optional<std::string>& common, const std::string& candidate)
{
    if (!common) {
        common = candidate;
        return;
    }
    const auto [end, ignored] = std::ranges::mismatch(*common, candidate);
    std::size_t whole = 0;                                                     // of characters that both have
    const std::size_t alike = static_cast<std::size_t>(end - common->begin()); // not negative
    while (whole < alike) {
        const std::size_t next = whole + firstCharacter(std::string_view(*common).substr(whole)).size;
        if (next > alike) break;
        whole = next;
    }
    common->resize(whole);
}

} // namespace

bool isSaving(const Controls& controls)
{
    const std::string& caption = controls[ids::fileConfirm].caption;
    return caption == "Save" || caption == "Overwrite?";
}

const PatternRow& patternOf(const FileState& s)
{
    const auto* const found = std::ranges::find(patternRows, s.filePattern, &PatternRow::pattern);
    return found == std::end(patternRows) ? patternRows[0] : *found;
}

const PatternRow* patternOfFile(std::string_view name)
{
    const auto* const found = std::ranges::find_if(patternRows, [&](const PatternRow& row) {
        const std::size_t length = row.extension.size();
        return name.size() > length && isSameButForCase(name.substr(name.size() - length), row.extension);
    });
    return found == std::end(patternRows) ? nullptr : found;
}

std::string nameMeant(const Session& s, const std::string& typed, bool standsThere)
{
    const bool isMeant = (standsThere || typed == s.proposedName) && !typed.starts_with('.');
    return isMeant ? typed : normalisedName(s, typed);
}

std::string asFileName(std::string name)
{
    std::ranges::replace(name, '/', '-');
    const std::size_t base = name.rfind('.');
    const bool hasBase = base != std::string::npos && base > 0;
    if (hasBase && name.starts_with('~')) name[0] = '-';
    // A name that begins with a point is hidden, or none at all.
    for (std::size_t i = 0; hasBase && i < base && name[i] == '.'; ++i) name[i] = '-';
    return name;
}

std::string chosenName(const Session& s)
{
    const std::string& typed = s.controls[ids::fileName].text;
    const auto& names = namesListed(s.controls);
    return nameMeant(s, typed, std::ranges::find(names, typed) != names.end());
}

std::string nameInList(const Session& s, const std::string& name)
{
    const std::vector<std::string>& names = namesListed(s.controls);
    if (std::ranges::find(names, name) != names.end()) return name;
    const std::size_t base = name.size() - patternOf(s).extension.size();
    const auto found = std::ranges::find_if(names, [&](const std::string& row) {
        return row.starts_with(name.substr(0, base)) && isSameButForCase(row, name);
    });
    return found == names.end() ? name : *found;
}

std::optional<TypedPath> typedPath(App& app)
{
    const std::string& typed = app.s.controls[ids::fileName].text;
    if (leadsToFolder(typed)) return TypedPath{folderOf(app, typed), ""};
    if (typed.find('/') == std::string::npos) return std::nullopt;
    const Halves halves = halvesOf(typed);
    return TypedPath{folderOf(app, halves.folder), std::string(halves.name)};
}

bool isFileOfPattern(App& app, const TypedPath& file)
{
    const PatternRow* const pattern = patternOfFile(file.name);
    return pattern != nullptr && pattern->pattern == patternOf(app.s).pattern &&
           app.ports.disk.stamp(file.folder + "/" + file.name).has_value();
}

void normalisePath(App& app)
{
    Control& box = app.s.controls[ids::fileName];
    const auto path = typedPath(app);
    if (!path || path->name.empty()) return;
    const bool isFolder =
        !isSaving(app.s.controls) && app.ports.folders.exists(path->folder + "/" + path->name);
    const bool stands = isFolder || isFileOfPattern(app, *path);
    setText(box, std::string(halvesOf(box.text).folder) + nameMeant(app.s, path->name, stands));
}

std::string completedName(App& app)
{
    const std::string& typed = app.s.controls[ids::fileName].text;
    const Halves halves = halvesOf(typed);
    const std::string folder = folderOf(app, halves.folder);
    std::optional<std::string> common;
    // Where it is saved a key that completes would choose a file to be replaced: there folders alone.
    if (!isSaving(app.s.controls)) {
        for (const std::string& name :
             app.ports.folders.files(folder, std::string(patternOf(app.s).extension))) {
            if (name.starts_with(halves.name)) narrow(common, name);
        }
    }
    for (const std::string& name : app.ports.folders.subfolders(folder)) {
        if (name.starts_with(halves.name)) narrow(common, name + "/");
    }
    return halves.name.empty() || !common ? typed : std::string(halves.folder) + *common;
}

std::string parentOf(const std::string& folder)
{
    const auto slash = folder.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : folder.substr(0, slash);
}

} // namespace mirtane
