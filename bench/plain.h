#pragma once

// The plain work beneath what the program does: what anyone would write first, with no care beyond that.

#include "files/disk.h"
#include "model/entity_store.h"
#include "render/canvas.h"
#include "render/raster.h"

#include <filesystem>
#include <span>

namespace mirtane::bench {

struct Image {
    std::span<std::uint32_t> pixels; // 0xFFRRGGBB, row by row
    int width, height;
};

// Transforms each line of the table by the scale, clips it to the image and draws it there by Bresenham's
// method, dashed ones by the dashes of their style.
void drawLines(const EntityStore& store, const Scale& scale, Image image);

// The pixels of circles, arcs, ellipses and points by a bare loop each: a midpoint circle, and a walk of one
// step to the pixel round the others.
void drawShapes(const EntityStore& store, const Scale& scale, Image image);

// Row by row. The part must lie in both images, which are of one size.
void copyPart(std::span<const std::uint32_t> from, Image to, const PixelRect& part);

struct Limits {
    float left, top, right, bottom;
};

// The box of the ends of all lines that are shown.
Limits limitsOf(const EntityStore& store);

// Into a file beside the target, flushed, renamed over it. False on any fault.
bool writeFile(const std::filesystem::path& target, std::span<const std::uint8_t> bytes);

// All bytes of a file; none on any fault.
Bytes readFile(const std::filesystem::path& path);

// Takes the records of a drawing file into the table, each field copied as it lies in the file. Nothing is
// tested: the file must be whole, and have no more records than the table slots.
void takeRecords(std::span<const std::uint8_t> file, EntityStore& store);

} // namespace mirtane::bench
