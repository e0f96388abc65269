// The words of the progress display, shared by the terminal and the desktop.
#pragma once

namespace quillmesh {

/// The stage line for stages 1 to 3; empty for any other stage.
inline const char* StageText(int stage) {
  switch (stage) {
    case 1: return "Reading [s2k] file of SAP2000 V8";
    case 2: return "Converting [s2k] file to TARVO text file";
    case 3: return "Writing TARVO text file";
    default: return "";
  }
}

/// Why a read that could never end was stopped.
inline constexpr const char* kEndsInsideTable =
    "the input ends inside a table, with no blank line or END after its last row, so reading "
    "could never end; the conversion was stopped";
inline constexpr const char* kEndsInFileLine =
    "the input ends with a FILE line outside any table, so reading could never end; "
    "the conversion was stopped";

}  // namespace quillmesh
