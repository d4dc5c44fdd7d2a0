#pragma once

// What the words of the command line ask for.

#include "render/canvas.h"

#include <QPageLayout>
#include <QPageSize>

#include <optional>
#include <string>
#include <vector>

namespace mirtane::convert {

enum class Format { mtd, dxf, png, svg, pdf, txt };

// Stands for standard output in the place of a file.
inline constexpr const char* standardOutput = "-";

// One file and what becomes of it: absolute paths, UTF-8. named is the input as the user wrote it.
struct Job {
    std::string named, in, out;
};

// So many units of paper for so many of the drawing.
struct PaperScale {
    int paper = 1, drawing = 1;
};

struct Wishes {
    Format format = Format::mtd;
    Size size{1200, 800};                        // of a picture, pixels
    QPageSize::PageSizeId paper = QPageSize::A4; // of a page
    QPageLayout::Orientation way = QPageLayout::Portrait;
    std::optional<PaperScale> scale;   // the largest that fits if left out
    std::optional<std::int16_t> layer; // that layer alone
    bool asWindow = false;             // DXF files by the letter, as the menus take them
};

struct Arguments {
    bool help = false, version = false; // then nothing else is set
    Wishes wishes;
    std::vector<Job> jobs; // at least one; no output is an input or the output of another job
    bool compare = false;  // the first with the second, into a picture that is the output of both
    int workers = 0;       // so many files at a time; 0 without a table at the end
};

// A command line that can't be followed, in a few words.
struct WrongUsage {
    std::string reason;
};

// The words behind the program's name. Throws WrongUsage before any file is read or written.
Arguments argumentsOf(const std::vector<std::string>& words);

// The extension of a path if it is that of a format, in upper or lower case.
std::optional<Format> formatOf(const std::string& path);

// What --help prints.
extern const char* const helpText;

} // namespace mirtane::convert
