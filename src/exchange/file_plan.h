#pragma once

// What a drawing needs in a DXF file before its objects can be written: the layers, faces and kinds of arrows
// that they name, and the handles by which one calls another.

#include "exchange/pairs_out.h"
#include "exchange/words_out.h"
#include "model/entity_store.h"
#include "model/layers.h"
#include "model/session.h"
#include "render/entity_bounds.h"

#include <map>
#include <optional>
#include <tuple>
#include <vector>

namespace mirtane {

// What is to be written, and what is asked for on the way. All must outlive it.
struct DrawingOut {
    const EntityStore& store;
    const LayerTable& layers;
    const Attributes& attributes;
    std::optional<std::int16_t> layer; // the only one whose objects are written
    TextWidthOf widthOf;               // of a text of any kind, in its font and size, world units
};

// Objects of which every file has one.
namespace fixed {
inline constexpr DxfHandle blockTable = 0x1;
inline constexpr DxfHandle layerTable = 0x2;
inline constexpr DxfHandle styleTable = 0x3;
inline constexpr DxfHandle lineTypeTable = 0x5;
inline constexpr DxfHandle viewTable = 0x6;
inline constexpr DxfHandle coordinateTable = 0x7;
inline constexpr DxfHandle windowTable = 0x8;
inline constexpr DxfHandle applicationTable = 0x9;
inline constexpr DxfHandle dimensionTable = 0xA;
inline constexpr DxfHandle root = 0xC;
inline constexpr DxfHandle groups = 0xD;
inline constexpr DxfHandle plotStyles = 0xE;
inline constexpr DxfHandle plotStyle = 0xF;
inline constexpr DxfHandle layouts = 0x1A;
inline constexpr DxfHandle paper = 0x1B; // the block that is the sheet
inline constexpr DxfHandle paperLayout = 0x1E;
inline constexpr DxfHandle model = 0x1F; // the block that is the drawing
inline constexpr DxfHandle modelLayout = 0x22;
inline constexpr DxfHandle firstFree = 0x30;
} // namespace fixed

struct LayerOut {
    std::string name;              // as the file has it
    std::int32_t color = 0xFFFFFF; // the pen of most of its objects, which they need not name
    bool hidden = false;
    std::optional<std::string> own{}; // its name in the drawing, where it has a row there
};

struct FaceOut {
    std::string name; // of the style
    std::string face; // UTF-8
    DxfHandle handle = 0;
};

// What the arrows and figures of dimensions look like. Sizes are world units.
struct ArrowLook {
    std::int16_t arrow = 0; // 1 closed, 2 open, 3 slash
    float arrowSize = 0;
    float textSize = 0;
    std::string face;

    friend auto operator<=>(const ArrowLook&, const ArrowLook&) = default;
};

// Of a dimension or a leader; nothing for another kind.
std::optional<ArrowLook> arrowLookOf(const EntityRecord& r);

struct ArrowStyleOut {
    std::string name;
    DxfHandle handle = 0;
};

// A block that pictures an arrow or a dimension.
struct BlockOut {
    std::string name;
    DxfHandle handle = 0; // of its row in the table of blocks
};

// The blocks of the three arrows.
inline constexpr std::int16_t arrows = 3;

class FilePlan {
  public:
    explicit FilePlan(const DrawingOut& drawing);

    // The slots of what is written, in their order; the rest shows nothing and can't be written.
    const std::vector<std::int32_t>& written() const { return slots_; }
    std::int32_t leftOut() const { return leftOut_; }
    const IntegerBox& box() const { return box_; } // round all of it, world units

    const std::vector<LayerOut>& layers() const { return layers_; }
    const LayerOut& layerOf(std::int16_t number) const { return layers_[rowOf_.at(number)]; }
    const std::string& workLayer() const { return workLayer_; }
    const std::map<std::string, FaceOut>& faces() const { return faces_; }
    const std::map<ArrowLook, ArrowStyleOut>& arrowStyles() const { return arrowStyles_; }
    const BlockOut& arrowBlock(std::int16_t arrow) const;
    const std::map<std::int32_t, BlockOut>& pictures() const { return pictures_; } // by slot

    DxfHandle newHandle() { return next_++; }

  private:
    void takeSlots(const DrawingOut& drawing);
    void takeLayers(const DrawingOut& drawing);
    void addLayer(std::int32_t number, const DrawingOut& drawing, DxfNames& names);
    void takePens(const EntityStore& store);
    void takeFace(const std::string& face, DxfNames& names);
    void takeDimension(std::int32_t slot, const EntityRecord& r);

    std::vector<std::int32_t> slots_;
    std::int32_t leftOut_ = 0;
    IntegerBox box_;
    std::vector<LayerOut> layers_;
    std::map<std::int32_t, std::size_t> rowOf_; // by the layer's number
    std::string workLayer_ = "0";
    std::map<std::string, FaceOut> faces_;
    std::map<ArrowLook, ArrowStyleOut> arrowStyles_;
    std::vector<BlockOut> arrowBlocks_;
    std::map<std::int32_t, BlockOut> pictures_;
    DxfHandle next_ = fixed::firstFree;
};

// Whether an arc covers anything: to other programs equal ends are a whole circle.
bool hasSweep(double a1, double a2);

// Whether an object leaves a mark that a file can hold: all its numbers are finite, and it has a size.
bool canBeWritten(const EntityRecord& r);

} // namespace mirtane
