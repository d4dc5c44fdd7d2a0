#pragma once

#include "app/app.h"

namespace mirtane {

// What is typed into the file dialog for a name, and where it leads.

// What the dialog knows of a pattern.
struct PatternRow {
    std::string_view pattern;
    std::string_view extension;
    std::string_view typeLine;
    std::string_view open; // the caption of the dialog that opens such files
    FolderPair FileState::*folders;
};

// Whether the dialog saves, by its button.
bool isSaving(const Controls& controls);

// The row of the dialog's pattern.
const PatternRow& patternOf(const FileState& s);

// The row whose files are called so, in upper or lower case; null for a name of none.
const PatternRow* patternOfFile(std::string_view name);

// The name that is meant by what is typed, with its extension; empty where none is typed. A file that stands
// there, or the name that the dialog proposed, is meant as it is typed, were there three points in it: else
// another file would be opened, or written over.
std::string nameMeant(const Session& s, const std::string& typed, bool standsThere);

// A name of the drawing's, with an extension, as one that a file can have and that leads to no folder:
// "1-2 wall.mtd" for "1/2 wall.mtd".
std::string asFileName(std::string name);

// The name that is meant in the folder shown.
std::string chosenName(const Session& s);

// The list shows extensions in either case, so a file is opened by the name that it has on the disk.
std::string nameInList(const Session& s, const std::string& name);

// A path leads to a folder, and to a name in it, which may be empty. Both absolute and plain.
struct TypedPath {
    std::string folder;
    std::string name;
};

// Whether a file of the dialog's pattern stands there: what is called otherwise, and a folder, is neither
// opened nor written over.
bool isFileOfPattern(App& app, const TypedPath& file);

// The path that is typed in place of a name: from the root, from the user's home ("~") or from the folder
// shown. None for a plain name.
std::optional<TypedPath> typedPath(App& app);

// Gives the name at the end of a path that is typed the extension that it is meant with.
void normalisePath(App& app);

// What could stand for the letters typed so far, as far as all folders that begin with them agree, and all
// files where one is to be opened.
std::string completedName(App& app);

std::string parentOf(const std::string& folder);

} // namespace mirtane
