// Conversions of the files named on the command line, one after another or
// several at a time, each with its own engine.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "options.h"

namespace cli {

/// A message as the engine issued it.
struct MessageRecord {
  std::string key;       ///< empty for the system's own texts
  std::string text;      ///< as the user reads it
  std::string argument;  ///< the text argument of a formatted message
  bool hasArgument = false;
};

/// What became of one input.
struct FileResult {
  std::string input;
  std::string output;     ///< where the TVT file goes
  int code = 1;           ///< the engine's: 0 finished, 1 stopped, -1 failed
  bool ran = false;       ///< false when the batch was stopped before it
  std::string stopReason; ///< the front end's words for a stop
  std::vector<MessageRecord> messages;
  std::string printed;    ///< its message lines, for a batch run in parallel
};

/// The exit status of a file: 0 finished, 1 stopped, 2 failed.
int ExitStatusOf(const FileResult& result);

/// Converts every file of \p options; messages go to stderr, the output
/// paths to stdout. \returns the results in the order of the files.
std::vector<FileResult> ConvertAll(const Options& options);

}  // namespace cli
