#pragma once

// Turns records of a DXF file into objects of ours. It keeps what is being drawn (where the block under way
// stands, and what its objects look like) and takes what the records draw: in the drawing, in the file's
// units, y up. What comes out is placed, scaled and narrowed in one place, placing.cpp.

#include "exchange/dxf_list.h"
#include "exchange/ellipse_pieces.h"
#include "exchange/hatch_lines.h"
#include "exchange/looks.h"
#include "exchange/made.h"
#include "exchange/record_checks.h"
#include "exchange/tangent_arcs.h"
#include "exchange/transform.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace mirtane {

class DrawingMaker;

// What draws the records of a type, the codes of which a record has at least one, or it shows nothing, and
// those of numbers, besides its places, without which it can't be drawn.
struct RecordHandler {
    std::string_view type;
    void (*take)(const DxfRecord& record, DrawingMaker& maker);
    std::array<int, 2> shownBy{};
    CodeSet numbers{};
};

// Dots and lines, and the outline that stands for them; both are drawn where the outline is seen.
struct Pattern {
    std::vector<PatternLine> lines;
    std::vector<Stroke> outline;
    bool hasOutline = false;
    Look look{};
};

class DrawingMaker {
  public:
    // Work beyond that of going through the file once: records of blocks, each time that one is inserted, and
    // what is drawn of them. A step is about as much as a short record or an object; sixty thousand objects
    // need some five times as many if they all are curves.
    static constexpr std::int64_t enoughSteps = 400'000;

    // handlerOf gives what draws the records of a type, or null.
    DrawingMaker(const DxfList& list, double tolerance,
                 const RecordHandler* (*handlerOf)(std::string_view type),
                 std::int64_t mostSteps = enoughSteps);

    const DxfList& list() const { return list_; }
    // How far a curve may be from what it is drawn by.
    double tolerance() const { return tolerance_; }

    // A point of a record, and a way, that are given in space, as seen in the drawing.
    Vec flat(Vec3 point) const;
    Vec flatWay(Vec3 way) const;
    // Where the plane of a record lies in the drawing that gives its points in its own plane: of its
    // extrusion (210), at its elevation (38, or the z of group 10).
    Transform2 plane(const DxfRecord& record) const;
    Transform2 plane(Vec3 extrusion, double elevation) const;

    // The look of the record under way. A part of another colour changes it and puts it back.
    Look look;
    // The pen for the numbers of a colour in the file, with 0 and 256 resolved for the record under way.
    std::int32_t penOf(int colorNumber);

    // All in the drawing's coordinates. What is not finite is left out.
    void line(Vec a, Vec b);
    void polyline(std::span<const Vec> points, bool closed);
    void arc(const EllipseArc& arc); // whole or part, circle or ellipse
    void piece(const Piece& piece);
    void pieces(std::span<const Piece> pieces);
    void strokes(std::span<const Stroke> strokes);
    void point(Vec p);
    // baseline is where the text begins, ends or has its middle, as justification says; along is the way it
    // is written, up a letter's height square to the line, of any length. See MadeText in made.h.
    void text(const MadeText& text, Vec baseline, Vec along, Vec up);
    // A dimension or a leader of our own: points and sizes as in made.h. Its look is added.
    void add(Made made);

    // Draws what a block holds; at is where its points go, before where the record under way stands. Its base
    // point is taken off. False for a block that is not there, is under way already, or is too deep.
    bool block(std::string_view name, const Transform3& at);
    // The same of the block that pictures a dimension: the points that it was measured by are not drawn.
    bool picture(std::string_view name, const Transform3& at);
    bool isInBlock() const { return !underWay_.empty(); }
    // How much has been drawn, and what came since then, which can be taken back for something in its place.
    std::size_t drawn() const { return made_.objects.size(); }
    std::span<const Made> drawnSince(std::size_t count) const
    {
        return std::span(made_.objects).subspan(count);
    }
    void takeBack(std::size_t count) { made_.objects.resize(count); }
    // The attributes of an insert, which stand where they say, moved by so much for one of many.
    void attributes(const DxfRecord& insert, Vec3 moved);
    // One record as it stands, by the row of its type.
    void record(const DxfRecord& record);

    // The record stands for an object that is known already.
    void own(const DxfRecord& record, Made made);

    // Counts a record, or a part of one, that is not drawn: "SPLINE", and, in a few words, why if the type is
    // drawn as a rule.
    void leftOut(std::string_view type, std::string_view why = {});

    // A style's face ("Arial") by the name of the style.
    std::string faceOf(std::string_view style) const;

    // The lines of a hatch, which come after all else: where there is no room for them, its outline alone
    // does.
    void pattern(Pattern pattern);
    // Whether there can be room for more of them: else they need not be worked out.
    bool takesPatterns() const;
    PatternWork& patternWork() { return patternWork_; }

    // Lines without an end: cut to the drawing's size once that is known.
    void endless(Vec from, Vec way, bool bothWays);

    MadeDrawing finish();

  private:
    struct Endless {
        Vec from, way;
        bool bothWays = false;
        Look look;
    };

    bool takesStep(std::int64_t cost = 1);
    void drawBlock(const DxfBlock& block, const Transform3& at);
    void circular(const EllipseArc& arc);
    void cutEndless();
    void drawPatterns();
    void drawLines(std::span<const PatternLine> lines);
    void leaveOutUnusedLayers();
    void keepLayers(const std::vector<bool>& stays);

    const DxfList& list_;
    double tolerance_;
    const RecordHandler* (*handlerOf_)(std::string_view type);
    Looks looks_;
    Transform3 place_;                // of the block under way
    std::optional<Inherited> insert_; // whose block that is
    const DxfRecord* record_ = nullptr;
    std::vector<std::string_view> underWay_;
    std::vector<Endless> endless_;
    std::vector<Pattern> patterns_;
    std::size_t patternLines_ = 0;
    std::size_t outlineStrokes_ = 0;
    bool isPicture_ = false;
    std::int64_t stepsLeft_; // of work; below 0 when there is too much of it
    PatternWork patternWork_;
    MadeDrawing made_;
};

} // namespace mirtane
