#pragma once

// What the selection list stands for: its caption says it, and a click on a row does it. A mode that leads to
// the file dialog is that dialog's caption too.

#include <string_view>

namespace mirtane::list_mode {

inline constexpr std::string_view setWorkingLayer = "Set Working Layer";
inline constexpr std::string_view hideDisplayLayer = "Hide/Display Layer";
inline constexpr std::string_view nameLayer = "Name Layer";
inline constexpr std::string_view unnameLayer = "Un-name Layer";
inline constexpr std::string_view addLayer = "Add Layer"; // no row does anything: the name is typed
inline constexpr std::string_view loadLayer = "Load Layer";
inline constexpr std::string_view saveLayer = "Save Layer";
inline constexpr std::string_view selectMultipleLines = "Select Multiple Lines";
inline constexpr std::string_view removeMultipleLines = "Remove Multiple Lines";
inline constexpr std::string_view saveMultipleLines = "Save Multiple Lines";
inline constexpr std::string_view selectHatch = "Select Hatch";
inline constexpr std::string_view removeHatch = "Remove Hatch";
inline constexpr std::string_view saveHatch = "Save Hatch";
inline constexpr std::string_view selectAssociate = "Select Associate";
inline constexpr std::string_view removeAssociate = "Remove Associate";
inline constexpr std::string_view saveAssociate = "Save Associate";
inline constexpr std::string_view editFunctions = "Edit Functions";
inline constexpr std::string_view selectFont = "Select Font";
inline constexpr std::string_view changeSelectedFont = "Change Selected Font";
inline constexpr std::string_view changeProperties =
    "Change Properties"; // a dialog asks; a click does nothing

} // namespace mirtane::list_mode
