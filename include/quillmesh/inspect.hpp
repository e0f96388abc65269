// What a model file holds and what a conversion would make of it, found
// without writing anything.
#pragma once

#include <string>
#include <vector>

#include "quillmesh/quillmesh.hpp"

namespace quillmesh {

/// One table as the reader met it.
struct InspectedTable {
  int line = 0;            ///< the title's line in the file, from 1
  std::string title;       ///< the title line as written
  int tableId = 0;         ///< 0 when the title is not recognised
  std::string tableName;   ///< "JOINT Coordinates"; empty when not recognised
  int rows = 0;            ///< the rows read
  /// "carried" into commands, "stored" and never written, "reported" with
  /// a message, or "ignored"
  std::string fate;
  std::string commands;    ///< carried: the commands, blank-separated
  std::string messageKey;  ///< reported: the key of the message
};

struct Inspection {
  /// The reading's code: 0 read to its end, 1 stopped, -1 failed (the rest
  /// of the file was not read).
  int code = 0;
  std::vector<InspectedTable> tables;
  /// Of the program control table; empty when the file has none.
  std::string programName, programVersion;
  /// One line for a file that was not written by version 8; empty else.
  std::string versionWarning;
};

/// Reads \p inputPath as a conversion reads it, messages to \p ui included,
/// and stops before converting: nothing is written.
QM_EXPORT Inspection InspectPath(const std::string& inputPath, UserInterface& ui);

}  // namespace quillmesh
