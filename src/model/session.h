#pragma once

// All that the program knows between two events. A routine takes the smallest of these structs that it needs.

#include "geometry/fault.h"
#include "geometry/way.h"
#include "model/controls.h"
#include "model/entity_store.h"
#include "model/file_stamp.h"
#include "model/layers.h"
#include "model/library_tables.h"
#include "model/notices.h"
#include "model/snap_mark.h"
#include "model/undo_log.h"

#include <array>
#include <optional>
#include <set>
#include <vector>

namespace mirtane {

// Given to each new object.
struct Attributes {
    std::int16_t workLayer = 1;
    std::int32_t curColor = 0xFFFFFF; // 0xBBGGRR
    std::int16_t curStyle = 0;        // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
    float textSize = 48;              // world units
    float arrowSize = 48;             // world units
    std::int16_t dimStyle = 1;        // 1 closed, 2 open, 3 slash
    std::int16_t textJust = 0;        // 0 left, 1 right, 2 centre
    std::string textFont = "Garamond";
    float dimTol = 0.125F; // fraction step of feet and inches
    std::int16_t numComma = 0;
    std::int16_t angFormat = 0;  // 0 three places, 1 degrees-minutes-seconds
    std::string numStyle = "us"; // "us", "2f", "3i", "br"
    double textRotation = 0;     // degrees
    float snapPercentage = 0.25F;
    float filletRadius = 72; // world units
    std::int16_t polygonSides = 3;
    float hatchScale = 1;
    double hatchRotation = 0;     // radians
    double associateRotation = 0; // radians
    std::string associateName{noName};
    std::string hatchName{noName};
    std::string multipleLinesName{noName};
};

// A prompt and the function whose it is.
struct FunctionPrompt {
    std::string function, text;
};

struct FunctionState {
    std::string curFunc = "Line";  // the function that runs
    std::string baseFunc = "Line"; // the one that a cancel returns to
    std::string lastFunc = "Line"; // baseFunc as setPrompt last saw it
    std::int16_t stepNo = 0;       // clicks and entries taken so far
    std::string promptText;        // as shown
    FunctionPrompt functionPrompt; // what is shown but while Zoom Window is on
    std::int16_t editPending = 0;  // 1 while a function chosen from the edit list runs
};

// One click or entry more. At the end of its 16 bits the count stays as it is.
inline void countStep(FunctionState& state)
{
    keep(state.stepNo, state.stepNo + 1);
}

// The base function again, at its start.
inline void returnToBase(FunctionState& state)
{
    state.curFunc = state.baseFunc;
    state.stepNo = 0;
}

// Geometry on its way from the commands to the insertion routines. Points are world coordinates.
struct ScratchPoints {
    Point pickFirst; // the first click of a function
    Point pickLast;  // each later click, after ortho and snap, and each move
    Point mousePos;  // the latest click, before ortho and snap
    Way lastWay;     // of the last leg of a chain, none before there is one
    Way dimWay;      // of the line of a dimension, which a chain keeps
    Point ptA, ptB, ptC, ptD, ptE, ptF, ptG, ptH;
    float workRadius = 0;
    double workAngle = 0; // 25 while the selection follows the pointer
    double arcStart = 0;
    double arcEnd = 0;
    double dimAngle = 0; // degrees
    Point bisectorA, bisectorB;
    double arcAngleOne = 0;
    double arcAngleTwo = 0;
    double arcLastAngle = 0;
    std::int16_t arcWinding = 0;
    std::int16_t curveFlip = 0;
    std::int16_t curveSide = 0;
};

// One side of a boundary under way.
struct BoundaryLeg {
    Point from, to;
};

// A leg under way, from where it begins to the pointer or the click.
struct Leg {
    Point from, to;
};

struct CanvasInput {
    std::int16_t snapKey = 0;     // 1 Shift held, 2 Ctrl held
    bool snapKeyIsSpent = false;  // what is down was held for a shortcut
    std::int16_t orthoSector = 1; // 1 to 4, as the last move chose it
    double orthoAngle = 0;        // radians
    double orthoAngleSaved = 0;   // what a cancel restores
    std::string orthoCaption = "Ortho/On";
    double liveAngle = 0; // direction of the rubber band, radians
    bool pointWasSnapped = false;

    std::int32_t windowStep = 0; // corners taken of a window
    Point window1, window2;

    std::int16_t blankStep = 0; // points taken of a construction line
    Point blankStart, blankEnd;
    std::string blankSavedFunc;

    std::array<std::string, 100> textBuffer; // live typing, one character each
    std::int32_t textLength = 0;             // goes on rising past the buffer

    std::int32_t boundaryCount = 0; // legs taken of a boundary, up to the index of the one that closes it
    std::array<BoundaryLeg, 100> boundary;
};

// What is shown over the picture and beside it while the pointer and the keys are at work.
struct Aiming {
    std::optional<Point> pointer;     // where it was last on the drawing, world units
    bool pointerIsOver = false;       // it still is
    std::optional<Leg> band;          // that the rubber band on the picture was drawn along
    std::optional<SnapMark> snapMark; // where a click would land
    char32_t refusedKey = 0;          // that was not taken into the number being typed, 0 none
};

// The visible world rectangle: a copy of the surface's scale, for culling.
struct View {
    float viewLeft = 0, viewTop = 0, viewRight = 0, viewBottom = 0;
    std::int16_t wholeViewFlag = 0; // 1 after Zoom All: nothing can lie far outside
    float pixelOriginX = 0, pixelOriginY = 0;
    float pixelPerUnitX = 0, pixelPerUnitY = 0;
    std::string savedPrompt; // caption of snapLabel before Zoom Window
};

// What follows once a drawing with unsaved work has been saved or given up.
namespace follow {
inline constexpr std::int16_t nothing = 0;
inline constexpr std::int16_t exit = 1;
inline constexpr std::int16_t clear = 2;
inline constexpr std::int16_t openDrawing = 3;
inline constexpr std::int16_t openDxf = 4;
inline constexpr std::int16_t restoreWork = 5;
inline constexpr std::int16_t openAgain = 6;
inline constexpr std::int16_t openDropped = 7;
} // namespace follow

// How far the work on a drawing has come (model/work_mark.h).
struct WorkMark {
    std::int32_t entCount = 1;
    std::int32_t undoGroupNext = 0;
    std::int32_t undoLogCount = 0;
    std::size_t layerNames = 0; // a sum over them

    friend bool operator==(const WorkMark&, const WorkMark&) = default;
};

// Where files of one pattern are looked for: the last path if it still exists, else the working directory.
struct FolderPair {
    std::string working; // UTF-8 paths
    std::string last;
};

// A DXF file as it was opened, in case it is to be taken in another way.
struct OpenedDxf {
    std::vector<std::uint8_t> file;
    std::string name, folder;
    WorkMark mark; // of the drawing that it gave
};

// Names in the three libraries.
struct LibraryNames {
    std::set<std::string> associates, hatches, multipleLines;

    friend bool operator==(const LibraryNames&, const LibraryNames&) = default;
};

struct FileState {
    std::int32_t savedCount = 1; // entCount at the last load or save
    std::int16_t saveFollowUp = follow::nothing;
    std::string drawingName = "untitled.mtd";
    std::string drawingFile; // full path of what was opened or saved as this drawing, if anything was
    std::optional<FileStamp> savedStamp; // of that file as it was opened or saved, if it is there
    std::optional<FileStamp> seenStamp;  // as it was when it was last looked at
    std::string markedFile;              // the one that other programs know to be open here
    std::string drawingFolder;           // the drawing's own; empty while it has none
    std::int32_t changesBefore = 0;      // not saved either, of the run that the work was restored from
    WorkMark savedMark;                  // the work at the last load or save
    std::vector<bool> savedLiving;       // the slots that were alive then (model/work_mark.h)
    std::string savedTime;               // of that, local, "2026-11-22 14:32"
    WorkMark keptMark;                   // the work as it was last kept, in case the program dies
    LibraryNames namedHere; // given here to what may be in no file of its own; some may be in use no more
    LibraryNames keptNames; // of what was kept with the work
    std::vector<std::string> leftWork; // what other runs left, by name; the last one is on offer
    std::string dxfName = "untitled.dxf";
    std::optional<OpenedDxf> openedDxf;
    std::string proposedName;          // by the file dialog
    std::string droppedFile;           // full path of what was dropped on the window and waits to be opened
    std::string filePattern = "*.mtd"; // of the file dialog
    FolderPair drawings, associates, hatches, multipleLines, dxf;
    std::string programFolder;
    std::set<std::string> pageFiles; // full paths of the pages that were printed into files
    std::int32_t dimensionCount = 0; // kinds 7 to 10, counted by a load
    std::string nameToSave;          // of a library, as its list gave it to the file dialog
    std::int16_t chosenLayer = 0;    // for naming, loading and saving a layer
    bool ended = false;
};

struct FilterValues {
    std::int16_t filterLayer = -1; // -1 any
    std::int16_t filterKind = -1;
    std::int16_t filterStyle = -1;
    std::int32_t filterColor = 0; // the background of the surface is any
};

struct PickResults {
    static constexpr std::int32_t none = 60001;
    std::int32_t pickedIndex = none;
    std::int32_t pickedSecond = none;
    std::int32_t snapBestIndex = -1;   // -1 none
    std::int32_t snapSecondIndex = -1; // the second object of an intersection
    float snapRadius = 0;              // the distance to the last object found, world units
};

// What an edit of the selection works with on its way through its steps.
struct EditState {
    float editDX = 0, editDY = 0;          // offset of the copies being made; the two factors of a scale
    float editStepX = 0, editStepY = 0;    // the first offset of "Copy", which each further copy repeats
    double editAngle = 0;                  // rotation of the copies being made, radians
    double editDegrees = 0;                // as typed
    std::int32_t radialCount = 0;          // as typed, the source object included
    float offsetDistance = 0;              // added to the radius by "Concentric Copy", world units
    float stretchLeft = 0, stretchTop = 0; // the window of "Stretch", edges included
    float stretchRight = 0, stretchBottom = 0;
    Point moveText; // where "Move Dimension Text" leaves the text
};

// The page under way; lengths on paper are twips.
struct PrintState {
    float pageWidth = 0, pageHeight = 0;                              // as they were when the program started
    float printMinX = 0, printMinY = 0, printMaxX = 0, printMaxY = 0; // bounds of the selection, world units
    float printFactor = 1;                                            // the user's reduction
    float printScale = 1;                                             // twips to the world unit
    float printOriginX = 0, printOriginY = 0;
};

struct Session : Attributes,
                 FunctionState,
                 ScratchPoints,
                 CanvasInput,
                 Aiming,
                 View,
                 FileState,
                 FilterValues,
                 PickResults,
                 EditState,
                 PrintState {
    std::int64_t roomMissing = 0; // objects for which the action under way, if it is refused, has no room

    EntityStore store;
    UndoLog log;
    LayerTable layerTable;
    HatchLibrary hatchLibrary;
    MultipleLinesLibrary multipleLinesLibrary;
    Controls controls;
    Notices notices;
};

} // namespace mirtane
