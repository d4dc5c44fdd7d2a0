#pragma once

#include <QString>

#include <string>

namespace mirtane {

// Where a run of the program finds things; absolute paths, UTF-8.
struct Places {
    std::string program;  // the program's folder, with the manual
    std::string ownFiles; // where the user's files go at first
};

// For a program that stands in the given folder. In a build tree that folder is both. Once the program is
// installed its folder is the one with its data beneath the same prefix, in which nobody writes, and files
// begin with the user's documents.
Places placesOf(const QString& folderOfProgram);

} // namespace mirtane
